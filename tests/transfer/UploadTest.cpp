// Uploads to real servers: what each was told, and what it stored.

#include <tests/transfer/TransferFixture.h>

namespace {

using namespace transfer_test;
using namespace ftp_peers;
using testing::Contains;
using testing::HasSubstr;

class UploadTo : public Transfer {};

TEST_F(UploadTo, NamedUsersServerIsReachedAtItsPortAndInItsDirectory) {
  const Seen seen("plain");
  EXPECT_TRUE(Upload("tester:se:cret@" + At("plain") + "/in/box", EveryByte(3000000), "sent"));
  EXPECT_TRUE(EveryByte(3000000) == Stored("plain/tester/in/box/sent"));
  EXPECT_EQ((Lines{"USER tester", "PASS se:cret", "CWD //in/box", "STOR sent"}), seen.Main());
  ExpectPassive(seen.All(), "I");
  EXPECT_EQ((Lines{"[Debug] TOSSpecific debug output: username:tester userpassword:se:cret "
                   "userpath:/in/box userport:" +
                   Fact("plain_port") + " remoteName:" + Address("plain")}),
            fLog.Lines());
}

TEST_F(UploadTo, WorkingDirectoryIsSetToItselfWithoutAPath) {
  const Seen seen("plain");
  EXPECT_TRUE(Upload("tester:se:cret@" + At("plain"), "x", "at-home"));
  EXPECT_EQ("x", Stored("plain/tester/at-home"));
  EXPECT_EQ((Lines{"USER tester", "PASS se:cret", "CWD /", "STOR at-home"}), seen.Main());
}

TEST_F(UploadTo, AnonymousUserGoesToPort21WhateverThePort) {
  QDACORE_NEEDS_PEER("plain_21");
  const Seen seen("plain");
  // Nothing listens at that port.
  EXPECT_TRUE(Upload(Address("plain") + ":1/in", "anonymous bytes", "sent"));
  EXPECT_EQ("anonymous bytes", Stored("plain/anonymous/in/sent"));
  const Lines told = seen.Main();
  EXPECT_EQ("USER anonymous", told.at(0));
  EXPECT_EQ((Lines{"CWD //in", "STOR sent"}), Lines(told.begin() + 2, told.end()));
  ExpectPassive(seen.All(), "I");
  EXPECT_THAT(fLog.Lines().at(0), HasSubstr(" userport:1 "));
}

struct SixRow {
  const char* what;
  const char* target;
  const char* stored;
};

void PrintTo(const SixRow& row, std::ostream* stream) { *stream << row.what; }

class UploadToSix : public Transfer, public testing::WithParamInterface<SixRow> {};

TEST_P(UploadToSix, GoesToPort21) {
  if (kIsWindows) {
    GTEST_SKIP() << "Wine's WinINet takes no IPv6 address as a server";
  }
  QDACORE_NEEDS_PEER("six_21");
  EXPECT_TRUE(Upload(GetParam().target, GetParam().what, "six"));
  EXPECT_EQ(GetParam().what, Stored(GetParam().stored));
  EXPECT_EQ(Lines(), Errors());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UploadToSix,
    testing::Values(SixRow{"bare", "::1/in", "six/anonymous/in/six"},
                    SixRow{"in brackets", "[::1]/in", "six/anonymous/in/six"},
                    SixRow{"port is not used", "[::1]:2121/in", "six/anonymous/in/six"},
                    SixRow{"account counts", "tester:se:cret@[::1]:2121/in", "six/tester/in/six"},
                    SixRow{"bare with account", "tester:se:cret@::1/in", "six/tester/in/six"},
                    // Nine groups are no address; less the last they are, and have no account.
                    SixRow{"second try is anonymous", "tester:se:cret@0:0:0:0:0:0:0:1:2121/in",
                           "six/anonymous/in/six"}));

TEST_F(UploadTo, ExistingFileIsReplaced) {
  Store("plain/tester/in/there", "longer than what comes");
  EXPECT_TRUE(Upload("tester:se:cret@" + At("plain") + "/in", "short", "there"));
  EXPECT_EQ("short", Stored("plain/tester/in/there"));
}

TEST_F(UploadTo, EmptyFileIsStored) {
  EXPECT_TRUE(Upload("tester:se:cret@" + At("plain"), "", "empty"));
  EXPECT_EQ("", Stored("plain/tester/empty"));
}

TEST_F(UploadTo, RemoteNameIsTakenLiterally) {
  for (const std::string name : {"with blanks", "per%41cent", "a;type=a", "hash#mark",
                                 "in/box/below", "+&=~", "caf\xC3\xA9"}) {
    const bool isAscii = name.find('\xC3') == std::string::npos;
    if (kIsWindows && !isAscii) {
      continue;  // there the name is text of the ANSI code page
    }
    const Seen seen("plain");
    EXPECT_TRUE(Upload("tester:se:cret@" + At("plain"), name, name)) << name;
    EXPECT_EQ(name, Stored("plain/tester/" + name));
    EXPECT_THAT(seen.All(), Contains("STOR " + name));
  }
}

TEST_F(UploadTo, MissingLocalFileIsNeverAnnounced) {
  const Seen seen("plain");
  EXPECT_FALSE(NZRVQDA20::TOSSpecific::FTPFile("tester:se:cret@" + At("plain"),
                                               fFolder.PathOf("missing"), "never"));
  EXPECT_FALSE(IsStored("plain/tester/never"));
  EXPECT_THAT(seen.All(), testing::Not(Contains("STOR never")));
  EXPECT_EQ(Lines(), Errors());
}

TEST_F(UploadTo, FolderIsNoLocalFile) {
  EXPECT_FALSE(NZRVQDA20::TOSSpecific::FTPFile("tester:se:cret@" + At("plain"),
                                               fFolder.MakeFolder("sub"), "never"));
  EXPECT_FALSE(IsStored("plain/tester/never"));
}

TEST_F(UploadTo, RefusedLoginIsAFailedConnection) {
  const Seen seen("plain");
  EXPECT_FALSE(Upload("tester:wrong@" + At("plain"), "x", "never"));
  EXPECT_EQ((Lines{"USER tester", "PASS wrong"}), seen.Main());
  EXPECT_EQ((Lines{kNotConnected}), Errors());
}

TEST_F(UploadTo, PortWhereNobodyListensIsAFailedConnection) {
  EXPECT_FALSE(Upload("tester:se:cret@" + Address("plain") + ":1", "x", "never"));
  EXPECT_EQ((Lines{kNotConnected}), Errors());
}

TEST_F(UploadTo, TextThatNamesNoServerIsAFailedConnection) {
  for (const char* target : {"", "u:p@", "/in", "two words", "a?b"}) {
    const std::size_t before = Errors().size();
    EXPECT_FALSE(Upload(target, "x", "never")) << target;
    EXPECT_EQ(before + 1, Errors().size()) << target;
    EXPECT_EQ(kNotConnected, Errors().back()) << target;
  }
}

TEST_F(UploadTo, MissingDirectoryIsToldAndTheFileGoesWhereTheLoginLeads) {
  const Seen seen("plain");
  EXPECT_TRUE(Upload("tester:se:cret@" + At("plain") + "/not/there", "x", "astray"));
  EXPECT_EQ("x", Stored("plain/tester/astray"));
  EXPECT_EQ((Lines{"USER tester", "PASS se:cret", "CWD //not/there", "STOR astray"}), seen.Main());
  EXPECT_EQ(kNotEntered, Errors().at(0));
}

TEST_F(UploadTo, FullDiskIsAFailure) {
  QDACORE_NEEDS_PEER("full");
  EXPECT_FALSE(Upload("full:se:cret@" + At("plain"), EveryByte(1000000), "too-much"));
  // What fits still does.
  EXPECT_TRUE(Upload("full:se:cret@" + At("plain"), "little", "too-much"));
  // Wine's server, which opens files for Windows programs, does not see a disk that is mounted for
  // this test alone.
  if (!kIsWindows) {
    EXPECT_EQ("little", Stored("plain/full/too-much"));
  }
}

TEST_F(UploadTo, ThrottledServerGetsEveryByte) {
  EXPECT_TRUE(Upload("tester:se:cret@" + At("slow") + "/in", EveryByte(400000), "slowly"));
  EXPECT_TRUE(EveryByte(400000) == Stored("slow/tester/in/slowly"));
}

TEST_F(UploadTo, VsftpdTakesANamedUsersFile) {
  QDACORE_NEEDS_PEER("vsftpd");
  EXPECT_TRUE(Upload("tester:se:cret@" + At("vsftpd") + "/in", EveryByte(100000), "sent"));
  EXPECT_TRUE(EveryByte(100000) == Stored("vsftpd/tester/in/sent"));
  EXPECT_EQ(Lines(), Errors());
}

TEST_F(UploadTo, VsftpdTakesAnAnonymousUsersFile) {
  QDACORE_NEEDS_PEER("vsftpd");
  QDACORE_NEEDS_PEER("vsftpd_21");
  EXPECT_TRUE(Upload(Address("vsftpd") + "/in", EveryByte(1000), "sent"));
  EXPECT_TRUE(EveryByte(1000) == Stored("vsftpd/anonymous/in/sent"));
  EXPECT_EQ(Lines(), Errors());
}

TEST_F(UploadTo, VsftpdsReasonIsLogged) {
  QDACORE_NEEDS_PEER("vsftpd");
  QDACORE_NEEDS_PEER("vsftpd_21");
  EXPECT_FALSE(Upload(Address("vsftpd"), "x", "not-at-the-root"));
  EXPECT_FALSE(IsStored("vsftpd/anonymous/not-at-the-root"));
  EXPECT_THAT(Errors().at(0), HasSubstr("TOSSpecific Error: 553 Could not create file."));
}

TEST_F(UploadTo, VsftpdsRefusedLoginIsAFailedConnection) {
  QDACORE_NEEDS_PEER("vsftpd");
  EXPECT_FALSE(Upload("tester:wrong@" + At("vsftpd"), "x", "never"));
  EXPECT_EQ((Lines{kNotConnected}), Errors());
}

// Whichever part of which text it stands in.
TEST_F(UploadTo, LineEndsNeverReachAServer) {
  using namespace std::string_literals;
  const Seen seen("plain");
  const std::string server = At("plain");
  for (const std::string& bad : {"\r\nDELE x\r\n"s, "\nDELE x"s, "\rDELE x"s, "\0DELE x"s}) {
    EXPECT_FALSE(Upload("tester" + bad + ":se:cret@" + server, "x", "never"));
    EXPECT_FALSE(Upload("tester:se:cret" + bad + "@" + server, "x", "never"));
    EXPECT_FALSE(Upload("tester:se:cret@" + server + "/in" + bad, "x", "never"));
    EXPECT_FALSE(Upload("tester:se:cret@" + server, "x", "never" + bad));
  }
  EXPECT_EQ(Lines(), seen.All());
}

}  // namespace
