// The seam to the host's sockets, on loopback, at ports that everybody may have.

#include <qdacore/host/Network.h>

#include <chrono>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include <tests/ipmi/UdpSocket.h>

namespace {

using namespace ipmi_test;
using NZRVQDA20::host::HostNetwork;
using NZRVQDA20::host::Network;

const std::uint32_t kLoopback = 0x7F000001;

class NetworkTest : public testing::Test {
 protected:
  void SetUp() override {
    EXPECT_EQ(0x0202, HostNetwork().Start(0x0202));
    ASSERT_EQ(UdpSocket::kBound, fPeer.Bind({kLoopback, 0}));
    fSocket = HostNetwork().OpenDatagram();
    ASSERT_NE(Network::Socket(Network::kNoSocket), fSocket);
    HostNetwork().MakeAddress("127.0.0.1", fPeer.Bound().port, fAddress);
    EXPECT_TRUE(HostNetwork().SetReceiveTimeout(fSocket, 5000));
  }
  void TearDown() override { EXPECT_TRUE(HostNetwork().Close(fSocket)); }

  bool Send(const std::string& bytes) {
    return HostNetwork().Send(fSocket, fAddress,
                              reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
  }

  // The peer learns where we are, and sends `reply` there.
  void Provoke(const std::string& reply) {
    std::string bytes;
    UdpAddress from;
    ASSERT_TRUE(Send("ask"));
    ASSERT_TRUE(fPeer.Receive(&bytes, &from, 5000));
    EXPECT_EQ("ask", bytes);
    EXPECT_EQ(kLoopback, from.ip);
    ASSERT_TRUE(fPeer.Send(reply, from));
  }

  bool Receive() {
    std::memset(fBytes, '.', sizeof fBytes);
    fError = -1;
    return HostNetwork().Receive(fSocket, fBytes, 100, fError);
  }

  std::string Received() const {
    return std::string(reinterpret_cast<const char*>(fBytes), sizeof fBytes);
  }

  UdpSocket fPeer;
  Network::Socket fSocket = Network::kNoSocket;
  unsigned char fAddress[Network::kAddressSize];
  unsigned char fBytes[110];
  int fError = 0;
};

TEST_F(NetworkTest, ReceivesUpToTheSize) {
  for (const std::size_t size : {0, 1, 99, 100}) {
    SCOPED_TRACE(size);
    Provoke(std::string(size, 'x'));
    EXPECT_TRUE(Receive());
    EXPECT_EQ(-1, fError);
    EXPECT_EQ(std::string(size, 'x') + std::string(110 - size, '.'), Received());
  }
}

TEST_F(NetworkTest, LongerDatagramFailsWithItsBeginStored) {
  for (const std::size_t size : {101, 2000, 65507}) {
    SCOPED_TRACE(size);
    Provoke(std::string(size, 'x'));
    EXPECT_FALSE(Receive());
    EXPECT_EQ(TooLongError(), fError);
    EXPECT_EQ(std::string(100, 'x') + std::string(10, '.'), Received());
  }
}

TEST_F(NetworkTest, WaitsAsLongAsTheTimeoutHasIt) {
  EXPECT_TRUE(HostNetwork().SetReceiveTimeout(fSocket, 300));
  ASSERT_TRUE(Send("ask"));
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_FALSE(Receive());
  EXPECT_EQ(TimedOutError(), fError);
  const auto waited = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(waited, std::chrono::milliseconds(250));
}

TEST_F(NetworkTest, ClosesASocketOnce) {
  const Network::Socket other = HostNetwork().OpenDatagram();
  EXPECT_TRUE(HostNetwork().Close(other));
  EXPECT_FALSE(HostNetwork().Close(other));
  EXPECT_FALSE(HostNetwork().Close(Network::kNoSocket));
  EXPECT_FALSE(HostNetwork().Close(0xFFFFFFFFFFull));
}

TEST_F(NetworkTest, RefusesWhatIsNoSocket) {
  unsigned char byte = 0;
  int error = 0;
  EXPECT_FALSE(HostNetwork().SetReceiveTimeout(Network::kNoSocket, 5000));
  EXPECT_FALSE(HostNetwork().Send(Network::kNoSocket, fAddress, &byte, 1));
  EXPECT_FALSE(HostNetwork().Receive(Network::kNoSocket, &byte, 1, error));
  EXPECT_NE(0, error);
}

TEST_F(NetworkTest, TextThatIsNoAddressIsTheBroadcastAddress) {
  unsigned char address[Network::kAddressSize];
  HostNetwork().MakeAddress("bmc.example", 623, address);
  // Family, 623 and 255.255.255.255.
  EXPECT_EQ(std::string("\x02\x00\x02\x6F\xFF\xFF\xFF\xFF\0\0\0\0\0\0\0\0", 16),
            std::string(reinterpret_cast<char*>(address), sizeof address));
  unsigned char byte = 0;
  EXPECT_FALSE(HostNetwork().Send(fSocket, address, &byte, 1));
}

}  // namespace
