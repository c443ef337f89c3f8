// What is logged, thrown and kept when a step fails.

#include <cerrno>
#include <string>

#include <gtest/gtest.h>

#include <tests/ipmi/LanFakes.h>

namespace {

using namespace ipmi_test;

// The exchange's lines from the first send on, with their severities, and what failed in between.
Lines LinesFromFirstSend(const FakeLan& fake) {
  return Lines(fake.log.lines.begin() + 4, fake.log.lines.end());
}

bool Holds(const Lines& lines, const std::string& line) {
  for (const std::string& candidate : lines) {
    if (candidate == line) {
      return true;
    }
  }
  return false;
}

TEST(IIPMILanFailure, OfTheTimeoutIsLoggedWithErrnoAndCarriesOn) {
  FakeLan fake;
  fake.network.failTimeout = true;
  errno = 42;
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ("3 setsockopt fail", fake.log.lines[4]);
  EXPECT_EQ("1 setsockopt fail : error code  = 42", fake.log.lines[5]);
  EXPECT_EQ("3 Get Session Challenge: complete to send packet", fake.log.lines[6]);
}

struct SendRow {
  std::size_t request;
  const char* before;
  const char* line;
};

TEST(IIPMILanFailure, OfASendIsLoggedAndCarriesOnToTheReceive) {
  const SendRow rows[] = {{1, "3 Get Session Challenge: complete to send packet",
                           "3 Get Session Challenge : SOCKET_ERROR"},
                          {2, "3 Activate Session Request : complete to send packet",
                           "3 Activate Session Request : SOCKET_ERROR"},
                          {3, "3 Set Privilege Level", "3 Set Privilege Level : SOCKET_ERROR"},
                          {4, "3 Seqnum2", "3 Send IPMI command :  SOCKET_ERROR"}};
  for (const SendRow& row : rows) {
    SCOPED_TRACE(row.line);
    FakeLan fake;
    fake.network.failedSends = {row.request};
    EXPECT_EQ(0, fake.Connect());
    EXPECT_EQ(SampleRequests(), fake.network.sent);
    // One line more than without the failure, behind that of the send.
    ASSERT_EQ(16u, fake.log.lines.size());
    std::size_t at = 0;
    while (at + 1 < fake.log.lines.size() && fake.log.lines[at] != row.before) {
      ++at;
    }
    EXPECT_EQ(row.line, fake.log.lines[at + 1]);
  }
}

struct ReceiveRow {
  std::size_t replies;
  const char* line;
  const char* sessionID;
  bool status;
  std::uint32_t next;
};

TEST(IIPMILanFailure, OfAReceiveThrowsThePlainNumber) {
  const char* const challenge =
      "1 Get Session Challenge : error code when receiving IP packet = 4711";
  const ReceiveRow rows[] = {
      {0, challenge, "00 00 00 00", false, 1},
      {1, "1 Activate Session Request : error code when receiving IP packet = 4711", "00 00 00 00",
       false, 1},
      // The first step's text for the third and the fourth, as it is meant.
      {2, challenge, "c1 c2 c3 c4", true, 2},
      {3, challenge, "c1 c2 c3 c4", true, 3}};
  for (const ReceiveRow& row : rows) {
    SCOPED_TRACE(row.replies);
    FakeLan fake(std::vector<std::string>(
        SampleReplies().begin(),
        SampleReplies().begin() + static_cast<std::ptrdiff_t>(row.replies)));
    EXPECT_EQ(FakeNetwork::kTimedOut, fake.Connect());
    EXPECT_EQ(row.line, fake.log.lines.back());
    EXPECT_EQ(row.replies + 1, fake.network.sent.size());
    // The socket stays open and is the caller's, and all that was set stays.
    EXPECT_EQ("receive 17 100", fake.network.calls.back());
    EXPECT_EQ(17u, fake.lan->getTheSocket());
    EXPECT_EQ(row.sessionID, Hex(fake.SessionID()));
    EXPECT_EQ(row.status, fake.lan->getipmiLanStatus());
    EXPECT_EQ(row.next, fake.lan->getSeqNum());
    char text[40];
    fake.lan->getIPMIAddress(text, 0);
    EXPECT_EQ("192.0.2.7" + std::string(31, '\0'), std::string(text, sizeof text));
    fake.lan->getBMCPassword(text, 0);
    EXPECT_EQ("secret" + std::string(14, '\0'), std::string(text, 20));
  }
}

TEST(IIPMILanFailure, OfASendAndItsReceiveTogetherThrowsThatOfTheReceive) {
  FakeLan fake(std::vector<std::string>{});
  fake.network.failedSends = {1};
  EXPECT_EQ(FakeNetwork::kTimedOut, fake.Connect());
  EXPECT_EQ((Lines{"3 Get Session Challenge: complete to send packet",
                   "3 Get Session Challenge : SOCKET_ERROR",
                   "1 Get Session Challenge : error code when receiving IP packet = 4711"}),
            LinesFromFirstSend(fake));
}

TEST(IIPMILanFailure, OfTheSecondCheckIsADebugLine) {
  std::vector<std::string> replies = SampleReplies();
  replies[1] = WithCompletionCode(replies[1], 29, 0x81);
  FakeLan fake(replies);
  EXPECT_EQ(0, fake.Connect());
  const Lines lines = LinesFromFirstSend(fake);
  EXPECT_EQ("3 Activate Session Request : ChkResponse failed", lines.at(4));
  EXPECT_EQ("3 Receive activate session response from BMC : complete", lines.at(5));
  EXPECT_EQ(SampleRequests(), fake.network.sent);
}

TEST(IIPMILanFailure, OfTheThirdCheckIsAWarning) {
  std::vector<std::string> replies = SampleReplies();
  replies[2] = WithCompletionCode(replies[2], 29, 0x81);
  FakeLan fake(replies);
  EXPECT_EQ(0, fake.Connect());
  const Lines lines = LinesFromFirstSend(fake);
  EXPECT_EQ("1 Set Privilege Level : ChkResponse failed", lines.at(8));
  EXPECT_EQ("3 Receive BMC response from SET session privilege level", lines.at(9));
  // A session that was refused the level still reads as good.
  EXPECT_TRUE(fake.lan->getipmiLanStatus());
}

TEST(IIPMILanFailure, OfTheFourthCheckIsAWarningWithTheTextOfAnotherStep) {
  std::vector<std::string> replies = SampleReplies();
  replies[3] = With(replies[3], 55, 0);
  FakeLan fake(replies);
  EXPECT_EQ(0, fake.Connect());
  const Lines lines = LinesFromFirstSend(fake);
  EXPECT_EQ("1 Activate Session Request : ChkResponse failed", lines.at(10));
  EXPECT_EQ(0u, lines.at(11).find("3 szBuf.successfully06 00 "));
}

TEST(IIPMILanFailure, FourthReplysCompletionCodeDoesNotCount) {
  std::vector<std::string> replies = SampleReplies();
  // No such record: the log is empty.
  replies[3] = WithCompletionCode(replies[3], 29, 0xCB);
  FakeLan fake(replies);
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ(15u, fake.log.lines.size());
}

TEST(IIPMILanFailure, OfTheFirstReplyIsNotNoticed) {
  std::vector<std::string> replies = SampleReplies();
  // A completion code, and a wrong checksum besides.
  replies[0] = With(replies[0], 20, 0x81);
  FakeLan fake(replies);
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ(15u, fake.log.lines.size());
  EXPECT_EQ(SampleRequests(), fake.network.sent);
}

TEST(IIPMILanFailure, OfEveryCheckStillReturnsTrueWithTheStatusFalse) {
  std::vector<std::string> replies = SampleReplies();
  for (std::size_t i = 1; i < 4; ++i) {
    replies[i] = With(replies[i], replies[i].size() - 1, 0x5A);
  }
  FakeLan fake(replies);
  EXPECT_EQ(0, fake.Connect());
  EXPECT_FALSE(fake.lan->getipmiLanStatus());
  EXPECT_TRUE(Holds(fake.log.lines, "3 Activate Session Request : ChkResponse failed"));
  EXPECT_TRUE(Holds(fake.log.lines, "1 Set Privilege Level : ChkResponse failed"));
  EXPECT_TRUE(Holds(fake.log.lines, "1 Activate Session Request : ChkResponse failed"));
  EXPECT_EQ("c1 c2 c3 c4", Hex(fake.SessionID()));
}

}  // namespace
