// Servers as an operator writes them, and failures in words.

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qda/Progress.h>
#include <qda/TransferFailure.h>
#include <qda/TransferTarget.h>

namespace {

using namespace qda;
using testing::HasSubstr;
using testing::StartsWith;

TEST(UploadServer, IsTakenWhenItMeansWhatItSays) {
  for (const char* server :
       {"h", "h/in/box", "127.0.0.1", "::1", "[::1]/in", "upload.zrv.example"}) {
    EXPECT_EQ("", WhyNoUploadTarget(server, "")) << server;
  }
  for (const char* server : {"h", "h:2121", "h:2121/in:out:a", "::1", "[::1]"}) {
    EXPECT_EQ("", WhyNoUploadTarget(server, "u")) << server;
  }
}

TEST(UploadServer, IsRefusedWhenItWouldMeanSomethingElse) {
  EXPECT_THAT(WhyNoUploadTarget("u:p@h", ""), HasSubstr("--user"));
  EXPECT_THAT(WhyNoUploadTarget("h/a@b", ""), HasSubstr("--user"));
  EXPECT_THAT(WhyNoUploadTarget("h", "a:b"), HasSubstr("user name"));
  EXPECT_THAT(WhyNoUploadTarget("h", "a@b"), HasSubstr("user name"));
  EXPECT_THAT(WhyNoUploadTarget("h:2121", ""), HasSubstr("port"));
  EXPECT_THAT(WhyNoUploadTarget("[::1]:2121", "u"), HasSubstr("IPv6"));
  EXPECT_THAT(WhyNoUploadTarget("/in", ""), HasSubstr("no server"));
  EXPECT_NE("", WhyNoTargetPassword("a@b"));
  EXPECT_EQ("", WhyNoTargetPassword("a:/b"));
}

// A password in front of it would be looked up as a part of a name.
TEST(UploadServer, OfTheVendorTakesNoAccount) {
  EXPECT_THAT(WhyNoUploadTarget("upload.zrv.example", "u"), HasSubstr("no account"));
  EXPECT_THAT(WhyNoUploadTarget("upload.zrv.example/in", "u"), HasSubstr("name alone"));
  EXPECT_THAT(WhyNoUploadTarget("h", "upload.zrv.example"), HasSubstr("name alone"));
}

TEST(UploadTarget, HasAccountAndBrackets) {
  EXPECT_EQ("h:1/in", UploadTargetText("h:1/in", "", ""));
  EXPECT_EQ("u:p:q@h/in", UploadTargetText("h/in", "u", "p:q"));
  EXPECT_EQ("u:@h", UploadTargetText("h", "u", ""));
  EXPECT_EQ("[::1]/in", UploadTargetText("::1/in", "", ""));
  EXPECT_EQ("u:p@[::1]", UploadTargetText("[::1]", "u", "p"));
}

TEST(DownloadServer, IsANameAndNothingMore) {
  EXPECT_EQ("", WhyNoDownloadTarget("h"));
  EXPECT_EQ("", WhyNoDownloadTarget("127.0.0.1"));
  EXPECT_THAT(WhyNoDownloadTarget("u:p@h"), HasSubstr("anonymous"));
  for (const char* server : {"h:21", "::1", "[x]", "", "h/in"}) {
    EXPECT_NE("", WhyNoDownloadTarget(server)) << server;
  }
}

TEST(LastPart, StandsBehindEitherSeparator) {
  EXPECT_EQ("c", LastPartOf("c"));
  EXPECT_EQ("c", LastPartOf("a/b/c"));
  EXPECT_EQ("c", LastPartOf("a\\b\\c"));
  EXPECT_EQ("", LastPartOf("a/"));
}

TEST(TransferFailures, HaveAWordEach) {
  EXPECT_THAT(TransferFailure("WindowsOS: ERROR: Unable to load wininet.dll"),
              StartsWith("this machine has no FTP client (kQDAStatusINETNotFound)"));
  EXPECT_THAT(TransferFailure("WindowsOS: ERROR: Unable to initialize wininet.dll"),
              StartsWith("this machine's FTP client lacks functions"));
  EXPECT_THAT(TransferFailure("WindowsOS: ERROR: Couldn't establish Internet connection"),
              StartsWith("this machine's FTP client does not start"));
  EXPECT_THAT(TransferFailure("WindowsOS: ERROR: Couldn't connect to ZRV"),
              StartsWith("the server cannot be reached, or refuses the login"));
  EXPECT_EQ("the server says \"550 No.\" (kQDAStatusTransferFailure)",
            TransferFailure("TOSSpecific Error: 550 No.\r\n"));
  EXPECT_EQ(
      "the server does not let us into the directory; the server says \"550 No.\" "
      "(kQDAStatusTransferFailure)",
      TransferFailure("TOSSpecific Error: Couldn't do SetCurrentDirectory.; TOSSpecific "
                      "Error: 550 No."));
  EXPECT_THAT(TransferFailure(""), StartsWith("the server refused it, or the connection broke"));
  EXPECT_FALSE(IsAstray("TOSSpecific Error: Couldn't do GetCurrentDirectory."));
  EXPECT_TRUE(IsAstray("TOSSpecific Error: Couldn't do SetCurrentDirectory."));
}

TEST(RoundedSizeText, HasOneDigitBehindThePoint) {
  EXPECT_EQ("0 bytes", RoundedSizeText(0));
  EXPECT_EQ("1023 bytes", RoundedSizeText(1023));
  EXPECT_EQ("1.0 KiB", RoundedSizeText(1024));
  EXPECT_EQ("1.5 MiB", RoundedSizeText(1536 * 1024));
  EXPECT_EQ("2048.0 TiB", RoundedSizeText(std::uintmax_t(1) << 51));
}

}  // namespace
