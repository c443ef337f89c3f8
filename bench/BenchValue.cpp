#include <string>

#include <benchmark/benchmark.h>

#include <qdacore/cim/value/TCIMValue.h>

namespace {

using namespace NZRVQDA20;

void ValueUint32(benchmark::State& state) {
  unsigned int number = 0;
  for (auto _ : state) {
    TCIMValue value(++number);
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(ValueUint32);

void ValueCopyString32(benchmark::State& state) {
  const TCIMValue source(std::string(32, 'x'));
  for (auto _ : state) {
    TCIMValue copy(source);
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(ValueCopyString32);

}  // namespace
