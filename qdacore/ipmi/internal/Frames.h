// The bytes of an IPMI session: the four requests, and the check of a reply. No socket, no log, no
// state. docs/ipmi.md shows the layout; the standards are the IPMI specification 1.5, sections 12
// (messages), 13.6 (frame) and 18 (session commands), and ASF 2.0, section 3.2.2.2 (RMCP).

#ifndef QDACORE_IPMI_INTERNAL_FRAMES_H
#define QDACORE_IPMI_INTERNAL_FRAMES_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace NZRVQDA20 {
namespace ipmi {

// What user ID and password, the session ID and the challenge take on the wire.
enum : std::size_t { kNameSize = 16, kSessionIDSize = 4 };

// One request. It stays from step to step, and each step overwrites what differs.
struct Frame {
  unsigned char bytes[59];
  std::size_t size;
};

// The places that are read in replies. They are those of a first reply without an authentication
// code and a second one with it, and are not adjusted to what a BMC sends: that is meant.
enum : std::size_t { kReplySize = 100, kReplySessionIDAt = 38, kReplyLengthAt = 29 };

// A reply is received inside a larger zeroed block, because the length byte in it, which anybody
// may have sent, leads up to 128 bytes to either side of itself.
class ReplyBlock {
 public:
  unsigned char* Reply() { return fBytes + kMargin; }

 private:
  enum : std::size_t { kMargin = 128 };
  unsigned char fBytes[kMargin + kReplySize + kMargin] = {};
};

// Makes the bytes and the result sum up to zero, modulo 256. 0 for no bytes.
unsigned char Checksum(const unsigned char* bytes, std::size_t count);

// Request 1. `userID` has at least kNameSize characters.
void MakeGetSessionChallenge(const char* userID, Frame& frame);

// Request 2, from request 1 and its reply. `password` has at least kNameSize characters.
void MakeActivateSession(const char* password, const unsigned char* reply, Frame& frame);

// Request 3, from request 2; `sessionID` has kSessionIDSize bytes.
void MakeSetPrivilegeLevel(std::uint32_t sequence, const unsigned char* sessionID, Frame& frame);

// Request 4, from request 3.
void MakeGetSELEntry(std::uint32_t sequence, Frame& frame);

// Checks a reply, as IIPMILan::ChkResponse tells. Reads byte 4 of `reply`, and from 128 bytes
// before to 127 bytes behind the length byte.
bool CheckReply(const unsigned char* reply, int lengthOffset, int mode);

// Each byte in hexadecimal with a blank behind it: two digits, but eight, "ffffffc8", for bytes
// from 0x80 on, since the byte is widened with its sign. Readers of the log are used to that.
std::string Dump(const Frame& frame);

}  // namespace ipmi
}  // namespace NZRVQDA20

#endif
