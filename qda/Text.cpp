#include <qda/Text.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>

#include <fmt/format.h>

namespace qda {

namespace {

struct Character {
  std::uint32_t code;
  std::size_t size;  // in bytes; 0 for a byte that is no UTF-8
};

// The character at `at` (RFC 3629: shortest form only, no surrogates, up to 10FFFFh).
Character CharacterAt(const std::string& text, std::size_t at) {
  const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned char lead = byte(at);
  if (lead < 0x80) {
    return {lead, 1};
  }
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || size > text.size() - at) {
    return {0, 0};
  }
  std::uint32_t code = lead & (0x7Fu >> size);
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(at + i) & 0xC0) != 0x80) {
      return {0, 0};
    }
    code = code << 6 | (byte(at + i) & 0x3Fu);
  }
  const std::uint32_t least = size == 2 ? 0x80 : size == 3 ? 0x800 : 0x10000;
  const bool isValid = code >= least && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  return isValid ? Character{code, size} : Character{0, 0};
}

bool IsHarmful(std::uint32_t code) {
  return code < 0x20 || (code >= 0x7F && code < 0xA0) ||  // control characters
         code == 0x061C || code == 0x200E || code == 0x200F ||
         (code >= 0x2028 && code <= 0x202E) ||  // line separators, direction marks
         (code >= 0x2066 && code <= 0x2069) || code == 0xFEFF;
}

}  // namespace

std::string Printable(const std::string& text) {
  std::string printable;
  for (std::size_t at = 0; at < text.size();) {
    const Character character = CharacterAt(text, at);
    const std::size_t size = character.size == 0 ? 1 : character.size;
    if (character.size == 0 || IsHarmful(character.code)) {
      for (std::size_t i = 0; i < size; ++i) {
        printable += fmt::format("\\x{:02X}", static_cast<unsigned char>(text[at + i]));
      }
    } else {
      printable.append(text, at, size);
    }
    at += size;
  }
  return printable;
}

std::string Folded(std::string text) {
  for (char& character : text) {
    if (character >= 'A' && character <= 'Z') {
      character = static_cast<char>(character - 'A' + 'a');
    }
  }
  return text;
}

std::string Columns(const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::size_t> widths;
  for (const std::vector<std::string>& row : rows) {
    widths.resize(row.size() > widths.size() ? row.size() : widths.size());
    for (std::size_t column = 0; column < row.size(); ++column) {
      const std::size_t width = fmt::formatted_size("{}", Printable(row[column]));
      widths[column] = width > widths[column] ? width : widths[column];
    }
  }
  std::string text;
  for (const std::vector<std::string>& row : rows) {
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
      line += fmt::format("{:<{}}  ", Printable(row[column]), widths[column]);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + "\n";
  }
  return text;
}

bool Print(const std::string& text) {
  try {
    fmt::print(stdout, "{}", text);
  } catch (const std::exception&) {
    return false;
  }
  return std::fflush(stdout) == 0 && !std::ferror(stdout);
}

bool PrintResult(const std::string& text) {
  if (Print(text)) {
    return true;
  }
  Complain(
      "standard output: the result cannot be written (kQDAStatusFileSystemError); it is closed, or "
      "there is no room left");
  return false;
}

void Complain(const std::string& message) {
  try {
    fmt::print(stderr, "qda: {}\n", Printable(message));
  } catch (const std::exception&) {
    // There is nowhere left to say it.
  }
}

}  // namespace qda
