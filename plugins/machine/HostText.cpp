#include <plugins/machine/HostText.h>

#include <charconv>
#include <cstddef>
#include <system_error>

namespace machine {

std::string_view Trimmed(std::string_view text) {
  const std::string_view padding(" \t\r\n\v\f\0", 7);
  const std::size_t begin = text.find_first_not_of(padding);
  if (begin == std::string_view::npos) {
    return {};
  }
  return text.substr(begin, text.find_last_not_of(padding) - begin + 1);
}

std::optional<std::uint64_t> DecimalIn(std::string_view text, std::uint64_t most) {
  const std::string_view digits = Trimmed(text);
  const char* const end = digits.data() + digits.size();
  std::uint64_t number = 0;
  const std::from_chars_result result = std::from_chars(digits.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end || number > most) {
    return std::nullopt;
  }
  return number;
}

std::optional<std::uint64_t> DecimalIn(const std::optional<std::string>& text, std::uint64_t most) {
  return text ? DecimalIn(std::string_view(*text), most) : std::nullopt;
}

std::optional<bool> FlagIn(const std::optional<std::string>& text) {
  const std::optional<std::uint64_t> number = DecimalIn(text, 1);
  return number ? std::optional<bool>(*number == 1) : std::nullopt;
}

std::optional<std::string> NameIn(const std::optional<std::string>& text) {
  if (!text) {
    return std::nullopt;
  }
  const std::string_view name = Trimmed(*text);
  return name.empty() ? std::nullopt : std::optional<std::string>(name);
}

bool TakeLine(std::string_view* rest, std::string_view* line) {
  if (rest->empty()) {
    return false;
  }
  const std::size_t end = rest->find('\n');
  *line = rest->substr(0, end);
  *rest = end == std::string_view::npos ? std::string_view() : rest->substr(end + 1);
  return true;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) {
      return parts;
    }
    text.remove_prefix(end + 1);
  }
}

std::optional<std::uint64_t> Product(std::optional<std::uint64_t> first,
                                     std::optional<std::uint64_t> second) {
  if (!first || !second || (*first != 0 && *second > UINT64_MAX / *first)) {
    return std::nullopt;
  }
  return *first * *second;
}

}  // namespace machine
