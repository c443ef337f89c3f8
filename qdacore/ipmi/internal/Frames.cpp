#include <qdacore/ipmi/internal/Frames.h>

#include <cstdio>
#include <cstring>

namespace NZRVQDA20 {
namespace ipmi {

namespace {

// RMCP version 6, reserved, no sequence number and so no acknowledge, class IPMI.
const unsigned char kRMCPHeader[] = {0x06, 0x00, 0xFF, 0x07};

// Authentication types.
const unsigned char kNone = 0x00;
const unsigned char kStraightPassword = 0x04;

const unsigned char kBMC = 0x20;
// Not the software ID of a remote console, 0x81; and the requester's sequence number and LUN stay 0
// in every request. Both are meant.
const unsigned char kRequester = 0x21;
const unsigned char kRequesterSequence = 0x00;

// Network functions, with LUN 0, and commands.
const unsigned char kApp = 0x06 << 2;
const unsigned char kStorage = 0x0A << 2;
const unsigned char kGetSessionChallenge = 0x39;
const unsigned char kActivateSession = 0x3A;
const unsigned char kSetSessionPrivilegeLevel = 0x3B;
const unsigned char kGetSELEntry = 0x43;

const unsigned char kAdministrator = 0x04;

// Places in a frame.
const std::size_t kAuthenticationTypeAt = 4;
const std::size_t kSequenceAt = 5;
const std::size_t kSessionIDAt = 9;
const std::size_t kAuthenticationCodeAt = 13;
const std::size_t kPlainLengthAt = 13;
const std::size_t kAuthenticatedLengthAt = 29;

// Places in the reply to Get Session Challenge.
const std::size_t kTemporarySessionIDAt = 21;
const std::size_t kChallengeAt = 25;
const std::size_t kChallengeSize = 16;

void PutSequence(std::uint32_t sequence, Frame& frame) {
  for (int i = 0; i < 4; ++i) {
    frame.bytes[kSequenceAt + i] = static_cast<unsigned char>(sequence >> (8 * i));
  }
}

// The IPMI message and its length byte at `at`, which end the frame.
void PutMessage(std::size_t at, unsigned char netFn, unsigned char command,
                const unsigned char* data, std::size_t dataSize, Frame& frame) {
  unsigned char* const message = frame.bytes + at + 1;
  message[0] = kBMC;
  message[1] = netFn;
  message[2] = Checksum(message, 2);
  message[3] = kRequester;
  message[4] = kRequesterSequence;
  message[5] = command;
  std::memcpy(message + 6, data, dataSize);
  message[6 + dataSize] = Checksum(message + 3, 3 + dataSize);
  frame.bytes[at] = static_cast<unsigned char>(7 + dataSize);
  frame.size = at + 8 + dataSize;
}

}  // namespace

unsigned char Checksum(const unsigned char* bytes, std::size_t count) {
  unsigned sum = 0;
  for (std::size_t i = 0; i < count; ++i) {
    sum += bytes[i];
  }
  return static_cast<unsigned char>(0u - sum);
}

void MakeGetSessionChallenge(const char* userID, Frame& frame) {
  std::memcpy(frame.bytes, kRMCPHeader, sizeof kRMCPHeader);
  frame.bytes[kAuthenticationTypeAt] = kNone;
  PutSequence(0, frame);
  std::memset(frame.bytes + kSessionIDAt, 0, kSessionIDSize);
  unsigned char data[1 + kNameSize] = {kStraightPassword};
  std::memcpy(data + 1, userID, kNameSize);
  PutMessage(kPlainLengthAt, kApp, kGetSessionChallenge, data, sizeof data, frame);
}

void MakeActivateSession(const char* password, const unsigned char* reply, Frame& frame) {
  frame.bytes[kAuthenticationTypeAt] = kStraightPassword;
  PutSequence(0, frame);
  std::memcpy(frame.bytes + kSessionIDAt, reply + kTemporarySessionIDAt, kSessionIDSize);
  std::memcpy(frame.bytes + kAuthenticationCodeAt, password, kNameSize);
  // Type and level, the challenge, and 1 as the first number that the BMC is to use.
  unsigned char data[2 + kChallengeSize + 4] = {kStraightPassword, kAdministrator};
  std::memcpy(data + 2, reply + kChallengeAt, kChallengeSize);
  data[2 + kChallengeSize] = 1;
  PutMessage(kAuthenticatedLengthAt, kApp, kActivateSession, data, sizeof data, frame);
}

void MakeSetPrivilegeLevel(std::uint32_t sequence, const unsigned char* sessionID, Frame& frame) {
  PutSequence(sequence, frame);
  std::memcpy(frame.bytes + kSessionIDAt, sessionID, kSessionIDSize);
  PutMessage(kAuthenticatedLengthAt, kApp, kSetSessionPrivilegeLevel, &kAdministrator, 1, frame);
}

void MakeGetSELEntry(std::uint32_t sequence, Frame& frame) {
  PutSequence(sequence, frame);
  // No reservation, the first record, from its begin, all of it.
  const unsigned char data[] = {0x00, 0x00, 0x00, 0x00, 0x00, 0xFF};
  PutMessage(kAuthenticatedLengthAt, kStorage, kGetSELEntry, data, sizeof data, frame);
}

bool CheckReply(const unsigned char* reply, int lengthOffset, int mode) {
  const int offset = reply[kAuthenticationTypeAt] == kNone
                         ? lengthOffset - static_cast<int>(kNameSize)
                         : lengthOffset;
  const unsigned char* const message = reply + offset + 1;
  if (mode == 0 || mode == 1) {
    // A signed number, which leads backwards from 0x80 on. The sum takes in the header with its
    // checksum: a sound header adds nothing, a damaged one shows.
    const int length = static_cast<signed char>(reply[offset]);
    const std::size_t count = length > 1 ? static_cast<std::size_t>(length - 1) : 0;
    if (Checksum(message, count) != reply[offset + length]) {
      return false;
    }
  }
  // The completion code.
  return (mode != 0 && mode != 2) || message[6] == 0;
}

std::string Dump(const Frame& frame) {
  std::string text;
  for (std::size_t i = 0; i < frame.size; ++i) {
    char shown[16];
    const int widened = static_cast<signed char>(frame.bytes[i]);
    std::snprintf(shown, sizeof shown, "%02x ", static_cast<unsigned>(widened));
    text += shown;
  }
  return text;
}

}  // namespace ipmi
}  // namespace NZRVQDA20
