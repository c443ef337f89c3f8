#include "IpmiReplyFuzz.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <qdacore/ipmi/internal/Frames.h>

namespace {

using namespace NZRVQDA20::ipmi;

void Require(bool holds, const char* promise) {
  if (!holds) {
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
  }
}

void CheckModes(const unsigned char* reply) {
  const bool both = CheckReply(reply, kReplyLengthAt, 0);
  const bool checksum = CheckReply(reply, kReplyLengthAt, 1);
  const bool code = CheckReply(reply, kReplyLengthAt, 2);
  Require(both == (checksum && code), "mode 0 is modes 1 and 2");
  Require(CheckReply(reply, kReplyLengthAt, 3), "another mode tests nothing");
}

void CheckRequests(const unsigned char* reply) {
  const std::string name(kNameSize, 'x');
  Frame frame = {};
  MakeGetSessionChallenge(name.data(), frame);
  MakeActivateSession(name.data(), reply, frame);
  Require(frame.size == 59 && frame.bytes[29] == 29, "a request has its size");
  Require(Checksum(frame.bytes + 30, 29) == 0, "a request's message sums up to zero");
  MakeSetPrivilegeLevel(1, reply + kReplySessionIDAt, frame);
  Require(frame.size == 38 && frame.bytes[37] == 0xA0, "request 3 does not hang on the reply");
  MakeGetSELEntry(2, frame);
  Require(frame.size == 43 && frame.bytes[42] == 0x9D, "request 4 does not hang on the reply");
  Require(std::memcmp(frame.bytes + 9, reply + kReplySessionIDAt, kSessionIDSize) == 0,
          "the session ID is the reply's");
}

}  // namespace

void fuzz_ipmi::FuzzOneInput(const std::uint8_t* data, std::size_t size) {
  ReplyBlock block;
  std::copy_n(data, std::min<std::size_t>(size, kReplySize), block.Reply());
  CheckModes(block.Reply());
  CheckRequests(block.Reply());
}

// Here for libFuzzer; to the tests that link this file it is one more function.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz_ipmi::FuzzOneInput(data, size);
  return 0;
}
