#include <tests/support/LogCapture.h>

#include <regex>
#include <sstream>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>

namespace test_support {

using namespace NZRVQDA20;

LogCapture::LogCapture() : fPath(fFolder.PathOf("core.log")) {
  TLogger::Initialize();
  TRootObject::GetCoreLogger()->SetLogFilename(fPath);
  TRootObject::GetCoreLogger()->SetLogThreshold(ILogger::kLogVerbose);
}

LogCapture::~LogCapture() { delete TRootObject::GetCoreLogger(); }

std::string LogCapture::Text() const { return ReadTextFile(fPath); }

std::vector<std::string> LogCapture::Lines() const {
  static const std::regex form(R"(FDR_(\[\w+\] )\d+/\d+/\d+  \d+:\d+:\d+ (.*))");
  std::istringstream text(Text());
  std::vector<std::string> lines;
  std::string line;
  std::getline(text, line);
  EXPECT_EQ("-- QDA Log Opened ----------------------------", line);
  while (std::getline(text, line)) {
    std::smatch parts;
    lines.push_back(std::regex_match(line, parts, form) ? parts[1].str() + parts[2].str() : line);
  }
  return lines;
}

}  // namespace test_support
