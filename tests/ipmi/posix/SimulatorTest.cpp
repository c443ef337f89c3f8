// The exchange with a real simulator of a BMC.

#include <algorithm>
#include <chrono>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include <qdacore/ipmi/IIPMILan.h>
#include <tests/ipmi/SampleFrames.h>
#include <tests/ipmi/posix/Simulator.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace ipmi_test;

class SimulatorTest : public testing::Test {
 protected:
  SimulatorTest() { IIPMILan::Initialize(); }
  ~SimulatorTest() override {
    IIPMILan::GetInstance()->closeSocket();
    delete IIPMILan::GetInstance();
  }

  // What is thrown; 0 when it returns true.
  static int Connect(const std::string& address, const std::string& password = "secret") {
    try {
      EXPECT_TRUE(IIPMILan::GetInstance()->IpmilanOpenConnect(address, "admin", password));
      return 0;
    } catch (int error) {
      return error;
    }
  }

  static bool HasWarning(const test_support::LogCapture& log) {
    for (const std::string& line : log.Lines()) {
      if (line.find("[Warning]") != std::string::npos ||
          line.find("ChkResponse failed") != std::string::npos) {
        return true;
      }
    }
    return false;
  }
};

#define QDA_NEEDS_SIMULATOR(simulator, relay)                 \
  if (!Simulator::IsInstalled()) {                            \
    GTEST_SKIP() << "ipmi_sim is not here: install openipmi"; \
  }                                                           \
  if ((relay).Binding() == UdpSocket::kDenied) {              \
    GTEST_SKIP() << "port 623 takes administrator rights";    \
  }                                                           \
  ASSERT_TRUE((simulator).IsUp());                            \
  ASSERT_EQ(UdpSocket::kBound, (relay).Binding())

TEST_F(SimulatorTest, AnswersAllFourWhenTheNumbersAreAsItWants) {
  Simulator simulator;
  Relay relay(simulator.Address(), true);
  QDA_NEEDS_SIMULATOR(simulator, relay);
  const test_support::LogCapture log;
  EXPECT_EQ(0, Connect(relay.Address()));
  EXPECT_FALSE(HasWarning(log));
  EXPECT_TRUE(IIPMILan::GetInstance()->getipmiLanStatus());
  const std::vector<std::string> requests = relay.Requests();
  const std::vector<std::string> replies = relay.Replies();
  ASSERT_EQ(4u, requests.size());
  ASSERT_EQ(4u, replies.size());
  // The simulator's own words: the level is Administrator, and there is the entry.
  EXPECT_EQ("00 04", Hex(replies[2].substr(36, 2)));
  EXPECT_EQ("00 ff ff 01 00 02", Hex(replies[3].substr(36, 6)));
  char id[4];
  IIPMILan::GetInstance()->getIPMISessionID(id, 4);
  EXPECT_EQ(Hex(replies[1].substr(38, 4)), Hex(std::string(id, 4)));
  EXPECT_EQ(Hex(replies[0].substr(21, 4)), Hex(requests[1].substr(9, 4)));
  EXPECT_EQ(Hex(replies[0].substr(25, 16)), Hex(requests[1].substr(38, 16)));
}

TEST_F(SimulatorTest, IsSilentFromRequest3OnWithOurOwnNumbers) {
  Simulator simulator;
  Relay relay(simulator.Address(), false);
  QDA_NEEDS_SIMULATOR(simulator, relay);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(TimedOutError(), Connect(relay.Address()));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(4900));
  EXPECT_EQ(3u, relay.Requests().size());
  EXPECT_EQ(2u, relay.Replies().size());
  // The reply to Activate Session was good.
  EXPECT_TRUE(IIPMILan::GetInstance()->getipmiLanStatus());
}

TEST_F(SimulatorTest, IsSilentToAWrongPassword) {
  Simulator simulator;
  Relay relay(simulator.Address(), true);
  QDA_NEEDS_SIMULATOR(simulator, relay);
  EXPECT_EQ(TimedOutError(), Connect(relay.Address(), "wrong"));
  EXPECT_EQ(2u, relay.Requests().size());
  EXPECT_FALSE(IIPMILan::GetInstance()->getipmiLanStatus());
}

}  // namespace
