#include <qdacore/ipmi/TCommUtil.h>

#include <algorithm>
#include <cctype>

namespace NZRVQDA20 {

namespace {

void CutAt(char mark, std::string& text) { text.erase(std::min(text.find(mark), text.size())); }

// A byte is a signed number here. The negative ones, which the C library does not promise to bear,
// are refused before it is asked.
bool IsGood(signed char character) {
  return character >= 0 &&
         (std::isalnum(character) || std::isspace(character) || std::ispunct(character));
}

}  // namespace

TCommUtil::TCommUtil() {}

TCommUtil& TCommUtil::operator=(const TCommUtil&) { return *this; }

std::string TCommUtil::RemoveSpaces(std::string text) {
  CutAt('\n', text);
  // All of it when there is nothing but blanks: npos + 1 is 0.
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
  CutAt('\r', text);
  if (!std::all_of(text.begin(), text.end(), [](char c) { return IsGood(c); })) {
    text.clear();
  }
  return text;
}

}  // namespace NZRVQDA20
