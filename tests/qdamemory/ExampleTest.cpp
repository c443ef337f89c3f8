// The worked example of docs/memory.md, as it stands there.

#include <cstdint>

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

boost::shared_ptr<ICIMNamespace> MakeInventory() {
  const Context none;
  boost::shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("root/cimv2");
  DeclareStandardQualifiers(ns);
  const boost::shared_ptr<ICIMQualifierDecl> key = ns->GetQualifierDecl("Key", none);
  const boost::shared_ptr<ICIMQualifierDecl> isAbstract = ns->GetQualifierDecl("Abstract", none);
  const boost::shared_ptr<ICIMQualifierDecl> association =
      ns->GetQualifierDecl("Association", none);

  // A class: create, declare, commit. The type of a property is that of its default value,
  // which may be a typed null.
  boost::shared_ptr<ICIMClass> device =
      ns->CreateClass("CIM_LogicalDevice", boost::shared_ptr<ICIMClass>(), none);
  device->AddQualifier(isAbstract, TCIMValue(true), none)->Commit(none);
  boost::shared_ptr<ICIMPropertyDecl> id =
      device->AddPropertyDecl("DeviceID", TCIMValue(Type::kCIMTypeString, 0), none);
  id->AddQualifier(key, TCIMValue(true), none)->Commit(none);
  id->Commit(none);
  device->Commit(none);

  // Subclasses inherit properties and keys.
  boost::shared_ptr<ICIMClass> disk = ns->CreateClass("CIM_DiskDrive", device, none);
  disk->AddPropertyDecl("Size", TCIMValue(Type::kCIMTypeUint64, 0), none)->Commit(none);
  disk->Commit(none);
  boost::shared_ptr<ICIMClass> controller = ns->CreateClass("CIM_Controller", device, none);
  controller->Commit(none);

  // References: the default value says which class they refer to.
  boost::shared_ptr<ICIMClass> link =
      ns->CreateClass("CIM_ControlledBy", boost::shared_ptr<ICIMClass>(), none);
  link->AddQualifier(association, TCIMValue(true), none)->Commit(none);
  for (const char* name : {"Antecedent", "Dependent"}) {
    TCIMValue toDevice(Type::kCIMTypeReference, 0);
    toDevice.SetReferencedClass(device);
    boost::shared_ptr<ICIMPropertyDecl> end = link->AddPropertyDecl(name, toDevice, none);
    end->AddQualifier(key, TCIMValue(true), none)->Commit(none);
    end->Commit(none);
  }
  link->Commit(none);

  // An instance: create, set, publish.
  boost::shared_ptr<ICIMInstance> sda = disk->CreateInstance(none);
  sda->SetProperty("DeviceID", TCIMValue("sda"), none);
  sda->SetProperty("Size", TCIMValue(std::uint64_t(512110190592)), none);
  disk->AddInstance(sda);
  boost::shared_ptr<ICIMInstance> sata = controller->CreateInstance(none);
  sata->SetProperty("DeviceID", TCIMValue("sata0"), none);
  controller->AddInstance(sata);

  boost::shared_ptr<ICIMInstance> pair = link->CreateInstance(none);
  TCIMReference from(ns, "CIM_Controller.DeviceID=\"sata0\"", none);
  TCIMReference to(ns, "CIM_DiskDrive.DeviceID=\"sda\"", none);
  pair->SetProperty("Antecedent", TCIMValue(from), none);
  pair->SetProperty("Dependent", TCIMValue(to), none);
  link->AddInstance(pair);
  return ns;
}

TEST(MemoryExample, ServesWhatItWasFilledWith) {
  const Namespace ns = MakeInventory();
  const Instance disk = Resolve(ns, "CIM_DiskDrive.DeviceID=\"sda\"");
  EXPECT_EQ("512110190592", TextOf(disk, "Size"));
  EXPECT_EQ(disk, Resolve(ns, "CIM_LogicalDevice.DeviceID=\"sda\""));
  EXPECT_THAT(InstancesOf(ns->GetClass("CIM_LogicalDevice", None()), true, "DeviceID"),
              ElementsAre("sda", "sata0"));
  EXPECT_TRUE(Resolve(ns,
                      "CIM_ControlledBy.Antecedent=\"CIM_Controller.DeviceID=\"sata0\"\","
                      "Dependent=\"CIM_DiskDrive.DeviceID=\"sda\"\""));
}

}  // namespace
}  // namespace memory_test
