// What the tests of transfers share: the core log, a folder, a file to send.

#ifndef TESTS_TRANSFER_TRANSFERFIXTURE_H
#define TESTS_TRANSFER_TRANSFERFIXTURE_H

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/peers/FtpPeers.h>
#include <tests/support/LogCapture.h>
#include <tests/support/TemporaryFolder.h>

namespace transfer_test {

typedef std::vector<std::string> Lines;

#if defined(_WIN32)
const bool kIsWindows = true;
#else
const bool kIsWindows = false;
#endif

// Every byte there is, line ends in all forms among them, `size` bytes in all.
inline std::string EveryByte(std::size_t size) {
  std::string bytes;
  bytes.reserve(size);
  for (std::size_t at = 0; at < size; ++at) {
    bytes.push_back(static_cast<char>((at * 7 + at / 256 + at / 65536) & 0xFF));
  }
  return bytes;
}

class Transfer : public testing::Test {
 protected:
  // The error lines of the core log.
  Lines Errors() const {
    Lines lines = fLog.Lines();
    lines.erase(
        std::remove_if(lines.begin(), lines.end(),
                       [](const std::string& line) { return line.compare(0, 8, "[Error] ") != 0; }),
        lines.end());
    return lines;
  }

  bool Upload(const std::string& target, const std::string& bytes, const std::string& remoteFile) {
    return NZRVQDA20::TOSSpecific::FTPFile(target, fFolder.Write("local", bytes), remoteFile);
  }

  std::string LocalPath() const { return fFolder.PathOf("fetched"); }

  bool Download(const std::string& target, const std::string& remoteFile) {
    return NZRVQDA20::TOSSpecific::FTPFileFromZRV(target, LocalPath(), remoteFile);
  }

  test_support::LogCapture fLog;
  test_support::TemporaryFolder fFolder;
};

// The type that was in force at the last transfer, and that no command asked for an active
// connection.
inline void ExpectPassive(const Lines& commands, const std::string& type) {
  std::string lastType;
  bool isPassive = false;
  for (const std::string& command : commands) {
    if (command.compare(0, 5, "TYPE ") == 0) {
      lastType = command.substr(5);
    }
    isPassive = isPassive || command == "PASV" || command == "EPSV";
    EXPECT_NE("PORT", command.substr(0, 4));
    EXPECT_NE("EPRT", command.substr(0, 4));
  }
  EXPECT_TRUE(isPassive);
  EXPECT_EQ(type, lastType);
}

const char kNotConnected[] = "[Error] WindowsOS: ERROR: Couldn't connect to ZRV Service";
const char kNotFetched[] = "[Error] WindowsOS: ERROR: Couldn't connect to ZRV";
const char kNoDirectory[] = "[Error] TOSSpecific Error: Couldn't do GetCurrentDirectory.";
const char kNotEntered[] = "[Error] TOSSpecific Error: Couldn't do SetCurrentDirectory.";

}  // namespace transfer_test

#endif
