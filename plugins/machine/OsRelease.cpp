#include <plugins/machine/OsRelease.h>

#include <cstddef>
#include <string_view>

namespace machine {

namespace {

const char kBlanks[] = " \t\r";

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) {
    return {};
  }
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

bool IsEscapable(char character) {
  return character == '$' || character == '"' || character == '\\' || character == '`';
}

// What stands in double quotes, the quotes taken off already. False when a quote stands inside,
// or when the closing one turns out to be escaped.
bool Unescape(std::string_view inside, std::string* value) {
  for (std::size_t at = 0; at < inside.size(); ++at) {
    if (inside[at] == '"') {
      return false;
    }
    if (inside[at] == '\\') {
      if (at + 1 == inside.size()) {
        return false;
      }
      // As in a shell, a backslash before any other character is a character too.
      if (IsEscapable(inside[at + 1])) {
        ++at;
      }
    }
    *value += inside[at];
  }
  return true;
}

bool ReadValue(std::string_view raw, std::string* value) {
  const char first = raw.empty() ? '\0' : raw.front();
  if (first != '"' && first != '\'') {
    *value = raw;
    return raw.find_first_of(" \t\"'\\$`;&|<>()") == std::string_view::npos;
  }
  if (raw.size() < 2 || raw.back() != first) {
    return false;
  }
  const std::string_view inside = raw.substr(1, raw.size() - 2);
  if (first == '\'') {
    *value = inside;
    return inside.find('\'') == std::string_view::npos;
  }
  return Unescape(inside, value);
}

}  // namespace

std::optional<std::string> FindInOsRelease(const std::string& text, const std::string& name) {
  std::optional<std::string> found;
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    const std::string_view line = Trimmed(rest.substr(0, end));
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    if (line.size() <= name.size() || line.substr(0, name.size()) != name ||
        line[name.size()] != '=') {
      continue;
    }
    std::string value;
    if (ReadValue(line.substr(name.size() + 1), &value)) {
      found = value;
    }
  }
  if (found && found->empty()) {
    found.reset();
  }
  return found;
}

}  // namespace machine
