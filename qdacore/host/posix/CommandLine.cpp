#include <qdacore/host/posix/CommandLine.h>

#include <cstring>

namespace NZRVQDA20 {
namespace host {
namespace {

const char kNoQuote = '\0';

bool IsOneOf(char character, const char* characters) {
  return character != '\0' && std::strchr(characters, character);
}

bool Separates(char character) { return character == ' ' || character == '\t'; }

// The characters that a backslash makes text, in text that stands within `quote`.
const char* Escapable(char quote) {
  switch (quote) {
    case '\'':
      return "";
    case '"':
      return "\"\\";
    default:
      return " '\"\\";
  }
}

// Takes the word that begins at `at`, which ends up behind it.
std::string TakeWord(const std::string& line, std::size_t& at) {
  std::string word;
  char quote = kNoQuote;
  for (; at < line.size(); ++at) {
    const char character = line[at];
    if (quote == kNoQuote && Separates(character)) {
      break;
    }
    if (character == '\\' && at + 1 < line.size() && IsOneOf(line[at + 1], Escapable(quote))) {
      word += line[++at];
    } else if (quote == kNoQuote && IsOneOf(character, "'\"")) {
      quote = character;
    } else if (quote != kNoQuote && character == quote) {
      quote = kNoQuote;
    } else {
      word += character;
    }
  }
  return word;
}

}  // namespace

std::vector<std::string> SplitCommandLine(const std::string& line) {
  std::vector<std::string> words;
  for (std::size_t at = 0; at < line.size();) {
    if (Separates(line[at])) {
      ++at;
    } else {
      words.push_back(TakeWord(line, at));
    }
  }
  return words;
}

}  // namespace host
}  // namespace NZRVQDA20
