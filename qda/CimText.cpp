#include <qda/CimText.h>

#include <charconv>
#include <limits>
#include <vector>

#include <fmt/format.h>

#include <qdacore/frame/TQDAException.h>

namespace qda {

using NZRVQDA20::TCIMValue;
typedef NZRVQDA20::TCIMValue::TCIMType Type;

namespace {

const std::size_t kMostShown = 32;

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') {
      quoted += '\\';
    }
    quoted += character;
  }
  return quoted + "\"";
}

template <class Real>
std::string RealText(Real number) {
  char buffer[64];
  const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, number);
  return std::string(buffer, end.ptr);
}

template <class Real>
nlohmann::ordered_json RealJson(Real number) {
  // Not so for what is no number either.
  const bool isFinite =
      number >= std::numeric_limits<Real>::lowest() && number <= std::numeric_limits<Real>::max();
  if (!isFinite) {
    return RealText(number);
  }
  // By its own digits: a float that becomes a double would grow others.
  return nlohmann::ordered_json::parse(RealText(number));
}

std::string ArrayText(const std::vector<TCIMValue>& elements) {
  std::string text = "{";
  for (std::size_t i = 0; i < elements.size() && i < kMostShown; ++i) {
    text += (i == 0 ? " " : ", ") + ValueText(elements[i]);
  }
  if (elements.size() > kMostShown) {
    text += fmt::format(", and {} more", elements.size() - kMostShown);
  }
  return text + " }";
}

}  // namespace

std::string TypeText(Type type, unsigned int maxArraySize) {
  const int word = type;
  std::string text;
  try {
    text = Type(static_cast<Type::ECIMType>(word & ~Type::kCIMTypeArrayFlag)).ToString();
  } catch (const NZRVQDA20::TQDAException&) {
    return fmt::format("type {}", word);
  }
  if ((word & Type::kCIMTypeArrayFlag) == 0) {
    return text;
  }
  return text + (maxArraySize == 0 ? "[]" : fmt::format("[{}]", maxArraySize));
}

std::string ValueText(const TCIMValue& value) {
  if (value.IsNull()) {
    return "NULL";
  }
  if (value.IsArray()) {
    const std::vector<TCIMValue>& elements = value;
    return ArrayText(elements);
  }
  switch (static_cast<Type::ECIMType>(value.GetType())) {
    case Type::kCIMTypeString:
      return Quoted(value);
    case Type::kCIMTypeReal32:
      return RealText(static_cast<float>(value));
    case Type::kCIMTypeReal64:
      return RealText(static_cast<double>(value));
    default:
      return value.ToString(10);
  }
}

nlohmann::ordered_json ValueJson(const TCIMValue& value) {
  if (value.IsNull()) {
    return nlohmann::ordered_json();
  }
  if (value.IsArray()) {
    const std::vector<TCIMValue>& elements = value;
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const TCIMValue& element : elements) {
      json.push_back(ValueJson(element));
    }
    return json;
  }
  switch (static_cast<Type::ECIMType>(value.GetType())) {
    case Type::kCIMTypeBoolean:
      return static_cast<bool>(value);
    case Type::kCIMTypeUint8:
    case Type::kCIMTypeUint16:
    case Type::kCIMTypeUint32:
    case Type::kCIMTypeUint64:
    case Type::kCIMTypeSint8:
    case Type::kCIMTypeSint16:
    case Type::kCIMTypeSint32:
    case Type::kCIMTypeSint64:
    case Type::kCIMTypeChar16:
      // Decimal digits, which are a JSON number too.
      return nlohmann::ordered_json::parse(value.ToString(10));
    case Type::kCIMTypeReal32:
      return RealJson(static_cast<float>(value));
    case Type::kCIMTypeReal64:
      return RealJson(static_cast<double>(value));
    case Type::kCIMTypeString:
      return static_cast<std::string>(value);
    default:
      return value.ToString(10);
  }
}

}  // namespace qda
