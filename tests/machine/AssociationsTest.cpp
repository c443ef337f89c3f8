// Every reference of every association leads to an object that is there, whatever the texts in its
// keys are.

#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <boost/function.hpp>

#include <plugins/machine/Schema.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/TAddToVectorCallback.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMValue.h>

#include "BuiltTables.h"
#include "SmbiosObjects.h"

namespace machine_test {
namespace {

using boost::shared_ptr;
using namespace NZRVQDA20;
using smbios::sample::StructureBuilder;

typedef std::map<std::string, TCIMValue> Context;

std::vector<shared_ptr<ICIMClass> > AssociationsOf(const shared_ptr<ICIMNamespace>& ns) {
  std::vector<shared_ptr<ICIMClass> > found;
  boost::function<bool(shared_ptr<ICIMClass>)> take = [&found](shared_ptr<ICIMClass> cls) {
    if (cls->IsAssociation(Context())) {
      found.push_back(cls);
    }
    return true;
  };
  ns->EnumerateClasses(take, Context());
  return found;
}

bool IsOfClass(shared_ptr<ICIMClass> cls, const std::string& name) {
  while (cls && cls->GetName(Context()) != name) {
    cls = cls->IsRootClass(Context()) ? shared_ptr<ICIMClass>() : cls->GetSuperClass(Context());
  }
  return cls != nullptr;
}

// One end: the reference leads to an object, so does its text, and the object is of the class that
// the declaration names.
void CheckEnd(const shared_ptr<ICIMNamespace>& ns, const ICIMProperty& property) {
  const TCIMValue value = property.GetValue(Context());
  const std::string text = value.ToString();
  shared_ptr<ICIMInstance> object;
  ASSERT_NO_THROW(object = ns->GetInstance(value.operator TCIMReference(), Context())) << text;
  ASSERT_TRUE(object) << text;
  shared_ptr<ICIMInstance> byText;
  ASSERT_NO_THROW(byText = ns->GetInstance(TCIMReference(ns, text, Context()), Context())) << text;
  EXPECT_EQ(object, byText) << text;
  const shared_ptr<ICIMClass> declared =
      property.GetPropertyDecl(Context())->GetDefaultValue(Context()).GetReferencedClass();
  ASSERT_TRUE(declared) << text;
  EXPECT_TRUE(IsOfClass(object->GetClass(Context()), declared->GetName(Context()))) << text;
}

// The names of the associations that have objects; all their ends are checked.
std::set<std::string> CheckedAssociations(const shared_ptr<ICIMNamespace>& ns) {
  std::set<std::string> names;
  for (const shared_ptr<ICIMClass>& cls : AssociationsOf(ns)) {
    std::vector<shared_ptr<ICIMInstance> > instances;
    boost::function<bool(shared_ptr<ICIMInstance>)> collect =
        TAddToVectorCallback<ICIMInstance>(&instances);
    cls->EnumerateInstances(collect, true, Context());
    for (const shared_ptr<ICIMInstance>& instance : instances) {
      int ends = 0;
      boost::function<bool(shared_ptr<ICIMProperty>)> check =
          [&ns, &ends](shared_ptr<ICIMProperty> property) {
            if (property->GetValue(Context()).GetType() == TCIMValue::TCIMType::kCIMTypeReference) {
              CheckEnd(ns, *property);
              ++ends;
            }
            return true;
          };
      instance->EnumerateProperties(check, Context());
      EXPECT_EQ(2, ends) << cls->GetName(Context());
      names.insert(cls->GetName(Context()));
    }
  }
  return names;
}

TEST(MachineAssociations, OfFirmwareLeadToTheirObjects) {
  // Of the built tables none has both a chassis and a memory array.
  std::set<std::string> names = CheckedAssociations(NamespaceOfFile(SMBIOS_SAMPLE_FILE));
  for (const BuiltTable& built : BuiltTables()) {
    SCOPED_TRACE(built.name);
    for (const std::string& name : CheckedAssociations(NamespaceOfDump(built.dump))) {
      names.insert(name);
    }
  }
  for (const char* name : {"CIM_SystemDevice", "CIM_SystemBIOS", "CIM_BIOSFeatureBIOSElements",
                           "CIM_InstalledSoftwareIdentity", "CIM_ComputerSystemPackage",
                           "CIM_PackageInChassis", "CIM_Realizes", "CIM_ElementCapabilities",
                           "CIM_AssociatedCacheMemory", "CIM_BasedOn", "CIM_ElementCapacity"}) {
    EXPECT_EQ(1u, names.count(name)) << name;
  }
}

// What means something in the text of a path, and what is no text at all.
const char kHostile[] = "a\"b\\c,d=\"e\".f:/\xFF";

machine::MachineFacts HostFacts() {
  machine::MachineFacts facts;
  facts.operatingSystem.hostName = kHostile;
  facts.operatingSystem.name = kHostile;
  facts.host.disks.resize(1);
  facts.host.disks[0].deviceId = kHostile;
  facts.host.disks[0].model = "A MODEL";
  facts.host.disks[0].blockSize = 512;
  facts.host.disks[0].numberOfBlocks = 8;
  facts.host.networkPorts.resize(1);
  facts.host.networkPorts[0].deviceId = kHostile;
  facts.host.fileSystems.resize(1);
  facts.host.fileSystems[0].root = std::string("/") + kHostile;
  facts.host.fileSystems[0].drive = kHostile;
  facts.host.processors.resize(1);
  facts.host.processors[0].deviceId = kHostile;
  return facts;
}

TEST(MachineAssociations, OfTheHostLeadToTheirObjects) {
  EXPECT_EQ((std::set<std::string>{"CIM_ElementCapabilities", "CIM_HostedFileSystem",
                                   "CIM_InstalledOS", "CIM_MediaPresent", "CIM_Realizes",
                                   "CIM_ResidesOnExtent", "CIM_RunningOS", "CIM_SystemDevice"}),
            CheckedAssociations(machine::BuildNamespace(HostFacts())));
}

// The maker and the version of the BIOS are keys.
TEST(MachineAssociations, LeadToFirmwareOfAnyName) {
  const std::set<std::string> names = CheckedAssociations(NamespaceOf(
      {StructureBuilder(0, 0).Text(kHostile).Text(kHostile).Word(0).Text("").Byte(0).Qword(8)}));
  EXPECT_EQ((std::set<std::string>{"CIM_BIOSFeatureBIOSElements", "CIM_SystemBIOS"}), names);
}

// No path leads to a system without a name, so nothing refers to it.
TEST(MachineAssociations, AreNotMadeWithAnObjectWithoutAName) {
  machine::MachineFacts facts = HostFacts();
  facts.operatingSystem.hostName.reset();
  EXPECT_EQ((std::set<std::string>()), CheckedAssociations(machine::BuildNamespace(facts)));
}

}  // namespace
}  // namespace machine_test
