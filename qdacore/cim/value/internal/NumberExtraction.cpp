#include <qdacore/cim/value/internal/NumberExtraction.h>

#include <cstddef>

namespace NZRVQDA20 {

namespace {

std::size_t SkipWhiteSpace(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
  return first == std::string::npos ? text.size() : first;
}

// The value of a digit of any base, or 99.
unsigned DigitValue(char character) {
  if (character >= '0' && character <= '9') {
    return character - '0';
  }
  if (character >= 'a' && character <= 'f') {
    return character - 'a' + 10;
  }
  if (character >= 'A' && character <= 'F') {
    return character - 'A' + 10;
  }
  return 99;
}

bool IsHexMark(const std::string& text, std::size_t at) {
  return at + 1 < text.size() && text[at] == '0' && (text[at + 1] == 'x' || text[at + 1] == 'X');
}

}  // namespace

ExtractedInteger ExtractInteger(const std::string& text) {
  ExtractedInteger number = {false, false, 0};
  std::size_t at = SkipWhiteSpace(text);
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
    number.negative = text[at] == '-';
    ++at;
  }
  unsigned base = 10;
  if (IsHexMark(text, at)) {
    base = 16;
    at += 2;
  } else if (at < text.size() && text[at] == '0') {
    base = 8;
  }
  const unsigned long long greatest = std::numeric_limits<unsigned long long>::max();
  for (; at < text.size() && DigitValue(text[at]) < base; ++at) {
    const unsigned digit = DigitValue(text[at]);
    if (number.magnitude > (greatest - digit) / base) {
      number.overflow = true;
    }
    if (!number.overflow) {
      number.magnitude = number.magnitude * base + digit;
    }
  }
  if (number.overflow) {
    number.magnitude = greatest;
  }
  return number;
}

bool ExtractBoolean(const std::string& text) {
  return text.compare(SkipWhiteSpace(text), 4, "true") == 0;
}

}  // namespace NZRVQDA20
