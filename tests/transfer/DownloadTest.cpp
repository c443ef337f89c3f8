// Downloads from real servers. They are at port 21, which takes root.

#include <tests/transfer/TransferFixture.h>

namespace {

using namespace transfer_test;
using namespace ftp_peers;
using test_support::PathExists;
using testing::Contains;
using testing::Not;

class DownloadFrom : public Transfer {};

TEST_F(DownloadFrom, BareHostIsAnonymousAndInTextMode) {
  QDACORE_NEEDS_PEER("plain_21");
  Store("plain/anonymous/in/text", "one\ntwo\n");
  const Seen seen("plain");
  EXPECT_TRUE(Download(Address("plain"), "in/text"));
  // On the wire a line ends in CR LF; the file has the host's own line ends.
  EXPECT_EQ(kIsWindows ? "one\r\ntwo\r\n" : "one\ntwo\n", Bytes(LocalPath()));
  EXPECT_EQ("USER anonymous", seen.Main().at(0));
  EXPECT_EQ("RETR in/text", seen.Main().back());
  ExpectPassive(seen.All(), "A");
  EXPECT_EQ(Lines(), fLog.Lines());
}

TEST_F(DownloadFrom, AccountThatIsGivenInFullIsNotUsed) {
  QDACORE_NEEDS_PEER("plain_21");
  Store("plain/anonymous/text", "anonymous\n");
  Store("plain/tester/text", "tester\n");
  const Seen seen("plain");
  EXPECT_TRUE(Download("tester:se:cret@" + Address("plain"), "text"));
  EXPECT_EQ("anonymous\n", test_support::ReadTextFile(LocalPath()));
  EXPECT_EQ("USER anonymous", seen.Main().at(0));
}

TEST_F(DownloadFrom, UserWithoutAtSignIsUsedWithAnEmptyPassword) {
  QDACORE_NEEDS_PEER("plain_21");
  const Seen seen("plain");
  EXPECT_FALSE(Download("tester:" + Address("plain"), "text"));
  EXPECT_EQ("USER tester", seen.Main().at(0));
  EXPECT_EQ((Lines{kNotFetched}), fLog.Lines());
  EXPECT_FALSE(PathExists(LocalPath()));
}

TEST_F(DownloadFrom, ExistingLocalFileIsLeftAlone) {
  QDACORE_NEEDS_PEER("plain_21");
  Store("plain/anonymous/text", "new\n");
  fFolder.Write("fetched", "old");
  const Seen seen("plain");
  EXPECT_FALSE(Download(Address("plain"), "text"));
  EXPECT_EQ("old", Bytes(LocalPath()));
  EXPECT_THAT(seen.All(), Not(Contains("RETR text")));
  EXPECT_EQ(Lines(), fLog.Lines());
}

TEST_F(DownloadFrom, MissingFileLeavesNothingBehindAndLogsNothing) {
  QDACORE_NEEDS_PEER("plain_21");
  const Seen seen("plain");
  EXPECT_FALSE(Download(Address("plain"), "missing"));
  EXPECT_THAT(seen.All(), Contains("RETR missing"));
  EXPECT_FALSE(PathExists(LocalPath()));
  EXPECT_EQ(Lines(), fLog.Lines());
}

TEST_F(DownloadFrom, LocalFolderThatIsMissingIsAFailure) {
  QDACORE_NEEDS_PEER("plain_21");
  Store("plain/anonymous/text", "new\n");
  EXPECT_FALSE(NZRVQDA20::TOSSpecific::FTPFileFromZRV(Address("plain"),
                                                      fFolder.PathOf("missing/fetched"), "text"));
}

TEST_F(DownloadFrom, ManyLinesComeWhole) {
  QDACORE_NEEDS_PEER("plain_21");
  std::string text;
  for (int line = 0; line < 40000; ++line) {
    text += "line " + std::to_string(line) + "\n";
  }
  Store("plain/anonymous/many", text);
  EXPECT_TRUE(Download(Address("plain"), "many"));
  EXPECT_TRUE(text == test_support::ReadTextFile(LocalPath()));
}

TEST_F(DownloadFrom, VsftpdGivesAFile) {
  QDACORE_NEEDS_PEER("vsftpd");
  QDACORE_NEEDS_PEER("vsftpd_21");
  Store("vsftpd/anonymous/text", "one line\n");
  EXPECT_TRUE(Download(Address("vsftpd"), "text"));
  EXPECT_EQ("one line\n", test_support::ReadTextFile(LocalPath()));
}

TEST_F(DownloadFrom, ServerThatHangsUpInTheMiddleLeavesNoHalfFile) {
  QDACORE_NEEDS_PEER("script_21");
  EXPECT_FALSE(Download(Address("script"), "hangmid.txt"));
  EXPECT_FALSE(PathExists(LocalPath()));
}

TEST_F(DownloadFrom, ServersReasonIsNotLogged) {
  QDACORE_NEEDS_PEER("script_21");
  EXPECT_FALSE(Download(Address("script"), "missing.txt"));
  EXPECT_EQ(Lines(), fLog.Lines());
}

TEST_F(DownloadFrom, ServerThatTurnsLinesIntoAFile) {
  QDACORE_NEEDS_PEER("script_21");
  EXPECT_TRUE(Download(Address("script"), "any.txt"));
  EXPECT_EQ(kIsWindows ? "one\r\ntwo\r\n" : "one\ntwo\n", Bytes(LocalPath()));
}

TEST_F(DownloadFrom, AddressThatCannotBeReachedIsAFailedConnection) {
  EXPECT_FALSE(Download("", "text"));
  EXPECT_EQ((Lines{kNotFetched}), fLog.Lines());
}

TEST_F(DownloadFrom, LineEndsNeverReachAServer) {
  const Seen seen("plain");
  for (const char* bad : {"\r", "\n", "\r\nDELE text"}) {
    EXPECT_FALSE(Download(Address("plain") + bad, "text"));
    EXPECT_FALSE(Download(Address("plain"), std::string("text") + bad));
  }
  EXPECT_EQ(Lines(), seen.All());
  EXPECT_FALSE(PathExists(LocalPath()));
}

}  // namespace
