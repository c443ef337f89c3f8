// Every call of WinINet with all its arguments, as a wininet.dll that only records them is given
// (tests/modules/win32/RecordingWinInet.cpp). Nothing is closed, and nothing is unloaded.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/transfer/FtpClientChildren.h>

namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;
using transfer_test::ClientThatLacks;
using transfer_test::FtpClientCopy;
using transfer_test::Lines;

const char kOpens[] = "InternetOpenA 'InetURL/1.0' 0x0 null null 0x0";
const char kAsksDirectory[] = "FtpGetCurrentDirectoryA connection 260";
const char kSends[] = "FtpPutFileA connection 'local' 'remote' 0x2 0x0";
const char kFetches[] = "FtpGetFileA connection 'remote' 'local' new 0x80 0x1 0x0";
const char kAsksReply[] = "InternetGetLastResponseInfoA 1024";
const char kNoDirectory[] = "[Error] TOSSpecific Error: Couldn't do GetCurrentDirectory.";
const char kNotEntered[] = "[Error] TOSSpecific Error: Couldn't do SetCurrentDirectory.";

std::string Connects(const std::string& serverToPassword) {
  return "InternetConnectA session " + serverToPassword + " 0x1 0x8000000 0x0";
}

std::string Enters(const std::string& directory) {
  return "FtpSetCurrentDirectoryA connection '" + directory + "'";
}

std::string Debug(const std::string& text) { return "[Debug] TOSSpecific debug output: " + text; }

const std::string kDebugOfHost = Debug("username: userpassword: userpath: userport: remoteName:h");

// One copy for all: it takes a while, and keeps nothing between runs.
class WinInetCalls : public testing::Test {
 protected:
  static void SetUpTestSuite() { machine = new FtpClientCopy(ClientThatLacks(0)); }
  static void TearDownTestSuite() {
    delete machine;
    machine = nullptr;
  }

  static FtpClientCopy* machine;
};

FtpClientCopy* WinInetCalls::machine = nullptr;

TEST_F(WinInetCalls, OfAnUploadWithAllParts) {
  EXPECT_EQ(
      (Lines{kOpens, Connects("'h' 2121 'u' 'p'"), kAsksDirectory, Enters("/home/in"), kSends,
             "true", Debug("username:u userpassword:p userpath:/in userport:2121 remoteName:h")}),
      machine->Run("Uploads", "u:p@h:2121/in"));
}

TEST_F(WinInetCalls, OfAnUploadWithAPortAlone) {
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 null null"), kAsksDirectory, Enters("/home"), kSends,
                   "true", Debug("username: userpassword: userpath: userport:2121 remoteName:h")}),
            machine->Run("Uploads", "h:2121"));
}

TEST_F(WinInetCalls, OfAnUploadToABracketedAddress) {
  EXPECT_EQ(
      (Lines{kOpens, Connects("'::1' 21 'u' 'p'"), kAsksDirectory, Enters("/home"), kSends, "true",
             Debug("username:u userpassword:p userpath: userport:2121 remoteName:::1")}),
      machine->Run("Uploads", "u:p@[::1]:2121"));
}

TEST_F(WinInetCalls, OfAnUploadThatIsTriedTwice) {
  EXPECT_EQ((Lines{kOpens, Connects("'fe80::1:99' 21 'u' 'p'"), Connects("'fe80::1' 21 null null"),
                   kAsksDirectory, Enters("/home"), kSends, "true",
                   Debug("username:u userpassword:p userpath: userport:99 remoteName:fe80::1:99")}),
            machine->Run("Uploads", "u:p@fe80::1:99", "no-first"));
}

TEST_F(WinInetCalls, OfAnUploadToTheVendor) {
  const std::string target = "u:p@upload.zrv.example:99/in";
  EXPECT_EQ((Lines{kOpens, Connects("'" + target + "' 21 null null"), kSends, "false",
                   Debug("username: userpassword: userpath: userport: remoteName:" + target)}),
            machine->Run("Uploads", target, "no-transfer extended"));
}

TEST_F(WinInetCalls, EndWithTheFailedConnection) {
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 null null"), "false", kDebugOfHost,
                   "[Error] WindowsOS: ERROR: Couldn't connect to ZRV Service"}),
            machine->Run("Uploads", "h", "no-connection"));
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 '' ''"), "false",
                   "[Error] WindowsOS: ERROR: Couldn't connect to ZRV"}),
            machine->Run("Downloads", "h", "no-connection"));
}

TEST_F(WinInetCalls, GoOnWithoutDirectory) {
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 null null"), kAsksDirectory, Enters("/in"), kSends,
                   "true", Debug("username: userpassword: userpath:/in userport: remoteName:h"),
                   kNoDirectory, kNotEntered}),
            machine->Run("Uploads", "h/in", "no-directory no-entry"));
}

// Only the number 12003 stands for a reason of the server's own, and also behind an upload that
// worked.
TEST_F(WinInetCalls, AskForTheReplyBehindAnExtendedErrorOnly) {
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 null null"), kAsksDirectory, Enters("/home"), kSends,
                   kAsksReply, "false", kDebugOfHost, "[Error] TOSSpecific Error: 550 Not today."}),
            machine->Run("Uploads", "h", "no-transfer extended"));
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 null null"), kAsksDirectory, Enters("/home"), kSends,
                   kAsksReply, "true", kDebugOfHost, "[Error] TOSSpecific Error: 550 Not today."}),
            machine->Run("Uploads", "h", "extended"));
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 null null"), kAsksDirectory, Enters("/home"), kSends,
                   "false", kDebugOfHost}),
            machine->Run("Uploads", "h", "no-transfer"));
}

TEST_F(WinInetCalls, ReplyThatIsNotToBeHadIsEmpty) {
  EXPECT_EQ("[Error] TOSSpecific Error: ",
            machine->Run("Uploads", "h", "no-transfer extended no-reply").back());
}

TEST_F(WinInetCalls, TextsThatFillTheirBuffersEndThere) {
  const Lines lines = machine->Run("Uploads", "h/in", "long-directory extended long-reply");
  EXPECT_THAT(lines, Contains(Enters(std::string(260, 'x') + "/in")));
  EXPECT_EQ("[Error] TOSSpecific Error: " + std::string(1024, 'x'), lines.back());
}

TEST_F(WinInetCalls, OfADownloadWithABareHost) {
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 '' ''"), kFetches, "true"}),
            machine->Run("Downloads", "h"));
}

TEST_F(WinInetCalls, OfADownloadHaveTheCredentialsInTheOppositeSense) {
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 null null"), kFetches, "true"}),
            machine->Run("Downloads", "u:p@h"));
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 'u' ''"), kFetches, "true"}),
            machine->Run("Downloads", "u:h"));
}

TEST_F(WinInetCalls, OfADownloadThatFails) {
  EXPECT_EQ((Lines{kOpens, Connects("'h' 21 '' ''"), kFetches, "false"}),
            machine->Run("Downloads", "h", "no-transfer extended"));
}

// What uploads can do without, and what the other direction needs.
TEST(WinInetThatLacks, WhatUploadsCanDoWithoutIsAFailureOfThatStep) {
  EXPECT_EQ("true", FtpClientCopy(ClientThatLacks(4)).Run("Uploads", "h").at(5));
  const Lines noGet = FtpClientCopy(ClientThatLacks(5)).Run("Uploads", "h/in");
  EXPECT_THAT(noGet, Contains(Enters("/in")));
  EXPECT_THAT(noGet, Contains("true"));
  EXPECT_EQ(kNoDirectory, noGet.back());
  const Lines noSet = FtpClientCopy(ClientThatLacks(6)).Run("Uploads", "h");
  EXPECT_THAT(noSet, Contains("true"));
  EXPECT_EQ(kNotEntered, noSet.back());
  const Lines noReply = FtpClientCopy(ClientThatLacks(7)).Run("Uploads", "h", "extended");
  EXPECT_THAT(noReply, Contains("true"));
  EXPECT_EQ("[Error] TOSSpecific Error: ", noReply.back());
}

TEST(WinInetThatLacks, WhatUploadsNeedIsNoMatterToADownload) {
  EXPECT_EQ("true", FtpClientCopy(ClientThatLacks(3)).Run("Downloads", "h").at(3));
}

}  // namespace
