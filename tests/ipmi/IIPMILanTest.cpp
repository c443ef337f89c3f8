// The client as its users have it, but for the exchange.

#include <cstdio>
#include <cstring>
#include <new>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#if defined(_WIN32)
#include <winsock2.h>
#else
#include <netinet/in.h>
#endif

#include <qdacore/frame/TRootObject.h>
#include <qdacore/ipmi/IIPMILan.h>
#include <tests/ipmi/SampleFrames.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace ipmi_test;

const std::uint64_t kNoSocket = ~std::uint64_t(0);

QDACORE_CHILD(AsksForTheClientTwice) {
  std::printf("%d %d\n", IIPMILan::GetInstance() == nullptr,
              TRootObject::GetipmiLanIns() == nullptr);
  IIPMILan::Initialize();
  std::printf("%d %d\n", IIPMILan::GetInstance() == nullptr,
              TRootObject::GetipmiLanIns() == IIPMILan::GetInstance());
  return 0;
}

TEST(IIPMILanInstance, IsNullUntilInitialize) {
  EXPECT_EQ("1 1\n0 1\n", test_support::RunChild("AsksForTheClientTwice").output);
}

// A client whose instance goes at the end of the scope.
class IIPMILanTest : public testing::Test {
 protected:
  IIPMILanTest() {
    IIPMILan::Initialize();
    lan = IIPMILan::GetInstance();
  }
  ~IIPMILanTest() override { delete lan; }

  std::string SessionID(int length) const {
    char id[32];
    std::memset(id, '.', sizeof id);
    lan->getIPMISessionID(id, length);
    return Hex(std::string(id, sizeof id)).substr(0, 20 * 3 - 1);
  }

  // Passes a check, which sets the status.
  bool Pass() {
    std::string reply = SampleReplies()[1] + std::string(120, '\0');
    return lan->ChkResponse(&reply[0], 29, 0);
  }

  IIPMILan* lan;
};

TEST_F(IIPMILanTest, FreshOneIsZeroWithoutASocket) {
  EXPECT_EQ("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 2e", SessionID(19));
  char text[40];
  std::memset(text, '.', sizeof text);
  lan->getIPMIAddress(text, 40);
  EXPECT_EQ(std::string(40, '\0'), std::string(text, 40));
  lan->getBMCPassword(text, 20);
  EXPECT_EQ(std::string(20, '\0'), std::string(text, 20));
  EXPECT_FALSE(lan->getipmiLanStatus());
  EXPECT_EQ(kNoSocket, lan->getTheSocket());
  EXPECT_EQ(1u, lan->getSeqNum());
  const sockaddr_in address = lan->getSaServer();
  EXPECT_EQ(0, address.sin_family);
  EXPECT_EQ(0, address.sin_port);
  EXPECT_EQ(0u, address.sin_addr.s_addr);
  EXPECT_TRUE(lan->closeSocket());
}

TEST_F(IIPMILanTest, SecondInitializeMakesAnotherAndAbandonsTheFirst) {
  EXPECT_TRUE(Pass());
  EXPECT_EQ(1u, lan->getSeqNum());
  IIPMILan::Initialize();
  IIPMILan* const second = IIPMILan::GetInstance();
  EXPECT_NE(lan, second);
  EXPECT_EQ(second, TRootObject::GetipmiLanIns());
  EXPECT_FALSE(second->getipmiLanStatus());
  EXPECT_EQ(1u, second->getSeqNum());
  EXPECT_TRUE(lan->getipmiLanStatus());
  EXPECT_EQ(2u, lan->getSeqNum());
  delete second;
}

TEST_F(IIPMILanTest, ConstructedOneIsAsFresh) {
  alignas(IIPMILan) unsigned char memory[sizeof(IIPMILan)];
  std::memset(memory, 0xEE, sizeof memory);
  const IIPMILan* const made = new (memory) IIPMILan;
  EXPECT_FALSE(made->getipmiLanStatus());
  EXPECT_EQ(kNoSocket, made->getTheSocket());
  char id[19];
  made->getIPMISessionID(id, 19);
  EXPECT_EQ(std::string(19, '\0'), std::string(id, 19));
  // Its end does nothing: there is no code for it.
  EXPECT_TRUE(std::is_trivially_destructible<IIPMILan>());
}

TEST_F(IIPMILanTest, HasNoBaseAndNoVirtualOperationsAndTheSizeOfItsFields) {
  EXPECT_FALSE(std::is_polymorphic<IIPMILan>());
  EXPECT_TRUE(std::is_standard_layout<IIPMILan>());
  // 4 + 3 * 100, a bool, then 4 bytes at 308, 8 at 312 and 16 at 320.
  EXPECT_EQ(336u, sizeof(IIPMILan));
  EXPECT_EQ(8u, alignof(IIPMILan));
}

TEST_F(IIPMILanTest, AssignmentCopiesEveryByte) {
  IIPMILan other;
  unsigned char bytes[sizeof(IIPMILan)];
  for (std::size_t i = 0; i < sizeof bytes; ++i) {
    bytes[i] = static_cast<unsigned char>(i * 7 + 1);
  }
  // A bool is one of two bytes.
  bytes[304] = 1;
  std::memcpy(static_cast<void*>(lan), bytes, sizeof bytes);
  EXPECT_EQ(&other, &(other = *lan));
  EXPECT_EQ(0, std::memcmp(static_cast<const void*>(&other), bytes, sizeof bytes));
  IIPMILan& same = other;
  other = same;
  EXPECT_EQ(0, std::memcmp(static_cast<const void*>(&other), bytes, sizeof bytes));
  // The handle is shared: no call but the caller's closes it.
  EXPECT_EQ(lan->getTheSocket(), other.getTheSocket());
}

TEST_F(IIPMILanTest, SessionIDIsReadOnIntoTheAddress) {
  unsigned char bytes[sizeof(IIPMILan)] = {0xC1, 0xC2, 0xC3, 0xC4};
  std::memcpy(bytes + 4, "192.0.2.7 and more than fits", 29);
  std::memcpy(static_cast<void*>(lan), bytes, sizeof bytes);
  const struct {
    int length;
    const char* expected;
  } rows[] = {{1, "c1 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e"},
              {4, "c1 c2 c3 c4 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e"},
              {5, "c1 c2 c3 c4 31 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e"},
              {19, "c1 c2 c3 c4 31 39 32 2e 30 2e 32 2e 37 20 61 6e 64 20 6d 2e"},
              {20, "2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e"},
              {0, "2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e"},
              {-1, "2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e"},
              {2147483647, "2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e 2e"}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.expected, SessionID(row.length)) << row.length;
  }
}

TEST_F(IIPMILanTest, PasswordAndAddressAreCopiedInFixedSizes) {
  unsigned char bytes[sizeof(IIPMILan)] = {};
  std::memset(bytes + 4, 'a', 99);
  std::memset(bytes + 204, 'p', 99);
  std::memcpy(static_cast<void*>(lan), bytes, sizeof bytes);
  for (const int length : {0, 1, 100, -1}) {
    char out[64];
    std::memset(out, '.', sizeof out);
    lan->getBMCPassword(out, length);
    EXPECT_EQ(std::string(20, 'p') + "..", std::string(out, 22));
    std::memset(out, '.', sizeof out);
    lan->getIPMIAddress(out, length);
    EXPECT_EQ(std::string(40, 'a') + "..", std::string(out, 42));
  }
}

TEST_F(IIPMILanTest, GenSumTakesBothEnds) {
  std::string buffer = Bytes("ff 20 18 20 28 ff");
  EXPECT_EQ('\xC8', lan->GenSum(&buffer[0], 1, 2));
  EXPECT_EQ('\xB8', lan->GenSum(&buffer[0], 3, 4));
  EXPECT_EQ('\x01', lan->GenSum(&buffer[0], 0, 0));
  EXPECT_EQ('\xE0', lan->GenSum(&buffer[0], 1, 1));
  EXPECT_EQ(0, lan->GenSum(&buffer[0], 2, 1));
  EXPECT_EQ(0, lan->GenSum(&buffer[0], 5, -5));
}

TEST_F(IIPMILanTest, FailedCheckLeavesTheStatusAlone) {
  std::string bad = With(SampleReplies()[1], 47, 0) + std::string(120, '\0');
  EXPECT_FALSE(lan->ChkResponse(&bad[0], 29, 0));
  EXPECT_FALSE(lan->ChkResponse(&bad[0], 29, 1));
  EXPECT_FALSE(lan->getipmiLanStatus());
  EXPECT_TRUE(Pass());
  EXPECT_TRUE(lan->getipmiLanStatus());
  EXPECT_FALSE(lan->ChkResponse(&bad[0], 29, 0));
  EXPECT_TRUE(lan->getipmiLanStatus());
}

TEST_F(IIPMILanTest, ModeThreeTestsNothingAndSetsTheStatus) {
  std::string bad = With(SampleReplies()[1], 47, 0) + std::string(120, '\0');
  EXPECT_TRUE(lan->ChkResponse(&bad[0], 29, 3));
  EXPECT_TRUE(lan->getipmiLanStatus());
}

TEST_F(IIPMILanTest, ModeOnePassesACompletionCode) {
  std::string refused = WithCompletionCode(SampleReplies()[0], 13, 0xCB) + std::string(120, '\0');
  EXPECT_FALSE(lan->ChkResponse(&refused[0], 29, 0));
  EXPECT_FALSE(lan->ChkResponse(&refused[0], 29, 2));
  EXPECT_FALSE(lan->getipmiLanStatus());
  EXPECT_TRUE(lan->ChkResponse(&refused[0], 29, 1));
  EXPECT_TRUE(lan->getipmiLanStatus());
}

TEST_F(IIPMILanTest, SequenceNumberIsCountedAndLogged) {
  const test_support::LogCapture log;
  EXPECT_EQ(1u, lan->getSeqNum());
  EXPECT_EQ(2u, lan->getSeqNum());
  EXPECT_FALSE(lan->getipmiLanStatus());
  EXPECT_EQ((std::vector<std::string>{"[Debug] Seqnum1", "[Debug] Seqnum2",
                                      "[Debug] getipmiLanStatus = 0"}),
            log.Lines());
}

TEST_F(IIPMILanTest, SequenceNumberGoesOnBehindTheLargest) {
  unsigned char bytes[sizeof(IIPMILan)] = {};
  std::memset(bytes + 308, 0xFF, 4);
  std::memcpy(static_cast<void*>(lan), bytes, sizeof bytes);
  EXPECT_EQ(0u, lan->getSeqNum());
  EXPECT_EQ(1u, lan->getSeqNum());
}

}  // namespace
