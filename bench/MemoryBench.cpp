#include <bench/MemoryBench.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>

#include <qdacore/cim/object/ICIMNamedElement.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>

namespace memory_bench {

using namespace NZRVQDA20;

namespace {

// The least of a few tries: a neighbour on the machine only ever makes it slower.
double SecondsOfAPair() {
  const int kCount = 1000000;
  double least = 1;
  for (int round = 0; round < 5; ++round) {
    const std::clock_t begin = std::clock();
    for (int i = 0; i < kCount; ++i) {
      void* block = std::malloc(32);
      benchmark::DoNotOptimize(block);
      std::free(block);
    }
    const double took = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    least = std::min(least, took / kCount);
  }
  return least;
}

}  // namespace

void CountPairs(benchmark::State& state, double each) {
  state.counters["pairs"] =
      benchmark::Counter(each * SecondsOfAPair(), benchmark::Counter::kIsIterationInvariantRate |
                                                      benchmark::Counter::kInvert);
}

void Qualify(const boost::shared_ptr<ICIMNamespace>& ns, ICIMNamedElement& element,
             const char* name, const TCIMValue& value) {
  element.AddQualifier(ns->GetQualifierDecl(name, TContext()), value, TContext())
      ->Commit(TContext());
}

}  // namespace memory_bench
