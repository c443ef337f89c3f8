#include <tests/transfer/FtpClientChildren.h>

#include <cstdio>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace transfer_test {

using NZRVQDA20::TOSSpecific;

namespace {

#if defined(_WIN32)
const char kClientName[] = "wininet.dll";
const char kModulePrefix[] = "wininet-";
#else
const char kClientName[] = "libcurl.so.4";
const char kModulePrefix[] = "libcurl-";
#endif

int Print(bool isDone, const test_support::LogCapture& log) {
  std::printf("%s\n", isDone ? "true" : "false");
  for (const std::string& line : log.Lines()) {
    std::printf("%s\n", line.c_str());
  }
  return 0;
}

}  // namespace

QDACORE_CHILD(Uploads) {
  const test_support::LogCapture log;
  const bool isDone = TOSSpecific::FTPFile(arguments.at(0), "local", "remote");
  return Print(isDone, log);
}

QDACORE_CHILD(Downloads) {
  const test_support::LogCapture log;
  const bool isDone = TOSSpecific::FTPFileFromZRV(arguments.at(0), "local", "remote");
  return Print(isDone, log);
}

FtpClientCopy::FtpClientCopy(const std::string& client) {
  if (client.empty()) {
    fProgram.Folder().Write(kClientName, "this is no library\n");
  } else {
    fProgram.AddModule(client, kClientName);
  }
}

Lines FtpClientCopy::Run(const std::string& child, const std::string& target,
                         const std::string& answers) const {
  // Windows looks into the program's folder first, Linux into that of the variable.
  const test_support::ScopedEnvironment path("LD_LIBRARY_PATH", fProgram.Folder().Path().c_str());
  const test_support::ScopedEnvironment words("WININET_ANSWERS", answers.c_str());
  const test_support::ChildResult result = fProgram.Run(child, {target});
  EXPECT_EQ(0, result.exitCode) << result.error;
  Lines lines;
  std::size_t begin = 0;
  for (std::size_t end = 0; (end = result.output.find('\n', begin)) != std::string::npos;
       begin = end + 1) {
    lines.push_back(result.output.substr(begin, end - begin));
  }
  return lines;
}

std::string ClientThatLacks(int function) {
  return kModulePrefix + std::to_string(function) + ".module";
}

}  // namespace transfer_test
