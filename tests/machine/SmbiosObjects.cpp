#include "SmbiosObjects.h"

#include <boost/function.hpp>

#include <plugins/machine/Schema.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <smbios/smbios.h>
#include <tests/support/ScopedEnvironment.h>
#include <tests/support/TemporaryFolder.h>

namespace machine_test {

using boost::shared_ptr;
using namespace NZRVQDA20;
using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;
using smbios::sample::TableBuilder;

typedef std::map<std::string, TCIMValue> Context;

shared_ptr<ICIMNamespace> NamespaceOfFile(const std::string& path) {
  const test_support::ScopedEnvironment dump("QDA_SMBIOS_DUMP", path.c_str());
  void* table = nullptr;
  if (smBiosLoad(nullptr, &table).GetStatusCode() != TQDAStatusCode::kQDAStatusOK) {
    return shared_ptr<ICIMNamespace>();
  }
  machine::MachineFacts facts;
  facts.operatingSystem.hostName = "box";
  facts.smbios = machine::SmbiosStructures(table);
  smBiosClose(&table);
  return machine::BuildNamespace(facts);
}

shared_ptr<ICIMNamespace> NamespaceOfDump(const Bytes& dump) {
  const test_support::TemporaryFolder folder;
  return NamespaceOfFile(folder.Write("dump.smbios", std::string(dump.begin(), dump.end())));
}

shared_ptr<ICIMNamespace> NamespaceOf(const std::vector<StructureBuilder>& structures) {
  TableBuilder table;
  for (const StructureBuilder& structure : structures) {
    table.Add(structure);
  }
  table.Add(StructureBuilder(127, 0x7F00));
  return NamespaceOfDump(table.Dump64(3, 7));
}

std::vector<Facts> ObjectsOf(const shared_ptr<ICIMNamespace>& ns, const std::string& className) {
  std::vector<Facts> objects;
  boost::function<bool(shared_ptr<ICIMInstance>)> takeInstance =
      [&objects](shared_ptr<ICIMInstance> instance) {
        Facts facts;
        boost::function<bool(shared_ptr<ICIMProperty>)> takeProperty =
            [&facts](shared_ptr<ICIMProperty> property) {
              const TCIMValue value = property->GetValue(Context());
              if (!value.IsNull()) {
                facts[property->GetPropertyDecl(Context())->GetName(Context())] = value.ToString();
              }
              return true;
            };
        instance->EnumerateProperties(takeProperty, Context());
        objects.push_back(facts);
        return true;
      };
  ns->GetClass(className, Context())->EnumerateInstances(takeInstance, false, Context());
  return objects;
}

Facts WithoutSystemKeys(Facts facts) {
  facts.erase("SystemCreationClassName");
  facts.erase("SystemName");
  facts.erase("CreationClassName");
  return facts;
}

}  // namespace machine_test
