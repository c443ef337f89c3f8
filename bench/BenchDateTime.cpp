#include <string>

#include <benchmark/benchmark.h>

#include <qdacore/cim/value/TCIMDateTime.h>

namespace {

using namespace NZRVQDA20;

void DateTimeParse(benchmark::State& state) {
  const std::string text = "20240102030405.000006+060";
  for (auto _ : state) {
    TCIMDateTime parsed(text);
    benchmark::DoNotOptimize(parsed);
  }
}
BENCHMARK(DateTimeParse);

void DateTimePrint(benchmark::State& state) {
  const TCIMDateTime value("20240102030405.000006+060");
  for (auto _ : state) {
    std::string text = value.ToString();
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(DateTimePrint);

}  // namespace
