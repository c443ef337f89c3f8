#include <qdamemory/mof/ValueText.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/mof/ObjectPathText.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

typedef TCIMValue::TCIMType Type;

std::string HexEscape(unsigned int unit) {
  const char* digits = "0123456789ABCDEF";
  std::string escape = "\\x";
  for (int shift = 12; shift >= 0; shift -= 4) {
    escape += digits[(unit >> shift) & 15];
  }
  return escape;
}

// The shortest text that reads back as the same number, with the point that makes it a real.
template <class T>
std::string RealText(T real) {
  if (std::isnan(real)) {
    return "\"NaN\"";
  }
  if (std::isinf(real)) {
    return real < 0 ? "\"-INF\"" : "\"INF\"";
  }
  char buffer[64];
  const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, real);
  std::string text(buffer, result.ptr);
  if (text.find('.') == std::string::npos) {
    const std::size_t exponent = std::min(text.find('e'), text.size());
    text.insert(exponent, ".0");
  }
  return text;
}

}  // namespace

std::string StringText(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    const unsigned char byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      quoted += '\\';
      quoted += c;
    } else if (c == '\n') {
      quoted += "\\n";
    } else if (byte < 0x20 || byte == 0x7F) {
      quoted += HexEscape(byte);
    } else {
      quoted += c;
    }
  }
  return quoted + "\"";
}

std::string ScalarText(const TCIMValue& value) {
  if (value.IsNull()) {
    return "NULL";
  }
  switch (value.GetType()) {
    case Type::kCIMTypeBoolean:
      return static_cast<bool>(value) ? "TRUE" : "FALSE";
    case Type::kCIMTypeReal32:
      return RealText(static_cast<float>(value));
    case Type::kCIMTypeReal64:
      return RealText(static_cast<double>(value));
    case Type::kCIMTypeChar16:
      // It reads as the number of its code unit.
      return "'" + HexEscape(static_cast<unsigned int>(std::stoul(value.ToString()))) + "'";
    case Type::kCIMTypeString:
      return StringText(static_cast<std::string>(value));
    case Type::kCIMTypeDateTime:
      return StringText(value.ToString());
    case Type::kCIMTypeReference:
      return StringText(WriteObjectPath(value));
    default:
      return value.ToString();
  }
}

std::string ValueText(const TCIMValue& value) {
  if (value.IsNull() || !value.IsArray()) {
    return ScalarText(value);
  }
  const int arrayType = value.GetType();
  std::string text = "{";
  const char* separator = "";
  for (const TCIMValue& element : static_cast<std::vector<TCIMValue>&>(value)) {
    const int type = element.GetType();
    if (!element.IsNull() && (type | Type::kCIMTypeArrayFlag) != arrayType) {
      throw TQDAException(TQDAStatusCode::kQDAStatusNotSupported);
    }
    text += separator + ScalarText(element);
    separator = ", ";
  }
  return text + "}";
}

}  // namespace mof
}  // namespace NZRVQDA20
