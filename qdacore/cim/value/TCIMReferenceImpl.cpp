#include <qdacore/cim/value/TCIMReferenceImpl.h>

#include <cstddef>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/value/internal/ObjectPathParser.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/logging/internal/CoreLog.h>

namespace NZRVQDA20 {

namespace {

void AppendEscaped(std::string& path, const std::string& text) {
  for (const char character : text) {
    if (character == '"' || character == '\\') {
      path += '\\';
    }
    path += character;
  }
}

}  // namespace

TCIMReferenceImpl::TCIMReferenceImpl(const TCIMReference* owner,
                                     const boost::shared_ptr<ICIMNamespace>& ns,
                                     const TContext& context)
    : fOwner(owner), fNamespace(ns), fContext(context) {}

TCIMReferenceImpl::TCIMReferenceImpl(const TCIMReference* owner, const TCIMReferenceImpl& other)
    : fOwner(owner),
      fNamespace(other.fNamespace),
      fContext(other.fContext),
      fClass(other.fClass),
      fKeyBindings(other.fKeyBindings),
      fElement(other.fElement),
      fNamespaceName(other.fNamespaceName) {}

TCIMReferenceImpl::~TCIMReferenceImpl() {}

std::string TCIMReferenceImpl::GetPath() const {
  std::string path = ClassName();
  if (fKeyBindings.empty()) {
    return path;
  }
  path += '.';
  for (const auto& binding : fKeyBindings) {
    const std::string text = binding.second.ToString(10);
    path += binding.first;
    path += "=\"";
    if (binding.second.IsReference()) {
      // A path within a path stands as it is; its quotes nest.
      path += text;
    } else {
      AppendEscaped(path, text);
    }
    path += "\",";
  }
  path.pop_back();
  return path;
}

void TCIMReferenceImpl::SetPath(TCIMReference& owner, const std::string& path) {
  if (fNamespace.expired() || fClass || !fKeyBindings.empty()) {
    Throw(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  ObjectPathParser(path, fNamespace, fContext).Parse(owner);
}

const std::string& TCIMReferenceImpl::ClassName() const { return fClass->GetName(TContext()); }

void TCIMReferenceImpl::SetClassName(const std::string& name) {
  const boost::shared_ptr<ICIMNamespace> ns = fNamespace.lock();
  if (!ns || !fKeyBindings.empty()) {
    Throw(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  fClass = ns->GetClass(name, fContext);
}

boost::shared_ptr<ICIMClass> TCIMReferenceImpl::GetClass() const {
  if (!fClass) {
    Throw(TQDAStatusCode::kQDAStatusInvalidReference);
  }
  return fClass;
}

void TCIMReferenceImpl::SetClass(const boost::shared_ptr<ICIMClass>& cls) {
  if (!fKeyBindings.empty()) {
    Throw(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  fClass = cls;
}

void TCIMReferenceImpl::AddKeyValue(const std::string& name, const TCIMValue& value) {
  if (!fClass) {
    Throw(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  const TCIMValue::TCIMType declared =
      fClass->GetPropertyDecl(name, TContext())->GetType(TContext());
  if (declared != value.GetType()) {
    // Writing this can itself fail, when a type has no spelling; that is meant.
    LogAndThrow(ILogger::kLogError,
                "Core: Declaration type: " + declared.ToString() +
                    " Value type: " + value.GetType().ToString(),
                TQDAStatusCode::kQDAStatusTypeMismatch);
  }
  // A name that is bound already keeps its first value.
  fKeyBindings.emplace(name, value);
}

boost::shared_ptr<ICIMElement> TCIMReferenceImpl::GetCIMElement(bool classOnly) {
  if (classOnly || fKeyBindings.empty()) {
    return fClass;
  }
  if (!fElement) {
    // The class's own namespace is asked, not the one that this reference knows.
    fElement = fClass->GetNamespace(TContext())->GetInstance(*fOwner, TContext());
    if (!fElement) {
      Throw(TQDAStatusCode::kQDAStatusNotFound);
    }
  }
  return fElement;
}

void TCIMReferenceImpl::Clear() {
  fNamespace.reset();
  fClass.reset();
  fKeyBindings.clear();
  fElement.reset();
}

bool TCIMReferenceImpl::Equals(const TCIMReferenceImpl& other) const {
  return fClass == other.fClass && fKeyBindings == other.fKeyBindings &&
         fNamespaceName == other.fNamespaceName;
}

bool TCIMReferenceImpl::LessThan(const TCIMReferenceImpl& other) const {
  return fClass != other.fClass ? fClass < other.fClass : fKeyBindings < other.fKeyBindings;
}

}  // namespace NZRVQDA20
