// Whole schemas: copied between namespaces in memory, and read from MOF. "pairs": see
// MemoryBench.h; "heap" is what a copy leaves on the heap, in bytes.
//
// The DMTF schema is no part of this project: QDACORE_DMTF_SCHEMA names its folder.

#include <sstream>
#include <string>

#ifdef __linux__
#include <malloc.h>
#endif

#include <benchmark/benchmark.h>

#include <bench/MemoryBench.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/TCIMCopy.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/Mof.h>
#include <qdamemory/StandardQualifiers.h>
#include <tests/support/DmtfSchema.h>

namespace {

using namespace NZRVQDA20;
using namespace memory_bench;

typedef TCIMValue::TCIMType TType;
typedef boost::shared_ptr<ICIMNamespace> TNamespace;
typedef boost::shared_ptr<ICIMClass> TClass;

#ifdef __linux__
double HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}
#else
double HeapInUse() { return 0; }
#endif

TCIMValue Null(TType::ECIMType type) { return TCIMValue(TType(type), 0); }

// A schema of our own: 400 classes in trees of ten, each with ten described properties and a
// method, and 100 associations between them.
void DeclareClass(const TNamespace& ns, int number) {
  const std::string name = "ZRVSG_Class" + std::to_string(number);
  const bool isRoot = number % 10 == 0;
  const TClass super =
      isRoot ? TClass()
             : ns->GetClass("ZRVSG_Class" + std::to_string(number - (number % 10 + 1) / 2),
                            TContext());
  const TClass cls = ns->CreateClass(name, super, TContext());
  Qualify(ns, *cls, "Description", TCIMValue("Class " + name + " of a schema that is copied"));
  for (int i = 0; i < 10; ++i) {
    const boost::shared_ptr<ICIMPropertyDecl> declaration = cls->AddPropertyDecl(
        "Property" + std::to_string(number) + "_" + std::to_string(i),
        Null(i % 2 ? TType::kCIMTypeUint32 : TType::kCIMTypeString), TContext());
    if (isRoot && i == 0) {
      Qualify(ns, *declaration, "Key", TCIMValue(true));
    }
    Qualify(ns, *declaration, "Description",
            TCIMValue("What property " + std::to_string(i) + " of " + name + " tells its reader"));
    declaration->Commit(TContext());
  }
  const boost::shared_ptr<ICIMMethodDecl> reset = cls->AddMethodDecl(
      "Reset" + std::to_string(number), TType(TType::kCIMTypeUint32), TContext());
  reset->AddParameterDecl("Mode", TType(TType::kCIMTypeUint16), TContext())->Commit(TContext());
  cls->Commit(TContext());
}

TNamespace BuiltSchema() {
  const TNamespace ns = CreateMemoryNamespace("built");
  DeclareStandardQualifiers(ns);
  for (int number = 0; number < 400; ++number) {
    DeclareClass(ns, number);
  }
  for (int number = 0; number < 100; ++number) {
    const TClass cls = ns->CreateClass("ZRVSG_Link" + std::to_string(number), TClass(), TContext());
    Qualify(ns, *cls, "Association", TCIMValue(true));
    for (const int end : {number * 4, number * 4 + 3}) {
      TCIMValue reference = Null(TType::kCIMTypeReference);
      reference.SetReferencedClass(ns->GetClass("ZRVSG_Class" + std::to_string(end), TContext()));
      const boost::shared_ptr<ICIMPropertyDecl> declaration =
          cls->AddPropertyDecl("End" + std::to_string(end % 2), reference, TContext());
      Qualify(ns, *declaration, "Key", TCIMValue(true));
      declaration->Commit(TContext());
    }
    cls->Commit(TContext());
  }
  return ns;
}

// Empty, and the bench told why, when it is not there.
TNamespace DmtfSchema(benchmark::State& state) {
  const std::string path = test_support::DmtfSchemaFile();
  if (path.empty()) {
    state.SkipWithError("QDACORE_DMTF_SCHEMA names no folder");
    return TNamespace();
  }
  const TNamespace ns = CreateMemoryNamespace("dmtf");
  try {
    ReadMofFile(ns, path, nullptr);
  } catch (const TQDAException& failure) {
    state.SkipWithError(failure.what());
    return TNamespace();
  }
  return ns;
}

void CopySchema(benchmark::State& state, const TNamespace& source) {
  double heap = 0;
  CountPairs(state);
  for (auto _ : state) {
    state.PauseTiming();
    {
      const double before = HeapInUse();
      const TNamespace target = CreateMemoryNamespace("copy");
      state.ResumeTiming();
      TCIMCopy::CopyClasses(source, target, true);
      state.PauseTiming();
      heap = HeapInUse() - before;
    }
    state.ResumeTiming();
  }
  if (heap != 0) {
    state.counters["heap"] =
        benchmark::Counter(heap, benchmark::Counter::kDefaults, benchmark::Counter::kIs1024);
  }
}

void CopyBuiltSchema(benchmark::State& state) { CopySchema(state, BuiltSchema()); }
BENCHMARK(CopyBuiltSchema)->Unit(benchmark::kMillisecond);

void CopyDmtfSchema(benchmark::State& state) {
  if (const TNamespace source = DmtfSchema(state)) {
    CopySchema(state, source);
  }
}
BENCHMARK(CopyDmtfSchema)->Unit(benchmark::kMillisecond);

void ReadMofOfBuiltSchema(benchmark::State& state) {
  std::ostringstream written;
  WriteMof(BuiltSchema(), written);
  const std::string text = written.str();
  CountPairs(state);
  for (auto _ : state) {
    const TNamespace ns = CreateMemoryNamespace("read");
    ReadMofText(ns, text, "built.mof", nullptr);
    benchmark::DoNotOptimize(ns.get());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(text.size()));
}
BENCHMARK(ReadMofOfBuiltSchema)->Unit(benchmark::kMillisecond);

void ReadMofOfDmtfSchema(benchmark::State& state) {
  if (!DmtfSchema(state)) {
    return;
  }
  const std::string path = test_support::DmtfSchemaFile();
  CountPairs(state);
  for (auto _ : state) {
    const TNamespace ns = CreateMemoryNamespace("read");
    ReadMofFile(ns, path, nullptr);
    benchmark::DoNotOptimize(ns.get());
  }
}
BENCHMARK(ReadMofOfDmtfSchema)->Unit(benchmark::kMillisecond);

}  // namespace
