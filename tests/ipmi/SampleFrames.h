// One good exchange, byte by byte: user "admin", password "secret".

#ifndef TESTS_IPMI_SAMPLEFRAMES_H
#define TESTS_IPMI_SAMPLEFRAMES_H

#include <cstddef>
#include <string>
#include <vector>

namespace ipmi_test {

// The bytes of hexadecimal digits, two each; blanks between them do not count.
std::string Bytes(const std::string& digits);

// Two digits a byte, a blank between them.
std::string Hex(const std::string& bytes);

// The four requests and replies, in order.
const std::vector<std::string>& SampleRequests();
const std::vector<std::string>& SampleReplies();

// `bytes` with the one at `at` replaced.
std::string With(std::string bytes, std::size_t at, unsigned char value);

// `reply` with another completion code and the right trailing checksum. `lengthAt` is the place of
// its length byte.
std::string WithCompletionCode(const std::string& reply, std::size_t lengthAt, unsigned char code);

}  // namespace ipmi_test

#endif
