// The exchange over the wire, with a BMC that answers well, badly, short, late or not at all.

#include <algorithm>
#include <chrono>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#if defined(_WIN32)
#include <winsock2.h>
#else
#include <netinet/in.h>
#endif

#include <qdacore/frame/TRootObject.h>
#include <qdacore/ipmi/IIPMILan.h>
#include <tests/ipmi/SampleFrames.h>
#include <tests/ipmi/ScriptedBmc.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace ipmi_test;

// A client whose socket is closed at the end of the scope.
class Client {
 public:
  Client() {
    IIPMILan::Initialize();
    lan = TRootObject::GetipmiLanIns();
  }
  ~Client() {
    lan->closeSocket();
    delete lan;
  }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  // 0 when it returns true; what is thrown otherwise.
  int Connect(const std::string& address) {
    const auto begin = std::chrono::steady_clock::now();
    int result = 0;
    try {
      EXPECT_TRUE(lan->IpmilanOpenConnect(address, "admin", "secret"));
    } catch (int error) {
      result = error;
    }
    waited = std::chrono::steady_clock::now() - begin;
    return result;
  }

  IIPMILan* lan;
  std::chrono::steady_clock::duration waited{};
};

TEST(ScriptedBmc, ThatAnswersWellGetsTheFourRequestsByteForByte) {
  ScriptedBmc bmc(GoodScript());
  QDA_NEEDS_BMC(bmc);
  Client client;
  EXPECT_EQ(0, client.Connect(bmc.Address()));
  const std::vector<std::string> requests = bmc.Requests();
  ASSERT_EQ(4u, requests.size());
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(Hex(SampleRequests()[i]), Hex(requests[i]));
  }
  EXPECT_TRUE(bmc.HadOnePeer());
  EXPECT_TRUE(client.lan->getipmiLanStatus());
  char id[4];
  client.lan->getIPMISessionID(id, 4);
  EXPECT_EQ("c1 c2 c3 c4", Hex(std::string(id, 4)));
  EXPECT_EQ(3u, client.lan->getSeqNum());
}

TEST(ScriptedBmc, CanBeAskedOnWithThePieces) {
  std::vector<BmcStep> script = GoodScript();
  script.push_back({{"more"}, 0});
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  Client client;
  ASSERT_EQ(0, client.Connect(bmc.Address()));
  const sockaddr_in server = client.lan->getSaServer();
  EXPECT_EQ(AF_INET, server.sin_family);
  EXPECT_EQ(623, ntohs(server.sin_port));
#if defined(_WIN32)
  const SOCKET socket = client.lan->getTheSocket();
#else
  const int socket = static_cast<int>(client.lan->getTheSocket());
#endif
  EXPECT_EQ(3,
            sendto(socket, "ask", 3, 0, reinterpret_cast<const sockaddr*>(&server), sizeof server));
  char reply[100];
  EXPECT_EQ(4, recv(socket, reply, sizeof reply, 0));
  EXPECT_EQ("more", std::string(reply, 4));
  EXPECT_EQ("ask", bmc.Requests().at(4));
  EXPECT_TRUE(bmc.HadOnePeer());
}

TEST(ScriptedBmc, ClosedSocketCannotBeClosedAgain) {
  ScriptedBmc bmc(GoodScript());
  QDA_NEEDS_BMC(bmc);
  Client client;
  ASSERT_EQ(0, client.Connect(bmc.Address()));
  const std::uint64_t socket = client.lan->getTheSocket();
  EXPECT_FALSE(client.lan->closeSocket());
  EXPECT_EQ(socket, client.lan->getTheSocket());
  EXPECT_TRUE(client.lan->closeSocket());
  EXPECT_TRUE(client.lan->getipmiLanStatus());
}

TEST(ScriptedBmc, SecondExchangeLeavesTheFirstSocketOpen) {
  std::vector<BmcStep> script = GoodScript();
  const std::vector<BmcStep> again = GoodScript();
  script.insert(script.end(), again.begin(), again.end());
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  Client client;
  ASSERT_EQ(0, client.Connect(bmc.Address()));
  IIPMILan first;
  first = *client.lan;
  ASSERT_EQ(0, client.Connect(bmc.Address()));
  EXPECT_NE(first.getTheSocket(), client.lan->getTheSocket());
  EXPECT_FALSE(bmc.HadOnePeer());
  // Numbered from 1 again.
  EXPECT_EQ(Hex(SampleRequests()[2]), Hex(bmc.Requests().at(6)));
  EXPECT_EQ(Hex(SampleRequests()[3]), Hex(bmc.Requests().at(7)));
  EXPECT_FALSE(first.closeSocket());
}

class AtEachStep : public testing::TestWithParam<std::size_t> {};

TEST_P(AtEachStep, NoAnswerThrowsTheTimeoutAfter5Seconds) {
  std::vector<BmcStep> script = GoodScript();
  script[GetParam()].replies.clear();
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  const test_support::LogCapture log;
  Client client;
  EXPECT_EQ(TimedOutError(), client.Connect(bmc.Address()));
  EXPECT_GE(client.waited, std::chrono::milliseconds(4900));
  EXPECT_EQ(GetParam() + 1, bmc.Requests().size());
  const char* const step = GetParam() == 1 ? "Activate Session Request" : "Get Session Challenge";
  EXPECT_EQ(std::string("[Warning] ") + step +
                " : error code when receiving IP packet = " + std::to_string(TimedOutError()),
            log.Lines().back());
  EXPECT_EQ(GetParam() >= 2, client.lan->getipmiLanStatus());
  // The address stays, and the socket, which is the caller's to close.
  EXPECT_EQ(623, ntohs(client.lan->getSaServer().sin_port));
  EXPECT_FALSE(client.lan->closeSocket());
}

TEST_P(AtEachStep, LateAnswerCounts) {
  std::vector<BmcStep> script = GoodScript();
  script[GetParam()].delayMs = 600;
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  Client client;
  EXPECT_EQ(0, client.Connect(bmc.Address()));
  EXPECT_GE(client.waited, std::chrono::milliseconds(500));
  EXPECT_EQ(SampleRequests(), bmc.Requests());
}

TEST_P(AtEachStep, ShortAnswersAreTaken) {
  for (const std::size_t size : {0, 1, 13, 29, 30, 38}) {
    std::vector<BmcStep> script = GoodScript();
    script[GetParam()].replies = {SampleReplies()[GetParam()].substr(0, size)};
    ScriptedBmc bmc(script);
    QDA_NEEDS_BMC(bmc);
    Client client;
    EXPECT_EQ(0, client.Connect(bmc.Address())) << size;
    EXPECT_EQ(4u, bmc.Requests().size());
  }
}

TEST_P(AtEachStep, BadAnswerNeverEndsTheExchange) {
  std::vector<BmcStep> script = GoodScript();
  script[GetParam()].replies = {std::string(100, '\xFF')};
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  Client client;
  EXPECT_EQ(0, client.Connect(bmc.Address()));
  EXPECT_EQ(4u, bmc.Requests().size());
  EXPECT_TRUE(client.lan->getipmiLanStatus());
}

TEST_P(AtEachStep, HugeAnswerIsAFailedReceive) {
  std::vector<BmcStep> script = GoodScript();
  script[GetParam()].replies = {std::string(GetParam() % 2 ? 101 : 65507, '\x04')};
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  Client client;
  EXPECT_EQ(TooLongError(), client.Connect(bmc.Address()));
  EXPECT_EQ(GetParam() + 1, bmc.Requests().size());
}

INSTANTIATE_TEST_SUITE_P(Steps, AtEachStep, testing::Values(0, 1, 2, 3));

TEST(ScriptedBmc, SecondAnswerIsTakenForTheNextStep) {
  std::vector<BmcStep> script = GoodScript();
  // Nothing tells that it answers another request, or comes from elsewhere.
  script[1].replies = {SampleReplies()[1], WithCompletionCode(SampleReplies()[2], 29, 0xD4)};
  ScriptedBmc bmc(script);
  QDA_NEEDS_BMC(bmc);
  const test_support::LogCapture log;
  Client client;
  EXPECT_EQ(0, client.Connect(bmc.Address()));
  const std::vector<std::string> lines = log.Lines();
  EXPECT_EQ(1, std::count(lines.begin(), lines.end(),
                          "[Warning] Set Privilege Level : ChkResponse failed"));
}

TEST(ScriptedBmc, PasswordIsInTheLog) {
  ScriptedBmc bmc(GoodScript());
  QDA_NEEDS_BMC(bmc);
  const test_support::LogCapture log;
  Client client;
  EXPECT_EQ(0, client.Connect(bmc.Address()));
  const std::string text = log.Text();
  EXPECT_NE(std::string::npos, text.find(" password:secret"));
  EXPECT_NE(std::string::npos, text.find(" szBuf.successfully06 00 ffffffff 07 04 02 00 00 00 "));
  EXPECT_NE(std::string::npos, text.find(" 73 65 63 72 65 74 "));
}

}  // namespace
