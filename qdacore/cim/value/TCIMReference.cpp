#include <qdacore/cim/value/TCIMReference.h>

#include <utility>

#include <qdacore/cim/value/TCIMReferenceImpl.h>

namespace NZRVQDA20 {

TCIMReference::TCIMReference(boost::shared_ptr<ICIMNamespace> ns,
                             std::map<std::string, TCIMValue> context)
    : fBody(new TCIMReferenceImpl(this, ns, context)) {}

TCIMReference::TCIMReference(boost::shared_ptr<ICIMNamespace> ns, const std::string& path,
                             std::map<std::string, TCIMValue> context)
    // Through the constructor below, so that the body is released when the path is refused. The
    // namespace is not moved: it may be the last share, and the path still needs it.
    : TCIMReference(&ns, &context) {
  fBody->SetPath(path, ns.get());
}

TCIMReference::TCIMReference(const boost::shared_ptr<ICIMNamespace>* ns,
                             std::map<std::string, TCIMValue>* context)
    : fBody(new TCIMReferenceImpl(this, *ns, *context)) {}

TCIMReference::TCIMReference(const TCIMReference& other)
    : fBody(new TCIMReferenceImpl(this, *other.fBody)) {}

TCIMReference& TCIMReference::operator=(const TCIMReference& other) {
  if (this != &other) {
    // The new body first: the source may stand inside the old one's keys.
    TCIMReferenceImpl* const body = new TCIMReferenceImpl(this, *other.fBody);
    delete fBody;
    fBody = body;
  }
  return *this;
}

TCIMReference::~TCIMReference() { delete fBody; }

std::string TCIMReference::GetPath() const { return fBody->GetPath(); }

void TCIMReference::SetPath(const std::string& path) { fBody->SetPath(path); }

const std::string& TCIMReference::GetClassName() const { return fBody->ClassName(); }

void TCIMReference::SetClassName(const std::string& name) { fBody->SetClassName(name); }

boost::shared_ptr<ICIMClass> TCIMReference::GetClass() const { return fBody->GetClass(); }

void TCIMReference::SetClass(boost::shared_ptr<ICIMClass> cls) { fBody->SetClass(std::move(cls)); }

boost::shared_ptr<ICIMNamespace> TCIMReference::GetNamespace() { return fBody->fNamespace.lock(); }

void TCIMReference::SetNamespace(boost::shared_ptr<ICIMNamespace> ns) { fBody->fNamespace = ns; }

std::string TCIMReference::GetNameSpaceName() const { return fBody->fNamespaceName; }

void TCIMReference::SetNameSpaceName(std::string name) { fBody->fNamespaceName = name; }

void TCIMReference::SetContext(std::map<std::string, TCIMValue> context) {
  fBody->fContext.swap(context);
}

void TCIMReference::AddKeyValue(const std::string& name, const TCIMValue& value) {
  fBody->AddKeyValue(name, value);
}

void TCIMReference::EnumerateKeyBindings(
    const boost::function<bool(std::pair<std::string, TCIMValue>)>& visit) const {
  // Found anew each time: `visit` may change this very reference.
  for (auto binding = fBody->fKeyBindings.begin(); binding != fBody->fKeyBindings.end();) {
    const std::string name = binding->first;
    if (!visit(*binding)) {
      return;
    }
    binding = fBody->fKeyBindings.upper_bound(name);
  }
}

boost::shared_ptr<ICIMElement> TCIMReference::GetCIMElement(bool classOnly) const {
  return fBody->GetCIMElement(classOnly);
}

void TCIMReference::Clear() { fBody->Clear(); }

bool TCIMReference::operator==(const TCIMReference& other) const {
  return fBody->Equals(*other.fBody);
}

bool TCIMReference::operator<(const TCIMReference& other) const {
  return fBody->LessThan(*other.fBody);
}

TCIMReferenceImpl* TCIMReference::GetBody() const { return fBody; }

}  // namespace NZRVQDA20
