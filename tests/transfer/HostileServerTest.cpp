// A server that misbehaves, one row a way (tests/peers/scripted_ftp.py): what the caller gets, what
// is logged, and what the server was told.

#include <tests/transfer/TransferFixture.h>

namespace {

using namespace transfer_test;
using namespace ftp_peers;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

struct Row {
  const char* user;  // what the server does follows from it
  bool isDone;
  std::vector<std::string> errors;  // each a part of its line
  const char* skippedOnWine;        // null, or why
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.user; }

class HostileServer : public Transfer, public testing::WithParamInterface<Row> {};

TEST_P(HostileServer, IsToldOf) {
  if (kIsWindows && GetParam().skippedOnWine) {
    GTEST_SKIP() << GetParam().skippedOnWine;
  }
  const Seen seen("script");
  const std::string name = std::string("from-") + GetParam().user;
  EXPECT_EQ(GetParam().isDone,
            Upload(GetParam().user + std::string(":p@") + At("script") + "/in", "bytes", name));
  const Lines errors = Errors();
  EXPECT_EQ(GetParam().errors.size(), errors.size());
  for (std::size_t at = 0; at < std::min(errors.size(), GetParam().errors.size()); ++at) {
    EXPECT_THAT(errors[at], HasSubstr(GetParam().errors[at]));
  }
  EXPECT_EQ(GetParam().isDone, IsStored("script/" + name) && Stored("script/" + name) == "bytes");
  const Lines told = seen.All();
  // One connection, whatever happens to it.
  EXPECT_EQ(1, std::count(told.begin(), told.end(), "CONNECTED"));
  EXPECT_THAT(told, Not(Contains("FOREIGN ADDRESS WAS FOLLOWED")));
  EXPECT_THAT(told, Not(Contains(testing::StartsWith("DELE"))));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HostileServer,
    testing::Values(
        Row{"good", true, {}, nullptr}, Row{"login530", false, {kNotConnected}, nullptr},
        Row{"hangpass", false, {kNotConnected}, nullptr},
        Row{"pwd500", true, {kNoDirectory}, nullptr}, Row{"pwdlong", true, {kNoDirectory}, nullptr},
        Row{"pwdcr",
            true,
            {kNoDirectory},
            "Wine's WinINet drops a lone carriage return from a reply"},
        Row{"cwd550", true, {kNotEntered}, nullptr},
        Row{"stor550", false, {"TOSSpecific Error: 550 Quota of seven bytes is used up."}, nullptr},
        Row{"stormany", false, {"TOSSpecific Error: 550"}, nullptr},
        Row{"stor530",
            false,
            {"TOSSpecific Error: 530 Not with that account."},
            "Wine's WinINet takes 530 for a failed login, and so for no reason of the server's "
            "own"},
        Row{"stor421", false, {"TOSSpecific Error: 421 Going down now."}, nullptr},
        Row{"pasv500", false, {"TOSSpecific Error: 500 Only active."}, nullptr},
        Row{"foreign", true, {}, "Wine's WinINet follows a foreign address in a passive reply"},
        Row{"hangcwd", false, {kNotEntered}, nullptr}, Row{"hangpasv", false, {}, nullptr},
        Row{"hangstor", false, {}, nullptr}, Row{"hangmid", false, {}, nullptr}));

// Wine's WinINet gives the last line only; both have that.
TEST_F(Transfer, ReplyOfTwoLinesIsLogged) {
  EXPECT_FALSE(Upload("stormany:p@" + At("script"), "bytes", "two-lines"));
  EXPECT_THAT(fLog.Text(), HasSubstr("550 Second of two lines."));
}

// Taken whole, and then refused.
TEST_F(Transfer, RefusalAfterTheLastByteIsAFailure) {
  EXPECT_FALSE(Upload("late550:p@" + At("script"), "bytes", "late"));
  EXPECT_THAT(Errors().at(0), HasSubstr("TOSSpecific Error: 550 Came in, was not kept."));
}

TEST_F(Transfer, HangUpInTheMiddleOfMuchIsAFailure) {
  EXPECT_FALSE(Upload("hangmid:p@" + At("script"), EveryByte(8000000), "much"));
  EXPECT_FALSE(IsStored("script/much"));
}

TEST_F(Transfer, GreetingThatRefusesIsAFailedConnection) {
  EXPECT_FALSE(Upload("u:p@" + At("script", "_port_421"), "x", "never"));
  EXPECT_EQ((Lines{kNotConnected}), Errors());
}

TEST_F(Transfer, ServerThatHangsUpWithoutAWordIsAFailedConnection) {
  EXPECT_FALSE(Upload("u:p@" + At("script", "_port_silent_end"), "x", "never"));
  EXPECT_EQ((Lines{kNotConnected}), Errors());
}

TEST_F(Transfer, GreetingWithoutAnEndIsAFailedConnection) {
  if (kIsWindows) {
    GTEST_SKIP() << "Wine's WinINet reads a greeting for as long as it goes on";
  }
  EXPECT_FALSE(Upload("u:p@" + At("script", "_port_endless"), "x", "never"));
  EXPECT_EQ((Lines{kNotConnected}), Errors());
}

}  // namespace
