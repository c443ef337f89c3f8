#include <qdacore/ipmi/internal/Frames.h>

#include <cstring>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include <tests/ipmi/SampleFrames.h>

namespace {

using namespace NZRVQDA20::ipmi;
using ipmi_test::Bytes;
using ipmi_test::Hex;
using ipmi_test::SampleReplies;
using ipmi_test::SampleRequests;

const unsigned char* Pointer(const std::string& bytes) {
  return reinterpret_cast<const unsigned char*>(bytes.data());
}

std::string Text(const Frame& frame) {
  return Hex(std::string(reinterpret_cast<const char*>(frame.bytes), frame.size));
}

// A name as the client keeps it.
std::string Field(const std::string& text) { return text + std::string(100 - text.size(), '\0'); }

TEST(Frames, AreTheFourRequestsByteForByte) {
  // Whatever stood there before: each request sets all that it has.
  Frame frame;
  std::memset(&frame, 0xEE, sizeof frame);
  MakeGetSessionChallenge(Field("admin").data(), frame);
  EXPECT_EQ(Hex(SampleRequests()[0]), Text(frame));
  MakeActivateSession(Field("secret").data(), Pointer(SampleReplies()[0]), frame);
  EXPECT_EQ(Hex(SampleRequests()[1]), Text(frame));
  MakeSetPrivilegeLevel(1, Pointer(Bytes("c1c2c3c4")), frame);
  EXPECT_EQ(Hex(SampleRequests()[2]), Text(frame));
  MakeGetSELEntry(2, frame);
  EXPECT_EQ(Hex(SampleRequests()[3]), Text(frame));
}

TEST(Frames, CountTheBytesBehindTheLengthByte) {
  const struct {
    std::size_t size;
    std::size_t lengthAt;
    int length;
  } rows[] = {{38, 13, 24}, {59, 29, 29}, {38, 29, 8}, {43, 29, 13}};
  for (std::size_t i = 0; i < 4; ++i) {
    const std::string& request = SampleRequests()[i];
    EXPECT_EQ(rows[i].size, request.size());
    EXPECT_EQ(rows[i].length, request[rows[i].lengthAt]);
    EXPECT_EQ(rows[i].size, rows[i].lengthAt + 1 + static_cast<std::size_t>(rows[i].length));
  }
}

TEST(Frames, CarrySixteenCharactersOfANameAndNoMore) {
  Frame frame = {};
  MakeGetSessionChallenge(Field("0123456789abcdefghi").data(), frame);
  EXPECT_EQ("30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66", Text(frame).substr(21 * 3, 47));
  MakeActivateSession(Field("").data(), Pointer(SampleReplies()[0]), frame);
  EXPECT_EQ("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00", Text(frame).substr(13 * 3, 47));
}

TEST(Frames, NumberWithTheLeastByteFirst) {
  Frame frame = {};
  MakeSetPrivilegeLevel(0xA1B2C3D4, Pointer(Bytes("00000000")), frame);
  EXPECT_EQ("d4 c3 b2 a1", Text(frame).substr(5 * 3, 11));
  MakeGetSELEntry(0xFFFFFFFF, frame);
  EXPECT_EQ("ff ff ff ff", Text(frame).substr(5 * 3, 11));
}

TEST(ChecksumTest, MakesTheSumZero) {
  EXPECT_EQ(0, Checksum(nullptr, 0));
  EXPECT_EQ(0xC8, Checksum(Pointer(Bytes("2018")), 2));
  EXPECT_EQ(0xB8, Checksum(Pointer(Bytes("2028")), 2));
  EXPECT_EQ(0x00, Checksum(Pointer(Bytes("8080")), 2));
  std::mt19937 random(623);
  for (int round = 0; round < 1000; ++round) {
    std::string bytes(random() % 300, '\0');
    unsigned sum = 0;
    for (char& byte : bytes) {
      byte = static_cast<char>(random());
      sum += static_cast<unsigned char>(byte);
    }
    EXPECT_EQ(0u, (sum + Checksum(Pointer(bytes), bytes.size())) % 256);
  }
}

TEST(DumpTest, WidensBytesWithTheirSign) {
  Frame frame = {{0x00, 0x0A, 0x7F, 0x80, 0xC8, 0xFF}, 6};
  EXPECT_EQ("00 0a 7f ffffff80 ffffffc8 ffffffff ", Dump(frame));
  frame.size = 0;
  EXPECT_EQ("", Dump(frame));
}

struct CheckRow {
  const char* what;
  std::string reply;
  bool passes[4];  // in modes 0 to 3
};

void PrintTo(const CheckRow& row, std::ostream* stream) { *stream << row.what; }

class CheckReplyTest : public testing::TestWithParam<CheckRow> {};

TEST_P(CheckReplyTest, TestsWhatTheModeSays) {
  ReplyBlock block;
  std::memcpy(block.Reply(), GetParam().reply.data(), GetParam().reply.size());
  for (int mode = 0; mode < 4; ++mode) {
    EXPECT_EQ(GetParam().passes[mode], CheckReply(block.Reply(), 29, mode)) << "mode " << mode;
  }
  EXPECT_TRUE(CheckReply(block.Reply(), 29, -1));
  EXPECT_TRUE(CheckReply(block.Reply(), 29, 4));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CheckReplyTest,
    testing::Values(
        CheckRow{"good", SampleReplies()[1], {true, true, true, true}},
        CheckRow{"good without authentication code: 16 bytes earlier",
                 SampleReplies()[0],
                 {true, true, true, true}},
        CheckRow{"completion code and a good checksum",
                 ipmi_test::WithCompletionCode(SampleReplies()[1], 29, 0xD4),
                 {false, true, false, true}},
        CheckRow{"completion code at 20 without authentication code",
                 ipmi_test::WithCompletionCode(SampleReplies()[0], 13, 0x81),
                 {false, true, false, true}},
        CheckRow{"trailing checksum",
                 ipmi_test::With(SampleReplies()[1], 47, 0xA6),
                 {false, false, true, true}},
        CheckRow{"data", ipmi_test::With(SampleReplies()[1], 40, 0), {false, false, true, true}},
        CheckRow{
            "header", ipmi_test::With(SampleReplies()[1], 30, 0x81), {false, false, true, true}},
        CheckRow{"header's checksum",
                 ipmi_test::With(SampleReplies()[1], 32, 0xC4),
                 {false, false, true, true}},
        CheckRow{"sound header of another",
                 ipmi_test::With(ipmi_test::With(SampleReplies()[1], 30, 0x81), 32, 0x63),
                 {true, true, true, true}},
        CheckRow{"another authentication type is one with a code",
                 ipmi_test::With(SampleReplies()[1], 4, 0x02),
                 {true, true, true, true}},
        CheckRow{"the type denies the code that is there",
                 ipmi_test::With(SampleReplies()[1], 4, 0),
                 {false, false, true, true}},
        CheckRow{"nothing at all, which passes", "", {true, true, true, true}}));

// Sums and places as the contract has them, in plain numbers.
bool Expected(const std::string& block, int reply, int mode) {
  const auto at = [&](int offset) { return static_cast<unsigned char>(block.at(reply + offset)); };
  const int offset = at(4) == 0 ? 13 : 29;
  const int length = at(offset) < 128 ? at(offset) : at(offset) - 256;
  int sum = 0;
  for (int i = offset + 1; i <= offset + length - 1; ++i) {
    sum += at(i);
  }
  const bool isSumRight = (256 - sum % 256) % 256 == at(offset + length);
  const bool isCodeGood = at(offset + 7) == 0;
  return mode == 0 ? isSumRight && isCodeGood : mode == 1 ? isSumRight : mode != 2 || isCodeGood;
}

TEST(CheckReplyLengths, AllStayInTheBlockAndHaveTheirResult) {
  std::mt19937 random(256);
  int passed = 0;
  for (const unsigned char type : {0x00, 0x04}) {
    const int offset = type == 0 ? 13 : 29;
    for (int length = 0; length < 256; ++length) {
      for (int round = 0; round < 40; ++round) {
        std::string reply(100, '\0');
        for (char& byte : reply) {
          // Few values, so that sums come out right now and then.
          byte = static_cast<char>(random() % 2 * (random() % 3 == 0 ? 0xFF : 1));
        }
        reply[4] = static_cast<char>(type);
        reply[offset] = static_cast<char>(length);
        ReplyBlock block;
        std::memcpy(block.Reply(), reply.data(), reply.size());
        const std::string whole = std::string(128, '\0') + reply + std::string(128, '\0');
        for (int mode = 0; mode < 4; ++mode) {
          const bool expected = Expected(whole, 128, mode);
          EXPECT_EQ(expected, CheckReply(block.Reply(), 29, mode)) << length << " " << mode;
          passed += expected && mode == 1;
        }
      }
    }
  }
  EXPECT_GT(passed, 100);
}

}  // namespace
