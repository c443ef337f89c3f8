// qda put, fetch and host, with real servers at its side (tests/peers/with_ftp_peers.py).

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/peers/FtpPeers.h>
#include <tests/qda/QdaProgram.h>

namespace {

using namespace ftp_peers;
using qda_test::ParseJson;
using qda_test::RunQda;
using test_support::ChildResult;
using test_support::TemporaryFolder;
using testing::HasSubstr;

class QdaTransfer : public testing::Test {
 protected:
  // With the password of "tester" in the environment.
  ChildResult Put(const std::string& server, const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments = {"put", fFolder.Write("sent.bin", "a\r\nb\n"), server};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunQda(arguments, {{"QDA_FTP_PASSWORD", "se:cret"}});
  }

  TemporaryFolder fFolder;
};

TEST_F(QdaTransfer, PutStoresTheFileUnderItsOwnName) {
  const std::string server = At("plain") + "/in";
  const ChildResult run = Put(server, {"--user", "tester"});
  EXPECT_EQ("", run.error);
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("Server       " + server + "\nRemote file  sent.bin\nLocal file   " +
                fFolder.PathOf("sent.bin") + "\nBytes        5\n",
            run.output);
  EXPECT_EQ("a\r\nb\n", Stored("plain/tester/in/sent.bin"));
}

TEST_F(QdaTransfer, PutTakesThePasswordFromAFileAndAnotherName) {
  const ChildResult run =
      Put(At("plain"), {"--user", "tester", "--as", "other", "-o", "json", "--password-file",
                        fFolder.Write("password", "se:cret\n")});
  EXPECT_EQ(0, run.exitCode) << run.error;
  EXPECT_EQ((nlohmann::json{{"server", At("plain")},
                            {"remoteFile", "other"},
                            {"localFile", fFolder.PathOf("sent.bin")},
                            {"bytes", 5}}),
            ParseJson(run.output));
  EXPECT_EQ("a\r\nb\n", Stored("plain/tester/other"));
}

TEST_F(QdaTransfer, PutWithoutUserIsAnonymous) {
  QDACORE_NEEDS_PEER("plain_21");
  EXPECT_EQ(0, Put(Address("plain") + "/in").exitCode);
  EXPECT_EQ("a\r\nb\n", Stored("plain/anonymous/in/sent.bin"));
}

TEST_F(QdaTransfer, PutTellsOfADirectoryThatItWasNotLetInto) {
  const ChildResult run = Put(At("plain") + "/missing", {"--user", "tester", "--as", "astray"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, HasSubstr("the server does not let us into the directory "
                                   "(kQDAStatusNotFound); the file is where the login leads"));
  EXPECT_EQ("a\r\nb\n", Stored("plain/tester/astray"));
}

TEST_F(QdaTransfer, PutTellsOfARefusedLogin) {
  const ChildResult run = Put(At("plain"), {"--user", "nobody-here"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_THAT(run.error, HasSubstr("the server cannot be reached, or refuses the login "
                                   "(kQDAStatusConnectionFailed)"));
}

TEST_F(QdaTransfer, PutTellsWhatTheServerSaid) {
  const ChildResult run = Put(At("script"), {"--user", "stor550"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, HasSubstr("the server says \"550 Quota of seven bytes is used up.\" "
                                   "(kQDAStatusTransferFailure)"));
}

TEST_F(QdaTransfer, PutTellsOfAMissingFile) {
  const ChildResult run = RunQda({"put", fFolder.PathOf("missing"), Address("plain")});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, HasSubstr("may not be read (kQDAStatusFileNotFound)"));
}

TEST_F(QdaTransfer, PasswordNeverStandsInOutputOrLog) {
  const std::string log = fFolder.PathOf("run.log");
  const ChildResult run = Put(At("plain"), {"--user", "tester", "--log", log});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(run.output + run.error + test_support::ReadTextFile(log),
              testing::Not(HasSubstr("se:cret")));
}

TEST_F(QdaTransfer, FetchWritesAFileAndNotTwice) {
  QDACORE_NEEDS_PEER("plain_21");
  Store("plain/anonymous/read.me", "text\n");
  const std::string local = fFolder.PathOf("here");
  const ChildResult first = RunQda({"fetch", Address("plain"), "read.me", local});
  EXPECT_EQ(0, first.exitCode) << first.error;
  EXPECT_EQ("text\n", test_support::ReadTextFile(local));
  const ChildResult second = RunQda({"fetch", Address("plain"), "read.me", local});
  EXPECT_EQ(1, second.exitCode);
  EXPECT_THAT(second.error, HasSubstr("it is there already (kQDAStatusAlreadyExists)"));
  EXPECT_EQ("text\n", test_support::ReadTextFile(local));
}

TEST_F(QdaTransfer, FetchTellsOfAMissingFile) {
  QDACORE_NEEDS_PEER("plain_21");
  const std::string local = fFolder.PathOf("here");
  const ChildResult run = RunQda({"fetch", Address("plain"), "missing", local});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, HasSubstr("the server refused it, or the connection broke "
                                   "(kQDAStatusTransferFailure)"));
  EXPECT_FALSE(test_support::PathExists(local));
}

struct UsageRow {
  const char* what;
  std::vector<std::string> arguments;
  const char* error;
};

void PrintTo(const UsageRow& row, std::ostream* stream) { *stream << row.what; }

class TransferUsage : public testing::TestWithParam<UsageRow> {};

TEST_P(TransferUsage, IsExitCode2AndAMessage) {
  const ChildResult run = RunQda(GetParam().arguments);
  EXPECT_EQ(2, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_THAT(run.error, HasSubstr(GetParam().error));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TransferUsage,
    testing::Values(UsageRow{"password in an argument", {"put", "f", "u:p@h"}, "--user"},
                    UsageRow{"port without account", {"put", "f", "h:2121"}, "a port counts only"},
                    UsageRow{"password without account",
                             {"put", "f", "h", "--password-file", "p"},
                             "--password-file needs --user"},
                    UsageRow{"account at a download", {"fetch", "u:p@h", "f"}, "anonymous"},
                    UsageRow{"port at a download", {"fetch", "h:2121", "f"}, "port 21"}));

// Names are bytes, and need not be UTF-8.
TEST(QdaPut, FileThatIsNotThereIsToldWhateverItsName) {
  const ChildResult run = RunQda({"put", "\xe4\xff.bin", "127.0.0.1"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, HasSubstr("it is not there, is no file or may not be read "
                                   "(kQDAStatusFileNotFound)"));
}

TEST(QdaHost, NameThatResolves) {
  const ChildResult run = RunQda({"host", "localhost", "21"});
  EXPECT_EQ(0, run.exitCode) << run.error;
  EXPECT_EQ("Host      localhost\nService   21\nResolves  yes\nCode      0\n", run.output);
}

TEST(QdaHost, ServiceThatIsUnknown) {
  const ChildResult run = RunQda({"host", "127.0.0.1", "no-such-service", "-o", "json"});
  EXPECT_EQ(1, run.exitCode);
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_EQ(false, json["resolves"]);
  EXPECT_NE(0, json["code"]);
  EXPECT_THAT(run.error, HasSubstr("service \"no-such-service\" is unknown (kQDAStatusNotFound)"));
}

}  // namespace
