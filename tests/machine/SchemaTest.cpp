#include <plugins/machine/Schema.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <boost/function.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/TAddToVectorCallback.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/frame/TQDAException.h>

namespace {

using boost::shared_ptr;
using machine::BuildNamespace;
using machine::MachineFacts;
using namespace NZRVQDA20;

typedef std::map<std::string, TCIMValue> Context;

MachineFacts AllFacts() {
  MachineFacts facts;
  facts.system.manufacturer = "ZRV";
  facts.system.productName = "ZRV Tserver k7265-[1234AC1]";
  facts.system.serialNumber = "S1";
  facts.system.uuid = "00112233-4455-6677-8899-aabbccddeeff";
  facts.operatingSystem.hostName = "box";
  facts.operatingSystem.name = "Some OS";
  facts.operatingSystem.version = "12";
  facts.operatingSystem.type = static_cast<std::uint16_t>(36);
  return facts;
}

shared_ptr<ICIMInstance> OnlyInstance(const shared_ptr<ICIMNamespace>& ns, const char* name) {
  std::vector<shared_ptr<ICIMInstance> > instances;
  boost::function<bool(shared_ptr<ICIMInstance>)> collect =
      TAddToVectorCallback<ICIMInstance>(&instances);
  ns->GetClass(name, Context())->EnumerateInstances(collect, true, Context());
  EXPECT_EQ(1u, instances.size()) << name;
  return instances.at(0);
}

// Every property: its name, its type and its text.
struct Row {
  std::string name;
  int type;
  std::string text;  // "NULL" for a null value

  bool operator<(const Row& other) const { return name < other.name; }
  bool operator==(const Row& other) const {
    return name == other.name && type == other.type && text == other.text;
  }
};

void PrintTo(const Row& row, std::ostream* stream) {
  *stream << row.name << ":" << row.type << "=" << row.text;
}

std::set<Row> PropertiesOf(const shared_ptr<ICIMInstance>& instance) {
  std::set<Row> rows;
  boost::function<bool(shared_ptr<ICIMProperty>)> collect = [&rows](
                                                                shared_ptr<ICIMProperty> property) {
    const TCIMValue value = property->GetValue(Context());
    rows.insert(Row{property->GetPropertyDecl(Context())->GetName(Context()),
                    static_cast<int>(value.GetType()), value.IsNull() ? "NULL" : value.ToString()});
    return true;
  };
  instance->EnumerateProperties(collect, Context());
  return rows;
}

const int kUint16 = 4;
const int kUint32 = 6;
const int kUint64 = 8;
const int kString = 13;
const int kDateTime = 14;

TEST(MachineSchema, DescribesTheComputerSystem) {
  const shared_ptr<ICIMNamespace> ns = BuildNamespace(AllFacts());
  EXPECT_EQ((std::set<Row>{{"CreationClassName", kString, "ZRVSG_ComputerSystem"},
                           {"Name", kString, "box"},
                           {"ProductName", kString, "ZRV Tserver k7265-[1234AC1]"},
                           {"SerialNumber", kString, "S1"},
                           {"Manufacturer", kString, "ZRV"},
                           {"UUID", kString, "00112233-4455-6677-8899-aabbccddeeff"}}),
            PropertiesOf(OnlyInstance(ns, "ZRVSG_ComputerSystem")));
}

TEST(MachineSchema, DescribesTheOperatingSystem) {
  const shared_ptr<ICIMNamespace> ns = BuildNamespace(AllFacts());
  EXPECT_EQ((std::set<Row>{{"CSCreationClassName", kString, "ZRVSG_ComputerSystem"},
                           {"CSName", kString, "box"},
                           {"CreationClassName", kString, "ZRVSG_OperatingSystem"},
                           {"Name", kString, "Some OS"},
                           {"Version", kString, "12"},
                           {"OSType", kUint16, "36"},
                           {"TotalVisibleMemorySize", kUint64, "NULL"},
                           {"TotalVirtualMemorySize", kUint64, "NULL"},
                           {"SizeStoredInPagingFiles", kUint64, "NULL"},
                           {"MaxProcessMemorySize", kUint64, "NULL"},
                           {"MaxNumberOfProcesses", kUint32, "NULL"},
                           {"LastBootUpTime", kDateTime, "NULL"}}),
            PropertiesOf(OnlyInstance(ns, "ZRVSG_OperatingSystem")));
}

TEST(MachineSchema, DescribesTheCollector) {
  const shared_ptr<ICIMNamespace> ns = BuildNamespace(AllFacts());
  EXPECT_EQ((std::set<Row>{{"Name", kString, "qdacore"},
                           {"IdentifyingNumber", kString, ""},
                           {"Vendor", kString, "ZRV"},
                           {"Version", kString, "2.0.0"},
                           {"Build", kUint32, "NULL"}}),
            PropertiesOf(OnlyInstance(ns, "ZRVSG_QDAProduct")));
}

TEST(MachineSchema, GivesTypedNullsForFactsThatAreAbsent) {
  const shared_ptr<ICIMNamespace> ns = BuildNamespace(MachineFacts());
  EXPECT_EQ((std::set<Row>{{"CreationClassName", kString, "ZRVSG_ComputerSystem"},
                           {"Name", kString, "NULL"},
                           {"ProductName", kString, "NULL"},
                           {"SerialNumber", kString, "NULL"},
                           {"Manufacturer", kString, "NULL"},
                           {"UUID", kString, "NULL"}}),
            PropertiesOf(OnlyInstance(ns, "ZRVSG_ComputerSystem")));
  EXPECT_EQ((std::set<Row>{{"CSCreationClassName", kString, "ZRVSG_ComputerSystem"},
                           {"CSName", kString, "NULL"},
                           {"CreationClassName", kString, "ZRVSG_OperatingSystem"},
                           {"Name", kString, "NULL"},
                           {"Version", kString, "NULL"},
                           {"OSType", kUint16, "NULL"},
                           {"TotalVisibleMemorySize", kUint64, "NULL"},
                           {"TotalVirtualMemorySize", kUint64, "NULL"},
                           {"SizeStoredInPagingFiles", kUint64, "NULL"},
                           {"MaxProcessMemorySize", kUint64, "NULL"},
                           {"MaxNumberOfProcesses", kUint32, "NULL"},
                           {"LastBootUpTime", kDateTime, "NULL"}}),
            PropertiesOf(OnlyInstance(ns, "ZRVSG_OperatingSystem")));
}

TEST(MachineSchema, FindsEachInstanceUnderItsDmtfClassToo) {
  const shared_ptr<ICIMNamespace> ns = BuildNamespace(AllFacts());
  const std::pair<const char*, const char*> rows[] = {
      {"CIM_ComputerSystem", "ZRVSG_ComputerSystem"},
      {"CIM_OperatingSystem", "ZRVSG_OperatingSystem"},
      {"CIM_Product", "ZRVSG_QDAProduct"}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.second, OnlyInstance(ns, row.first)->GetClass(Context())->GetName(Context()));
  }
}

bool IsKey(const shared_ptr<ICIMNamespace>& ns, const char* className, const char* property) {
  try {
    const shared_ptr<const ICIMPropertyDecl> decl =
        ns->GetClass(className, Context())->GetPropertyDecl(property, Context());
    return decl->GetQualifier("Key", Context())->GetValue(Context());
  } catch (const TQDAException&) {
    return false;
  }
}

TEST(MachineSchema, HasTheKeysThatDmtfGivesItsClasses) {
  const shared_ptr<ICIMNamespace> ns = BuildNamespace(AllFacts());
  for (const char* name : {"CreationClassName", "Name"}) {
    EXPECT_TRUE(IsKey(ns, "ZRVSG_ComputerSystem", name)) << name;
  }
  for (const char* name : {"CSCreationClassName", "CSName", "CreationClassName", "Name"}) {
    EXPECT_TRUE(IsKey(ns, "ZRVSG_OperatingSystem", name)) << name;
  }
  for (const char* name : {"Name", "IdentifyingNumber", "Vendor", "Version"}) {
    EXPECT_TRUE(IsKey(ns, "ZRVSG_QDAProduct", name)) << name;
  }
  EXPECT_FALSE(IsKey(ns, "ZRVSG_ComputerSystem", "SerialNumber"));
  EXPECT_FALSE(IsKey(ns, "ZRVSG_OperatingSystem", "Version"));
  EXPECT_FALSE(IsKey(ns, "ZRVSG_QDAProduct", "Build"));
}

TEST(MachineSchema, ReachesAnInstanceByItsPath) {
  const shared_ptr<ICIMNamespace> ns = BuildNamespace(AllFacts());
  const TCIMReference path(
      ns, "ZRVSG_ComputerSystem.CreationClassName=\"ZRVSG_ComputerSystem\",Name=\"box\"",
      Context());
  EXPECT_EQ(OnlyInstance(ns, "ZRVSG_ComputerSystem"), ns->GetInstance(path, Context()));
}

TEST(MachineSchema, IsMadeAnewEachTime) {
  EXPECT_NE(BuildNamespace(AllFacts()), BuildNamespace(AllFacts()));
}

}  // namespace
