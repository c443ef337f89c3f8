#include <tests/ipmi/SampleFrames.h>

namespace ipmi_test {

std::string Bytes(const std::string& digits) {
  std::string bytes;
  for (std::size_t at = 0; at < digits.size();) {
    if (digits[at] == ' ') {
      ++at;
    } else {
      bytes += static_cast<char>(std::stoi(digits.substr(at, 2), nullptr, 16));
      at += 2;
    }
  }
  return bytes;
}

std::string Hex(const std::string& bytes) {
  std::string digits;
  for (const char byte : bytes) {
    const unsigned value = static_cast<unsigned char>(byte);
    digits += digits.empty() ? "" : " ";
    digits += "0123456789abcdef"[value / 16];
    digits += "0123456789abcdef"[value % 16];
  }
  return digits;
}

const std::vector<std::string>& SampleRequests() {
  static const std::vector<std::string> requests = {
      Bytes("06 00 ff 07 00 00000000 00000000"
            "18 20 18 c8 21 00 39 04 61646d696e0000000000000000000000 99"),
      Bytes("06 00 ff 07 04 00000000 11223344 73656372657400000000000000000000"
            "1d 20 18 c8 21 00 3a 04 04 a0a1a2a3a4a5a6a7a8a9aaabacadaeaf 01000000 24"),
      Bytes("06 00 ff 07 04 01000000 c1c2c3c4 73656372657400000000000000000000"
            "08 20 18 c8 21 00 3b 04 a0"),
      Bytes("06 00 ff 07 04 02000000 c1c2c3c4 73656372657400000000000000000000"
            "0d 20 28 b8 21 00 43 0000 0000 00 ff 9d")};
  return requests;
}

const std::vector<std::string>& SampleReplies() {
  static const std::vector<std::string> replies = {
      Bytes("06 00 ff 07 00 00000000 00000000"
            "1c 21 1c c3 20 00 39 00 11223344 a0a1a2a3a4a5a6a7a8a9aaabacadaeaf 85"),
      Bytes("06 00 ff 07 04 01000000 11223344 73656372657400000000000000000000"
            "12 21 1c c3 20 00 3a 00 04 c1c2c3c4 9a57fe00 04 a5"),
      Bytes("06 00 ff 07 04 01000000 c1c2c3c4 73656372657400000000000000000000"
            "09 21 1c c3 20 00 3b 00 04 a1"),
      Bytes("06 00 ff 07 04 02000000 c1c2c3c4 73656372657400000000000000000000"
            "1a 21 2c b3 20 00 43 00 ffff 0100 02 b6050000 2000 04 01 30 01 570101 32")};
  return replies;
}

std::string With(std::string bytes, std::size_t at, unsigned char value) {
  bytes.at(at) = static_cast<char>(value);
  return bytes;
}

std::string WithCompletionCode(const std::string& reply, std::size_t lengthAt, unsigned char code) {
  const std::string changed = With(reply, lengthAt + 7, code);
  unsigned sum = 0;
  for (std::size_t at = lengthAt + 4; at + 1 < changed.size(); ++at) {
    sum += static_cast<unsigned char>(changed[at]);
  }
  return With(changed, changed.size() - 1, static_cast<unsigned char>(256 - sum % 256));
}

}  // namespace ipmi_test
