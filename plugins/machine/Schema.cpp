#include <plugins/machine/Schema.h>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/value/TCIMValue.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/StandardQualifiers.h>

namespace machine {

using boost::shared_ptr;
using NZRVQDA20::ICIMClass;
using NZRVQDA20::ICIMInstance;
using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::ICIMPropertyDecl;
using NZRVQDA20::TCIMValue;

namespace {

typedef std::map<std::string, TCIMValue> Context;
typedef TCIMValue::TCIMType Type;

const char kSystemClass[] = "ZRVSG_ComputerSystem";
const char kOperatingSystemClass[] = "ZRVSG_OperatingSystem";
const char kProductClass[] = "ZRVSG_QDAProduct";

struct Property {
  const char* name;
  Type::ECIMType type;
  bool isKey;
};

shared_ptr<ICIMClass> AddClass(const shared_ptr<ICIMNamespace>& ns, const char* name,
                               const shared_ptr<ICIMClass>& superclass,
                               const std::vector<Property>& properties) {
  const Context none;
  const shared_ptr<ICIMClass> cls = ns->CreateClass(name, superclass, none);
  for (const Property& property : properties) {
    const shared_ptr<ICIMPropertyDecl> decl =
        cls->AddPropertyDecl(property.name, TCIMValue(property.type, 0), none);
    if (property.isKey) {
      decl->AddQualifier(ns->GetQualifierDecl("Key", none), TCIMValue(true), none)->Commit(none);
    }
    decl->Commit(none);
  }
  cls->Commit(none);
  return cls;
}

// The one instance of a class. A property that is not set stays the typed null it is declared as.
class NewInstance {
 public:
  explicit NewInstance(const shared_ptr<ICIMClass>& cls)
      : fClass(cls), fInstance(cls->CreateInstance(Context())) {}

  NewInstance& Set(const char* name, const TCIMValue& value) {
    fInstance->SetProperty(name, value, Context());
    return *this;
  }

  template <class T>
  NewInstance& SetIfKnown(const char* name, const std::optional<T>& fact) {
    return fact ? Set(name, TCIMValue(*fact)) : *this;
  }

  void Publish() { fClass->AddInstance(fInstance); }

 private:
  const shared_ptr<ICIMClass> fClass;
  const shared_ptr<ICIMInstance> fInstance;
};

void AddComputerSystem(const shared_ptr<ICIMNamespace>& ns, const MachineFacts& facts) {
  const shared_ptr<ICIMClass> base = AddClass(
      ns, "CIM_ComputerSystem", shared_ptr<ICIMClass>(),
      {{"CreationClassName", Type::kCIMTypeString, true}, {"Name", Type::kCIMTypeString, true}});
  const shared_ptr<ICIMClass> cls = AddClass(ns, kSystemClass, base,
                                             {{"ProductName", Type::kCIMTypeString, false},
                                              {"SerialNumber", Type::kCIMTypeString, false},
                                              {"Manufacturer", Type::kCIMTypeString, false},
                                              {"UUID", Type::kCIMTypeString, false}});
  NewInstance(cls)
      .Set("CreationClassName", kSystemClass)
      .SetIfKnown("Name", facts.operatingSystem.hostName)
      .SetIfKnown("ProductName", facts.system.productName)
      .SetIfKnown("SerialNumber", facts.system.serialNumber)
      .SetIfKnown("Manufacturer", facts.system.manufacturer)
      .SetIfKnown("UUID", facts.system.uuid)
      .Publish();
}

void AddOperatingSystem(const shared_ptr<ICIMNamespace>& ns, const OperatingSystemFacts& facts) {
  const shared_ptr<ICIMClass> base = AddClass(ns, "CIM_OperatingSystem", shared_ptr<ICIMClass>(),
                                              {{"CSCreationClassName", Type::kCIMTypeString, true},
                                               {"CSName", Type::kCIMTypeString, true},
                                               {"CreationClassName", Type::kCIMTypeString, true},
                                               {"Name", Type::kCIMTypeString, true},
                                               {"OSType", Type::kCIMTypeUint16, false},
                                               {"Version", Type::kCIMTypeString, false}});
  NewInstance(AddClass(ns, kOperatingSystemClass, base, {}))
      .Set("CSCreationClassName", kSystemClass)
      .SetIfKnown("CSName", facts.hostName)
      .Set("CreationClassName", kOperatingSystemClass)
      .SetIfKnown("Name", facts.name)
      .SetIfKnown("Version", facts.version)
      .SetIfKnown("OSType", facts.type)
      .Publish();
}

std::optional<std::uint32_t> BuildNumber() {
  const std::string text = MACHINE_PRODUCT_BUILD;
  if (text.empty()) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(std::strtoul(text.c_str(), nullptr, 10));
}

void AddProduct(const shared_ptr<ICIMNamespace>& ns) {
  const shared_ptr<ICIMClass> base = AddClass(ns, "CIM_Product", shared_ptr<ICIMClass>(),
                                              {{"Name", Type::kCIMTypeString, true},
                                               {"IdentifyingNumber", Type::kCIMTypeString, true},
                                               {"Vendor", Type::kCIMTypeString, true},
                                               {"Version", Type::kCIMTypeString, true}});
  NewInstance(AddClass(ns, kProductClass, base, {{"Build", Type::kCIMTypeUint32, false}}))
      .Set("Name", "qdacore")
      // Copies of it are not numbered, and a key has a value.
      .Set("IdentifyingNumber", "")
      .Set("Vendor", "ZRV")
      .Set("Version", MACHINE_PRODUCT_VERSION)
      .SetIfKnown("Build", BuildNumber())
      .Publish();
}

}  // namespace

shared_ptr<ICIMNamespace> BuildNamespace(const MachineFacts& facts) {
  const shared_ptr<ICIMNamespace> ns = NZRVQDA20::CreateMemoryNamespace("root/cimv2");
  NZRVQDA20::DeclareStandardQualifiers(ns);
  AddComputerSystem(ns, facts);
  AddOperatingSystem(ns, facts.operatingSystem);
  AddProduct(ns);
  return ns;
}

}  // namespace machine
