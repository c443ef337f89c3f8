// qda bmc, with a BMC of the test's own.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/ipmi/SampleFrames.h>
#include <tests/ipmi/ScriptedBmc.h>
#include <tests/qda/QdaProgram.h>

namespace {

using namespace ipmi_test;
using qda_test::ParseJson;
using qda_test::RunQda;
using test_support::ChildResult;
using testing::HasSubstr;
using testing::StartsWith;

ChildResult RunBmc(const std::string& address, std::vector<std::string> more = {}) {
  std::vector<std::string> arguments = {"bmc", address, "--user", "admin"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return RunQda(arguments, {{"QDA_BMC_PASSWORD", "secret"}});
}

TEST(Bmc, SessionIsPrinted) {
  ScriptedBmc bmc(GoodScript());
  QDA_NEEDS_BMC(bmc);
  const ChildResult run = RunBmc(bmc.Address());
  EXPECT_EQ("", run.error);
  EXPECT_EQ("Address               " + bmc.Address() +
                "\n"
                "User                  admin\n"
                "Status                open\n"
                "Session ID            c1c2c3c4\n"
                "Next sequence number  3\n",
            run.output);
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(SampleRequests(), bmc.Requests());
}

TEST(Bmc, SessionIsPrintedAsJson) {
  ScriptedBmc bmc(GoodScript());
  QDA_NEEDS_BMC(bmc);
  const test_support::TemporaryFolder folder;
  // Before the variable, and with its line end.
  const std::string file = folder.Write("password", "secret\n");
  const ChildResult run =
      RunQda({"bmc", bmc.Address(), "--user", "admin", "-o", "json", "--password-file", file},
             {{"QDA_BMC_PASSWORD", "wrong"}});
  EXPECT_EQ("", run.error);
  EXPECT_EQ(0, run.exitCode);
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_EQ(5u, json.size());
  EXPECT_EQ(bmc.Address(), json["address"]);
  EXPECT_EQ("admin", json["user"]);
  EXPECT_EQ("open", json["status"]);
  EXPECT_EQ("c1c2c3c4", json["sessionId"]);
  EXPECT_EQ(3, json["nextSequenceNumber"]);
  EXPECT_EQ(SampleRequests(), bmc.Requests());
}

TEST(Bmc, UserMayHaveNoName) {
  ScriptedBmc bmc(GoodScript());
  QDA_NEEDS_BMC(bmc);
  const ChildResult run =
      RunQda({"bmc", bmc.Address(), "--user", ""}, {{"QDA_BMC_PASSWORD", "secret"}});
  EXPECT_EQ("", run.error);
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(run.output, HasSubstr("\nUser\nStatus                open\n"));
  EXPECT_EQ(std::string(16, '\0'), bmc.Requests().at(0).substr(21, 16));
}

// How much is logged does not change what is found.
TEST(Bmc, RefusedLevelIsDoubtfulAtEveryLogLevel) {
  const test_support::TemporaryFolder folder;
  const std::vector<std::vector<std::string>> logs = {
      {},
      {"--log", folder.PathOf("log"), "--log-level", "error"},
      {"--log", folder.PathOf("log"), "--log-level", "debug"}};
  for (const std::vector<std::string>& log : logs) {
    SCOPED_TRACE(log.empty() ? "no log" : log.back());
    std::vector<BmcStep> script = GoodScript();
    script[2].replies = {WithCompletionCode(SampleReplies()[2], 29, 0x81)};
    ScriptedBmc bmc(script);
    QDA_NEEDS_BMC(bmc);
    const ChildResult run = RunBmc(bmc.Address(), log);
    EXPECT_EQ(1, run.exitCode);
    EXPECT_THAT(run.output, HasSubstr("Status                doubtful\n"));
    EXPECT_EQ("qda: BMC at " + bmc.Address() +
                  ": Set Session Privilege Level was refused, or its reply is damaged "
                  "(kQDAStatusConnectionFailed)\n",
              run.error);
  }
}

TEST(Bmc, DamagedLastReplyIsDoubtful) {
  std::vector<BmcStep> script = GoodScript();
  script[3].replies = {With(SampleReplies()[3], 55, 0)};
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  const ChildResult run = RunBmc(bmc.Address(), {"-o", "json"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("doubtful", ParseJson(run.output)["status"]);
  EXPECT_EQ("qda: BMC at " + bmc.Address() +
                ": the reply to Get SEL Entry is damaged (kQDAStatusConnectionFailed)\n",
            run.error);
}

TEST(Bmc, AnswersThatAreNoneAreUnconfirmed) {
  ScriptedBmc bmc(std::vector<BmcStep>(4, BmcStep{{std::string(60, '\x55')}, 0}));
  QDA_NEEDS_BMC(bmc);
  const ChildResult run = RunBmc(bmc.Address());
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.output, HasSubstr("Status                unconfirmed\n"));
  EXPECT_THAT(run.error, HasSubstr(": it answered, but no reply passed its check "
                                   "(kQDAStatusConnectionFailed); user name or password may be "
                                   "wrong, or it is no BMC\n"));
}

TEST(Bmc, HugeAnswerIsToldInWords) {
  std::vector<BmcStep> script = GoodScript();
  script[1].replies = {std::string(65507, '\x04')};
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  const ChildResult run = RunBmc(bmc.Address());
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ(
      "qda: BMC at " + bmc.Address() +
          ": Activate Session: the reply is longer than any that was asked for (socket error " +
          std::to_string(TooLongError()) + ", kQDAStatusConnectionFailed)\n",
      run.error);
}

struct SilentRow {
  std::size_t step;
  const char* request;
  const char* advice;
};

void PrintTo(const SilentRow& row, std::ostream* stream) { *stream << row.request; }

class SilentBmc : public testing::TestWithParam<SilentRow> {};

TEST_P(SilentBmc, IsToldWithWhatToTry) {
  std::vector<BmcStep> script = GoodScript();
  script[GetParam().step].replies.clear();
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  const ChildResult run = RunBmc(bmc.Address());
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ("qda: BMC at " + bmc.Address() + ": no reply to " + GetParam().request +
                " within 5 seconds (socket error " + std::to_string(TimedOutError()) +
                ", kQDAStatusConnectionFailed); " + GetParam().advice + "\n",
            run.error);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, SilentBmc,
    testing::Values(
        SilentRow{0, "Get Session Challenge",
                  "check the address, that the BMC has IPMI over LAN enabled, and that UDP port "
                  "623 is open"},
        SilentRow{1, "Activate Session",
                  "user name or password may be wrong, or the BMC refuses straight password "
                  "authentication"},
        SilentRow{2, "Set Session Privilege Level",
                  "the session was activated, but the BMC takes no messages that are numbered from "
                  "1"},
        SilentRow{3, "Get SEL Entry",
                  "the session was opened; nothing is sent twice, so try again"}));

TEST(BmcPassword, LongerThan16CharactersIsRefused) {
  const ChildResult run =
      RunQda({"bmc", "127.0.0.1", "--user", "admin"}, {{"QDA_BMC_PASSWORD", "0123456789abcdefg"}});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ(
      "qda: password: it is longer than 16 characters, the most that IPMI 1.5 takes "
      "(kQDAStatusInvalidFormat)\n",
      run.error);
}

TEST(BmcPassword, FileThatIsNotThereIsRefused) {
  const ChildResult run =
      RunQda({"bmc", "127.0.0.1", "--user", "admin", "--password-file", "no such file"}, {});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.error, StartsWith("qda: password file \"no such file\": it cannot be read: "));
}

TEST(BmcUsage, IsChecked) {
  const struct {
    std::vector<std::string> arguments;
    const char* error;
  } rows[] = {
      {{"--user", "admin"}, "ADDRESS is required"},
      {{"127.0.0.1"}, "--user is required"},
      {{"127.0.0.1", "--user", "0123456789abcdefg"},
       "--user: is longer than 16 characters, the most that IPMI takes"},
      {{"127.0.0.1", "--user", "a", "--password", "p"},
       "The following arguments were not expected: p --password"},
  };
  for (const auto& row : rows) {
    std::vector<std::string> arguments = {"bmc"};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    const ChildResult run = RunQda(arguments, {{"QDA_BMC_PASSWORD", ""}});
    EXPECT_EQ(2, run.exitCode);
    EXPECT_EQ(std::string("qda: ") + row.error + "; see \"qda --help\"\n", run.error);
  }
}

TEST(BmcUsage, AddressIsDottedDecimal) {
  for (const char* address :
       {"bmc.example", "1.2.3", "1.2.3.4.5", "256.0.0.1", "01.2.3.4", "1..2.3", "1.2.3.4 ",
        "0x7f.0.0.1", "1234.1.1.1", "1.2.3.", "::1", ""}) {
    const ChildResult run = RunQda({"bmc", address, "--user", "admin"}, {{"QDA_BMC_PASSWORD", ""}});
    EXPECT_EQ(2, run.exitCode);
    EXPECT_EQ(std::string("qda: ADDRESS: \"") + address +
                  "\" is no IPv4 address such as 192.0.2.7; names are not resolved; see \"qda "
                  "--help\"\n",
              run.error);
  }
}

}  // namespace
