#include <qdacore/cim/value/TCIMReferenceImpl.h>

#include <cstddef>
#include <cstring>
#include <utility>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/value/internal/ObjectPathParser.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/logging/internal/CoreLog.h>

namespace NZRVQDA20 {

namespace {

// Text that grows at its end, with room made ahead.
class PathText {
 public:
  explicit PathText(std::size_t room) : fText(room, '\0'), fEnd(0) {}

  void Append(const char* text, std::size_t length) {
    if (fText.size() - fEnd < length) {
      fText.resize(fText.size() * 2 + length);
    }
    std::memcpy(&fText[fEnd], text, length);
    fEnd += length;
  }

  void Append(const std::string& text) { Append(text.data(), text.size()); }

  void AppendEscaped(const std::string& text) {
    if (text.find('"') == std::string::npos && text.find('\\') == std::string::npos) {
      Append(text);
      return;
    }
    for (const char& character : text) {
      if (character == '"' || character == '\\') {
        Append("\\", 1);
      }
      Append(&character, 1);
    }
  }

  // All but the last character.
  std::string WithoutLast() {
    fText.resize(fEnd - 1);
    return std::move(fText);
  }

 private:
  std::string fText;
  std::size_t fEnd;
};

// What an ordinary binding takes, with its name, quotes and comma.
const std::size_t kUsualBinding = 48;

}  // namespace

TCIMReferenceImpl::TCIMReferenceImpl(const TCIMReference* owner,
                                     const boost::shared_ptr<ICIMNamespace>& ns, TContext& context)
    : fOwner(owner), fNamespace(ns) {
  fContext.swap(context);
}

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
  const std::string& className = ClassName();
  if (fKeyBindings.empty()) {
    return className;
  }
  PathText path(className.size() + fKeyBindings.size() * kUsualBinding);
  path.Append(className);
  path.Append(".", 1);
  for (const auto& binding : fKeyBindings) {
    const std::string text = binding.second.ToString(10);
    path.Append(binding.first);
    path.Append("=\"", 2);
    if (binding.second.IsReference()) {
      // A path within a path stands as it is; its quotes nest.
      path.Append(text);
    } else {
      path.AppendEscaped(text);
    }
    path.Append("\",", 2);
  }
  return path.WithoutLast();
}

void TCIMReferenceImpl::SetPath(const std::string& path, const ICIMNamespace* held, int depth) {
  if (fNamespace.expired() || fClass || !fKeyBindings.empty()) {
    Throw(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  ObjectPathParser(path, fNamespace, fContext, held, depth).Parse(*this);
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

void TCIMReferenceImpl::SetClass(boost::shared_ptr<ICIMClass> cls) {
  if (!fKeyBindings.empty()) {
    Throw(TQDAStatusCode::kQDAStatusInvalidOpSequence);
  }
  fClass.swap(cls);
}

void TCIMReferenceImpl::AddKeyValue(const std::string& name, const TCIMValue& value) {
  RequireDeclared(name, value);
  // A name that is bound already keeps its first value.
  fKeyBindings.emplace(name, value);
}

void TCIMReferenceImpl::AddParsedKeyValue(std::string& name, TCIMValue& value) {
  RequireDeclared(name, value);
  // Written paths have their names in order, so the end is mostly the right place.
  const std::size_t before = fKeyBindings.size();
  const auto binding = fKeyBindings.try_emplace(fKeyBindings.end(), std::move(name));
  if (fKeyBindings.size() != before) {
    binding->second.Take(value);
  }
}

void TCIMReferenceImpl::RequireDeclared(const std::string& name, const TCIMValue& value) const {
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
