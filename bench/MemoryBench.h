// What the benches of the namespace in memory share.

#ifndef BENCH_MEMORYBENCH_H
#define BENCH_MEMORYBENCH_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <benchmark/benchmark.h>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {
class ICIMNamedElement;
}

namespace memory_bench {

typedef std::map<std::string, NZRVQDA20::TCIMValue> TContext;

// Gives the bench the counter "pairs": its time as a multiple of one malloc(32) and free, measured
// here and now, in time of the processor as the bench is. `each`: how many are made in one
// iteration. (The "s" that the benchmark library prints behind it means nothing.)
void CountPairs(benchmark::State& state, double each = 1);

void Qualify(const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& ns,
             NZRVQDA20::ICIMNamedElement& element, const char* name,
             const NZRVQDA20::TCIMValue& value);

}  // namespace memory_bench

#endif
