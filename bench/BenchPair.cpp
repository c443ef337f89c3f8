// The yardstick: one malloc(32) and its free, and the main function.

#include <cstdlib>

#include <benchmark/benchmark.h>

namespace {

void Pair(benchmark::State& state) {
  for (auto _ : state) {
    void* block = std::malloc(32);
    benchmark::DoNotOptimize(block);
    std::free(block);
  }
}
BENCHMARK(Pair);

}  // namespace

BENCHMARK_MAIN();
