#include <qdamemory/internal/TMemoryMethodDecl.h>

#include <cstddef>

#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/TMemoryClass.h>

namespace NZRVQDA20 {

TMemoryMethodDecl::TMemoryMethodDecl(TMemoryClass& cls, const std::string& name,
                                     TCIMValue::TCIMType type, const TMemoryMethodDecl* overridden)
    : fClass(cls),
      fName(name),
      fType(type),
      fQualifiers(overridden == 0 ? 0 : &overridden->fQualifiers) {}

boost::shared_ptr<ICIMQualifier> TMemoryMethodDecl::AddQualifier(
    boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value, TContext) {
  fClass.RequireOpen();
  return TQualifierList::Share(fClass, fQualifiers.Add(fClass, declaration, value));
}

boost::shared_ptr<ICIMQualifier> TMemoryMethodDecl::GetQualifier(const std::string& name,
                                                                 TContext) const {
  TMemoryQualifier* qualifier = fQualifiers.Find(name);
  if (qualifier == 0) {
    Fail(TQDAStatusCode::kQDAStatusNotFound);
  }
  return TQualifierList::Share(fClass, qualifier);
}

void TMemoryMethodDecl::EnumerateQualifiers(
    boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit, TContext) const {
  fQualifiers.Enumerate(fClass, visit);
}

const std::string& TMemoryMethodDecl::GetName(TContext) const { return fName; }

TCIMValue::TCIMType TMemoryMethodDecl::GetType(TContext) const { return fType; }

boost::shared_ptr<ICIMParameterDecl> TMemoryMethodDecl::AddParameterDecl(const std::string& name,
                                                                         TCIMValue::TCIMType type,
                                                                         TContext) {
  fClass.RequireOpen();
  RequireCIMName(name);
  for (std::size_t at = 0; at < fParameters.size(); ++at) {
    if (EqualCIMNames(fParameters[at]->Name(), name)) {
      Fail(TQDAStatusCode::kQDAStatusAlreadyExists);
    }
  }
  std::unique_ptr<TMemoryParameterDecl> parameter(new TMemoryParameterDecl(fClass, name, type));
  fParameters.push_back(std::move(parameter));
  return boost::shared_ptr<ICIMParameterDecl>(fClass.shared_from_this(), fParameters.back().get());
}

void TMemoryMethodDecl::EnumerateParameterDecls(
    boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)>& visit, TContext) const {
  const boost::shared_ptr<TMemoryClass> keeper = fClass.shared_from_this();
  const std::size_t count = fParameters.size();
  for (std::size_t at = 0; at < count; ++at) {
    if (!visit(boost::shared_ptr<ICIMParameterDecl>(keeper, fParameters[at].get()))) {
      return;
    }
  }
}

void TMemoryMethodDecl::Release() {
  fQualifiers.Release();
  for (std::size_t at = 0; at < fParameters.size(); ++at) {
    fParameters[at]->Release();
  }
}

}  // namespace NZRVQDA20
