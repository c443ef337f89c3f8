#include <bench/MemoryBench.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <vector>

#include <qdacore/cim/object/ICIMNamedElement.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>

namespace memory_bench {

using namespace NZRVQDA20;

namespace {

// The median of a few tries, as it is of what is compared with it: the least of one by the median
// of the other would count the machine's moods.
double SecondsOfAPair() {
  const int kCount = 1000000;
  std::vector<double> tries;
  for (int round = 0; round < 5; ++round) {
    const std::clock_t begin = std::clock();
    for (int i = 0; i < kCount; ++i) {
      void* block = std::malloc(32);
      benchmark::DoNotOptimize(block);
      std::free(block);
    }
    tries.push_back(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / kCount);
  }
  std::sort(tries.begin(), tries.end());
  return tries[tries.size() / 2];
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
