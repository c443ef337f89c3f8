// Replies of any size and content: nothing but the exchange's own results comes of them.

#include <random>
#include <string>

#include <gtest/gtest.h>

#include <tests/ipmi/LanFakes.h>

namespace {

using namespace ipmi_test;

std::vector<std::string> WithReply(std::size_t step, const std::string& reply) {
  std::vector<std::string> replies = SampleReplies();
  replies[step] = reply;
  return replies;
}

TEST(HostileReply, ShorterOneLeavesBytesOfTheOneBefore) {
  // The header and the length of reply 3, and the message of reply 2 behind it.
  FakeLan fake(WithReply(2, SampleReplies()[2].substr(0, 30)));
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ("1 Set Privilege Level : ChkResponse failed", fake.log.lines[12]);

  FakeLan empty(WithReply(2, ""));
  EXPECT_EQ(0, empty.Connect());
  // Reply 2 once more, which is good.
  EXPECT_EQ(15u, empty.log.lines.size());
}

TEST(HostileReply, EmptyFirstOneIsZeros) {
  FakeLan fake(WithReply(0, ""));
  EXPECT_EQ(0, fake.Connect());
  EXPECT_EQ("00 00 00 00", Hex(fake.network.sent[1].substr(9, 4)));
  EXPECT_EQ(std::string(16, '\0'), fake.network.sent[1].substr(38, 16));
}

TEST(HostileReply, RuntsOf0To100BytesAtEachStepAreBorne) {
  for (std::size_t step = 0; step < 4; ++step) {
    for (std::size_t size = 0; size <= 100; ++size) {
      FakeLan fake(WithReply(step, std::string(size, '\xFF')));
      EXPECT_EQ(0, fake.Connect()) << step << " " << size;
      EXPECT_EQ(4u, fake.network.sent.size());
    }
  }
}

TEST(HostileReply, AllLengthBytesAtEachStepAreBorne) {
  for (std::size_t step = 0; step < 4; ++step) {
    for (int length = 0; length < 256; ++length) {
      for (const std::size_t at : {13, 29}) {
        FakeLan fake(
            WithReply(step, With(SampleReplies()[step], at, static_cast<unsigned char>(length))));
        EXPECT_EQ(0, fake.Connect());
        EXPECT_EQ(4u, fake.network.sent.size());
      }
    }
  }
}

TEST(HostileReply, OfMoreThan100BytesIsAFailedReceive) {
  for (const std::size_t size : {101u, 65507u}) {
    for (std::size_t step = 0; step < 4; ++step) {
      FakeLan fake(WithReply(step, std::string(size, '\x04')));
      EXPECT_EQ(FakeNetwork::kTooLong, fake.Connect());
      EXPECT_EQ(step + 1, fake.network.sent.size());
    }
  }
}

TEST(HostileReply, MutationsAreBorne) {
  std::mt19937 random(20240623);
  for (int round = 0; round < 3000; ++round) {
    std::vector<std::string> replies = SampleReplies();
    for (unsigned changes = 1 + random() % 8; changes > 0; --changes) {
      std::string& reply = replies[random() % 4];
      if (random() % 8 == 0) {
        reply.resize(random() % 101);
      } else if (!reply.empty()) {
        reply[random() % reply.size()] = static_cast<char>(random());
      }
    }
    FakeLan fake(replies);
    EXPECT_EQ(0, fake.Connect());
    // The requests keep their form whatever came.
    ASSERT_EQ(4u, fake.network.sent.size());
    EXPECT_EQ(SampleRequests()[0], fake.network.sent[0]);
    EXPECT_EQ(SampleRequests()[2].substr(13), fake.network.sent[2].substr(13));
    EXPECT_EQ(SampleRequests()[3].substr(13), fake.network.sent[3].substr(13));
    EXPECT_EQ(fake.SessionID(), fake.network.sent[3].substr(9, 4));
  }
}

}  // namespace
