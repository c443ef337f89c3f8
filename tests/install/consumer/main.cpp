// Uses a little of each library, as an outsider would.

#include <cstdio>
#include <map>
#include <string>

#include <qdacore/qdacore.h>
#include <qdamemory/MemoryNamespace.h>
#include <smbios/smbios.h>

bool NamesAClassAfterTheSystem(NZRVQDA20::TCIMReference& reference);
bool NamesAClassBeforeTheSystem(NZRVQDA20::TCIMReference& reference);

using namespace NZRVQDA20;

int main() {
  typedef std::map<std::string, TCIMValue> Context;
  boost::shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("consumer");
  boost::shared_ptr<ICIMClass> cls =
      ns->CreateClass("Greeting", boost::shared_ptr<ICIMClass>(), Context());
  cls->AddPropertyDecl("Text", TCIMValue("hello"), Context())->Commit(Context());
  cls->Commit(Context());

  TCIMReference reference(ns, "Greeting", Context());
  if (!NamesAClassAfterTheSystem(reference) || !NamesAClassBeforeTheSystem(reference)) {
    return 1;
  }
  // A null pointer reaches the library's handler, so the usage requirements arrived.
  try {
    boost::shared_ptr<ICIMClass>()->GetName(Context());
    return 2;
  } catch (const TQDAException& failure) {
    if (std::string("kQDAStatusFail") != failure.what()) {
      return 3;
    }
  }
  void* table = nullptr;
  if (smBiosLoad(nullptr, &table).GetStatusCode() == TQDAStatusCode::kQDAStatusOK) {
    smBiosClose(&table);
  }
  std::printf("%s %s %s\n", reference.GetClassName().c_str(), TOSSpecific::kPluginExtension.c_str(),
              TOSSpecific::GetMachineType().c_str());
  return 0;
}
