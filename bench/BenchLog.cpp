// A written log line against a bare write of the same line.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include <benchmark/benchmark.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>

namespace {

using namespace NZRVQDA20;

const char kMessage[] = "TCIMSchemaHelper- Detected MTM 1234AC1";
const char kFile[] = "qdacore-bench.log";

void LogBareWrite(benchmark::State& state) {
  const std::string line = std::string("FDR_[Error] 11/21/2026  10:15:20 ") + kMessage + "\n";
  const int file = open(kFile, O_RDWR | O_CREAT | O_TRUNC, 0600);
  for (auto _ : state) {
    benchmark::DoNotOptimize(write(file, line.data(), line.size()));
  }
  close(file);
  std::remove(kFile);
}
BENCHMARK(LogBareWrite);

void LogLine(benchmark::State& state) {
  TLogger::Initialize();
  ILogger* const logger = TRootObject::GetCoreLogger();
  logger->SetLogFilename(kFile);
  logger->SetLogThreshold(ILogger::kLogVerbose);
  const std::string message = kMessage;
  for (auto _ : state) {
    // A severity that is written and not kept: the list is no part of a line.
    logger->LogMessage(ILogger::kLogDebug, message);
  }
  delete logger;
  std::remove(kFile);
}
BENCHMARK(LogLine);

}  // namespace
