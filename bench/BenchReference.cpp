#include <map>
#include <string>

#include <benchmark/benchmark.h>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/StandardQualifiers.h>

namespace {

using namespace NZRVQDA20;

typedef std::map<std::string, TCIMValue> TContext;

const char kPath[] =
    "CIM_LogicalDisk.CreationClassName=\"CIM_LogicalDisk\",DeviceID=\"42\",SystemName=\"host\"";

boost::shared_ptr<ICIMNamespace> NamespaceWithThreeKeys() {
  boost::shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("bench");
  DeclareStandardQualifiers(ns);
  boost::shared_ptr<ICIMClass> cls =
      ns->CreateClass("CIM_LogicalDisk", boost::shared_ptr<ICIMClass>(), TContext());
  for (const char* name : {"CreationClassName", "DeviceID", "SystemName"}) {
    boost::shared_ptr<ICIMPropertyDecl> declaration =
        cls->AddPropertyDecl(name, TCIMValue(TCIMValue::TCIMType::kCIMTypeString, 0), TContext());
    declaration->AddQualifier(ns->GetQualifierDecl("Key", TContext()), TCIMValue(true), TContext())
        ->Commit(TContext());
    declaration->Commit(TContext());
  }
  cls->Commit(TContext());
  return ns;
}

void PathParseThreeKeys(benchmark::State& state) {
  const boost::shared_ptr<ICIMNamespace> ns = NamespaceWithThreeKeys();
  const std::string path = kPath;
  for (auto _ : state) {
    TCIMReference reference(ns, path, TContext());
    benchmark::DoNotOptimize(reference);
  }
}
BENCHMARK(PathParseThreeKeys);

void PathPrintThreeKeys(benchmark::State& state) {
  const boost::shared_ptr<ICIMNamespace> ns = NamespaceWithThreeKeys();
  const TCIMReference reference(ns, kPath, TContext());
  for (auto _ : state) {
    std::string path = reference.GetPath();
    benchmark::DoNotOptimize(path);
  }
}
BENCHMARK(PathPrintThreeKeys);

}  // namespace
