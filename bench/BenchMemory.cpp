// The namespace in memory being filled. Compare with "pairs", see MemoryBench.h.

#include <string>
#include <vector>

#ifdef __linux__
#include <malloc.h>
#endif

#include <benchmark/benchmark.h>

#include <bench/MemoryBench.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/StandardQualifiers.h>

namespace {

using namespace NZRVQDA20;
using namespace memory_bench;

typedef boost::shared_ptr<ICIMNamespace> TNamespace;
typedef boost::shared_ptr<ICIMClass> TClass;

// How many a namespace takes before the next one is begun, outside the time.
const std::size_t kRound = 1024;

struct TProperty {
  std::string name;
  TCIMValue value;
};

// What a class of an inventory has: a key, texts, counters, a flag, a date.
std::vector<TProperty> TwentyProperties() {
  std::vector<TProperty> properties = {
      {"InstanceID", TCIMValue(0ull)},
      {"Caption", TCIMValue("Fixed disk")},
      {"Description", TCIMValue("A disk that stays where it is")},
      {"ElementName", TCIMValue("disk0")},
      {"Manufacturer", TCIMValue("Maker")},
      {"Model", TCIMValue("Model 4000")},
      {"SerialNumber", TCIMValue("0123456789")},
      {"Removable", TCIMValue(false)},
      {"InstallDate", TCIMValue(TCIMDateTime("20261121120000.000000+000"))},
      {"Load", TCIMValue(0.5)},
  };
  const char* const kCounters[] = {"BlockSize", "Blocks", "Sectors", "Heads",    "Cylinders",
                                   "Reads",     "Writes", "Errors",  "Restarts", "Hours"};
  for (const char* name : kCounters) {
    properties.push_back({name, TCIMValue(512u)});
  }
  return properties;
}

// A class of these properties, the first of which is the key, all null by default.
TClass MakeDisk(const TNamespace& ns, const std::vector<TProperty>& properties) {
  DeclareStandardQualifiers(ns);
  const TClass cls = ns->CreateClass("ZRVSG_Disk", TClass(), TContext());
  for (const TProperty& property : properties) {
    const boost::shared_ptr<ICIMPropertyDecl> declaration =
        cls->AddPropertyDecl(property.name, TCIMValue(property.value.GetType(), 0), TContext());
    if (&property == &properties[0]) {
      Qualify(ns, *declaration, "Key", TCIMValue(true));
    }
    declaration->Commit(TContext());
  }
  cls->Commit(TContext());
  return cls;
}

void AddDisk(const TClass& cls, std::vector<TProperty>& properties, unsigned long long id) {
  properties[0].value = TCIMValue(id);
  const boost::shared_ptr<ICIMInstance> instance = cls->CreateInstance(TContext());
  for (const TProperty& property : properties) {
    instance->SetProperty(property.name, property.value, TContext());
  }
  cls->AddInstance(instance);
}

void MemoryInstance20Properties(benchmark::State& state) {
  std::vector<TProperty> properties = TwentyProperties();
  TNamespace ns;
  TClass cls;
  std::size_t made = 0;
  CountPairs(state);
  for (auto _ : state) {
    if (made % kRound == 0) {
      state.PauseTiming();
      cls.reset();
      ns = CreateMemoryNamespace("bench");
      cls = MakeDisk(ns, properties);
      state.ResumeTiming();
    }
    AddDisk(cls, properties, ++made);
  }
}
BENCHMARK(MemoryInstance20Properties);

void MemoryClass20Properties(benchmark::State& state) {
  std::vector<std::string> names;
  for (std::size_t number = 0; number < kRound; ++number) {
    names.push_back("ZRVSG_Disk" + std::to_string(number));
  }
  std::vector<TProperty> properties = TwentyProperties();
  for (TProperty& property : properties) {
    property.value = TCIMValue(property.value.GetType(), 0);
  }
  TNamespace ns;
  std::size_t made = 0;
  CountPairs(state);
  for (auto _ : state) {
    if (made % kRound == 0) {
      state.PauseTiming();
      ns = CreateMemoryNamespace("bench");
      state.ResumeTiming();
    }
    const TClass cls = ns->CreateClass(names[made++ % kRound], TClass(), TContext());
    for (const TProperty& property : properties) {
      cls->AddPropertyDecl(property.name, property.value, TContext())->Commit(TContext());
    }
    cls->Commit(TContext());
  }
}
BENCHMARK(MemoryClass20Properties);

// What the allocator kept from the round before goes back to the system: else only the larger
// counts would pay for new memory.
void BeginWithoutMemory() {
#ifdef __linux__
  malloc_trim(0);
#endif
}

// Flat when the times of an instance are alike for all counts.
void MemoryInstanceAmong(benchmark::State& state) {
  std::vector<TProperty> properties = TwentyProperties();
  const unsigned long long count = static_cast<unsigned long long>(state.range(0));
  CountPairs(state, static_cast<double>(count));
  for (auto _ : state) {
    state.PauseTiming();
    {
      BeginWithoutMemory();
      const TNamespace ns = CreateMemoryNamespace("bench");
      const TClass cls = MakeDisk(ns, properties);
      state.ResumeTiming();
      for (unsigned long long id = 0; id < count; ++id) {
        AddDisk(cls, properties, id);
      }
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
}
BENCHMARK(MemoryInstanceAmong)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
