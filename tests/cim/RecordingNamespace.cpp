#include <tests/cim/RecordingNamespace.h>

#include <stdexcept>

#include <boost/make_shared.hpp>

#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>

namespace cim_test {

using namespace NZRVQDA20;

namespace {

[[noreturn]] void NotFound() { throw TQDAException(TQDAStatusCode::kQDAStatusNotFound); }

[[noreturn]] void Unexpected() { throw std::logic_error("nobody is to ask this"); }

}  // namespace

void Record::Add(const std::string& call, const Context& context) {
  std::string text = call + " {";
  const char* separator = "";
  for (const auto& entry : context) {
    text += separator + entry.first + "=" + entry.second.ToString();
    separator = ",";
  }
  calls.push_back(text + "}");
  const auto found = before.find(call);
  if (found != before.end()) {
    found->second();
  }
}

RecordingPropertyDecl::RecordingPropertyDecl(const boost::shared_ptr<Record>& record,
                                             const std::string& name, TCIMValue::TCIMType type,
                                             const TCIMValue& defaultValue)
    : fRecord(record), fName(name), fType(type), fDefault(defaultValue) {}

const std::string& RecordingPropertyDecl::GetName(Context context) const {
  fRecord->Add(fName + ".GetName()", context);
  return fName;
}

TCIMValue::TCIMType RecordingPropertyDecl::GetType(Context context) const {
  fRecord->Add(fName + ".GetType()", context);
  return fType;
}

const TCIMValue& RecordingPropertyDecl::GetDefaultValue(Context context) const {
  fRecord->Add(fName + ".GetDefaultValue()", context);
  return fDefault;
}

RecordingClass::RecordingClass(const boost::shared_ptr<Record>& record, const std::string& name,
                               const boost::weak_ptr<ICIMNamespace>& ns)
    : fRecord(record), fName(name), fNamespace(ns) {}

RecordingClass& RecordingClass::With(const std::string& name, TCIMValue::TCIMType::ECIMType type) {
  return With(name, type, TCIMValue(TCIMValue::TCIMType(type), 0));
}

RecordingClass& RecordingClass::With(const std::string& name, TCIMValue::TCIMType::ECIMType type,
                                     const TCIMValue& defaultValue) {
  fProperties[name] = boost::make_shared<RecordingPropertyDecl>(
      fRecord, name, TCIMValue::TCIMType(type), defaultValue);
  return *this;
}

const std::string& RecordingClass::GetName(Context context) const {
  fRecord->Add(fName + ".GetName()", context);
  return fName;
}

boost::shared_ptr<ICIMNamespace> RecordingClass::GetNamespace(Context context) const {
  fRecord->Add(fName + ".GetNamespace()", context);
  return fNamespace.lock();
}

boost::shared_ptr<const ICIMPropertyDecl> RecordingClass::GetPropertyDecl(const std::string& name,
                                                                          Context context) const {
  fRecord->Add(fName + ".GetPropertyDecl(" + name + ")", context);
  const auto found = fProperties.find(name);
  if (found == fProperties.end()) {
    NotFound();
  }
  return found->second;
}

RecordingNamespace::RecordingNamespace()
    : record(boost::make_shared<Record>()), askedFor(nullptr) {}

boost::shared_ptr<RecordingNamespace> RecordingNamespace::Create() {
  return boost::shared_ptr<RecordingNamespace>(new RecordingNamespace);
}

RecordingClass& RecordingNamespace::Declare(const std::string& name,
                                            const boost::shared_ptr<ICIMNamespace>& of) {
  const boost::shared_ptr<ICIMNamespace> self = shared_from_this();
  fClasses[name] = boost::make_shared<RecordingClass>(record, name, of ? of : self);
  return *fClasses[name];
}

boost::shared_ptr<ICIMClass> RecordingNamespace::Class(const std::string& name) const {
  return fClasses.at(name);
}

std::vector<std::string> RecordingNamespace::TakeCalls() {
  std::vector<std::string> taken;
  taken.swap(record->calls);
  return taken;
}

boost::shared_ptr<ICIMClass> RecordingNamespace::GetClass(const std::string& name,
                                                          Context context) const {
  record->Add("GetClass(" + name + ")", context);
  const auto found = fClasses.find(name);
  if (found == fClasses.end()) {
    NotFound();
  }
  return found->second;
}

boost::shared_ptr<ICIMInstance> RecordingNamespace::GetInstance(const TCIMReference& reference,
                                                                Context context) const {
  askedFor = &reference;
  record->Add("GetInstance", context);
  return instance;
}

void RecordingPropertyDecl::Commit(Context) { Unexpected(); }
boost::shared_ptr<ICIMQualifier> RecordingPropertyDecl::AddQualifier(
    boost::shared_ptr<ICIMQualifierDecl>, const TCIMValue&, Context) {
  Unexpected();
}
boost::shared_ptr<ICIMQualifier> RecordingPropertyDecl::GetQualifier(const std::string&,
                                                                     Context) const {
  Unexpected();
}
void RecordingPropertyDecl::EnumerateQualifiers(
    boost::function<bool(boost::shared_ptr<ICIMQualifier>)>&, Context) const {
  Unexpected();
}

void RecordingClass::Commit(Context) { Unexpected(); }
bool RecordingClass::IsAssociation(Context) const { Unexpected(); }
bool RecordingClass::IsAbstract(Context) const { Unexpected(); }
bool RecordingClass::IsRootClass(Context) const { Unexpected(); }
boost::shared_ptr<ICIMClass> RecordingClass::GetSuperClass(Context) const { Unexpected(); }
void RecordingClass::EnumerateSubClasses(boost::function<bool(boost::shared_ptr<ICIMClass>)>&, bool,
                                         Context) const {
  Unexpected();
}
boost::shared_ptr<ICIMPropertyDecl> RecordingClass::AddPropertyDecl(const std::string&,
                                                                    const TCIMValue&, Context) {
  Unexpected();
}
void RecordingClass::EnumeratePropertyDecls(
    boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)>&, Context) const {
  Unexpected();
}
void RecordingClass::SetStaticProperty(const std::string&, const TCIMValue&, Context) {
  Unexpected();
}
void RecordingClass::EnumerateStaticProperties(
    boost::function<bool(boost::shared_ptr<ICIMProperty>)>&, Context) const {
  Unexpected();
}
boost::shared_ptr<ICIMInstance> RecordingClass::CreateInstance(Context) { Unexpected(); }
void RecordingClass::EnumerateInstances(boost::function<bool(boost::shared_ptr<ICIMInstance>)>&,
                                        bool, Context) const {
  Unexpected();
}
boost::shared_ptr<ICIMMethodDecl> RecordingClass::AddMethodDecl(const std::string&,
                                                                TCIMValue::TCIMType, Context) {
  Unexpected();
}
void RecordingClass::EnumerateMethodDecls(boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)>&,
                                          Context) const {
  Unexpected();
}
void RecordingClass::AddInstance(boost::shared_ptr<ICIMInstance>) { Unexpected(); }
boost::shared_ptr<ICIMQualifier> RecordingClass::AddQualifier(boost::shared_ptr<ICIMQualifierDecl>,
                                                              const TCIMValue&, Context) {
  Unexpected();
}
boost::shared_ptr<ICIMQualifier> RecordingClass::GetQualifier(const std::string&, Context) const {
  Unexpected();
}
void RecordingClass::EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>&,
                                         Context) const {
  Unexpected();
}

boost::shared_ptr<ICIMClass> OpaqueInstance::GetClass(Context) const { Unexpected(); }
boost::shared_ptr<ICIMProperty> OpaqueInstance::GetProperty(const std::string&, Context) const {
  Unexpected();
}
void OpaqueInstance::SetProperty(const std::string&, const TCIMValue&, Context) { Unexpected(); }
void OpaqueInstance::EnumerateProperties(boost::function<bool(boost::shared_ptr<ICIMProperty>)>&,
                                         Context) const {
  Unexpected();
}

boost::shared_ptr<ICIMClass> RecordingNamespace::CreateClass(const std::string&,
                                                             boost::shared_ptr<ICIMClass>,
                                                             Context) {
  Unexpected();
}
void RecordingNamespace::EnumerateClasses(boost::function<bool(boost::shared_ptr<ICIMClass>)>&,
                                          Context) const {
  Unexpected();
}
boost::shared_ptr<ICIMQualifierDecl> RecordingNamespace::CreateQualifierDecl(
    const std::string&, const TCIMValue&, std::int32_t, std::int32_t, Context) {
  Unexpected();
}
boost::shared_ptr<ICIMQualifierDecl> RecordingNamespace::GetQualifierDecl(const std::string&,
                                                                          Context) const {
  Unexpected();
}
void RecordingNamespace::EnumerateQualifierDecls(
    boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)>&, Context) const {
  Unexpected();
}

}  // namespace cim_test
