// The exchange as the log and the host see it.

#include <string>

#include <gtest/gtest.h>

#include <tests/ipmi/LanFakes.h>

namespace {

using namespace ipmi_test;

std::string Padded(const std::string& text, std::size_t size) {
  return text + std::string(size - text.size(), '\0');
}

// The lines of a good exchange. All are debug lines.
Lines GoodLines() {
  return {
      "3 Enter IpmilanOpenConnect",
      "3 IPADDRESS:" + Padded("192.0.2.7", 40) + "@192.0.2.7",
      "3 USERID:" + Padded("admin", 40),
      "3 password:" + Padded("secret", 40),
      "3 Get Session Challenge: complete to send packet",
      "3 receive response from Get Session Challenge : Complete",
      "3 password:" + Padded("secret", 16),
      "3 Activate Session Request : complete to send packet",
      "3 Receive activate session response from BMC : complete",
      "3 Assemble SET Session Privilege Level Request",
      "3 Seqnum1",
      "3 Set Privilege Level",
      "3 Receive BMC response from SET session privilege level",
      "3 Seqnum2",
      "3 szBuf.successfully06 00 ffffffff 07 04 02 00 00 00 ffffffc1 ffffffc2 ffffffc3 ffffffc4 "
      "73 65 63 72 65 74 00 00 00 00 00 00 00 00 00 00 0d 20 28 ffffffb8 21 00 43 00 00 00 00 "
      "00 ffffffff ffffff9d "};
}

TEST(IIPMILanLog, OfAGoodExchangeIsCompleteAndInOrder) {
  FakeLan fake;
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ(GoodLines(), fake.log.lines);
}

TEST(IIPMILanLog, IsNotNeeded) {
  FakeLan fake;
  fgCoreLogger = nullptr;
  EXPECT_EQ(0, fake.Connect());
  EXPECT_TRUE(fake.lan->getipmiLanStatus());
}

TEST(IIPMILanExchange, AsksTheHostInOrder) {
  FakeLan fake;
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ((Lines{"start 514", "open", "address 192.0.2.7 623", "timeout 17 5000", "send 17",
                   "receive 17 100", "send 17", "receive 17 100", "send 17", "receive 17 100",
                   "send 17", "receive 17 100"}),
            fake.network.calls);
  EXPECT_EQ(SampleRequests(), fake.network.sent);
  EXPECT_EQ(17u, fake.lan->getTheSocket());
  EXPECT_TRUE(fake.lan->getipmiLanStatus());
  EXPECT_EQ("c1 c2 c3 c4", Hex(fake.SessionID()));
}

TEST(IIPMILanExchange, AsksForOlderSocketsWhenTheNewOnesAreNotGranted) {
  FakeLan fake;
  fake.network.newestVersion = 0x0002;
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ("start 514", fake.network.calls[0]);
  EXPECT_EQ("start 257", fake.network.calls[1]);
  EXPECT_EQ("open", fake.network.calls[2]);
}

TEST(IIPMILanExchange, CutsNamesTo16OnTheWire) {
  FakeLan fake;
  const std::string name = "0123456789abcdefXYZ";
  EXPECT_EQ(0, fake.Connect("192.0.2.7", name, name));
  EXPECT_EQ("0123456789abcdef", fake.network.sent[0].substr(21, 16));
  for (const std::size_t request : {1, 2, 3}) {
    EXPECT_EQ("0123456789abcdef", fake.network.sent[request].substr(13, 16));
  }
  EXPECT_EQ("3 USERID:" + Padded(name, 40), fake.log.lines[2]);
  EXPECT_EQ("3 password:" + Padded(name, 40), fake.log.lines[3]);
  EXPECT_EQ("3 password:0123456789abcdef", fake.log.lines[6]);
}

TEST(IIPMILanExchange, EmptyPasswordIs16ZeroBytes) {
  FakeLan fake;
  EXPECT_EQ(0, fake.Connect("192.0.2.7", "", ""));
  EXPECT_EQ(std::string(16, '\0'), fake.network.sent[0].substr(21, 16));
  EXPECT_EQ(std::string(16, '\0'), fake.network.sent[1].substr(13, 16));
}

TEST(IIPMILanExchange, ArgumentsOf100CharactersAreCutTo99) {
  for (const std::size_t size : {99u, 100u, 101u, 5000u}) {
    FakeLan fake;
    EXPECT_EQ(0,
              fake.Connect(std::string(size, 'a'), std::string(size, 'u'), std::string(size, 'p')));
    EXPECT_EQ("address " + std::string(99, 'a') + " 623", fake.network.calls[2]);
    // The address as it was given stands behind the "@".
    EXPECT_EQ("3 IPADDRESS:" + std::string(40, 'a') + "@" + std::string(size, 'a'),
              fake.log.lines[1]);
    EXPECT_EQ("3 USERID:" + std::string(40, 'u'), fake.log.lines[2]);
    EXPECT_EQ("3 password:" + std::string(40, 'p'), fake.log.lines[3]);
    EXPECT_TRUE(fake.lan->getipmiLanStatus());
    EXPECT_EQ("c1 c2 c3 c4", Hex(fake.SessionID()));
  }
}

TEST(IIPMILanExchange, LongerTextOfAnEarlierCallIsGone) {
  FakeLan fake;
  EXPECT_EQ(0, fake.Connect(std::string(40, 'a'), std::string(40, 'u'), std::string(40, 'p')));
  fake.network.received = 0;
  fake.log.lines.clear();
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ(GoodLines(), fake.log.lines);
}

TEST(IIPMILanExchange, SecondOneOpensANewSocketAndNumbersFrom1) {
  FakeLan fake;
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ(3u, fake.lan->getSeqNum());
  EXPECT_TRUE(fake.lan->getipmiLanStatus());
  // It fails at once, and the status of the first one stays.
  fake.network.calls.clear();
  EXPECT_EQ(FakeNetwork::kTimedOut, fake.Connect());
  EXPECT_EQ((Lines{"start 514", "open", "address 192.0.2.7 623", "timeout 18 5000", "send 18",
                   "receive 18 100"}),
            fake.network.calls);
  EXPECT_EQ(18u, fake.lan->getTheSocket());
  EXPECT_TRUE(fake.lan->getipmiLanStatus());
  EXPECT_EQ("c1 c2 c3 c4", Hex(fake.SessionID()));
  EXPECT_EQ(1u, fake.lan->getSeqNum());
}

TEST(IIPMILanExchange, NumberOfTheReplyToActivateSessionIsIgnored) {
  std::vector<std::string> replies = SampleReplies();
  replies[1] = With(With(replies[1], 42, 0), 43, 0);
  FakeLan fake(replies);
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ(SampleRequests(), fake.network.sent);
}

TEST(IIPMILanClose, IsInverted) {
  FakeLan fake;
  EXPECT_EQ(0, fake.Connect());
  fake.network.open = {17};
  EXPECT_FALSE(fake.lan->closeSocket());
  EXPECT_TRUE(fake.lan->closeSocket());
  EXPECT_EQ("close 17", fake.network.calls.back());
  // Nothing is reset.
  EXPECT_EQ(17u, fake.lan->getTheSocket());
  EXPECT_TRUE(fake.lan->getipmiLanStatus());
}

TEST(IIPMILanStatus, IsLogged) {
  FakeLan fake;
  EXPECT_FALSE(fake.lan->getipmiLanStatus());
  EXPECT_EQ(0, fake.Connect());
  EXPECT_TRUE(fake.lan->getipmiLanStatus());
  EXPECT_EQ("3 getipmiLanStatus = 0", fake.log.lines.front());
  EXPECT_EQ("3 getipmiLanStatus = 1", fake.log.lines.back());
}

}  // namespace
