#include <qdamemory/mof/MofScanner.h>

#include <charconv>
#include <limits>

#include <qdamemory/mof/MofFailure.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Bytes beyond ASCII are parts of letters.
bool BeginsIdentifier(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool ContinuesIdentifier(char c) { return BeginsIdentifier(c) || IsDigit(c); }

int HexDigit(char c) {
  if (IsDigit(c)) {
    return c - '0';
  }
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string Shown(char c) {
  if (c > 0x20 && c < 0x7F) {
    return std::string("\"") + c + "\"";
  }
  const char* digits = "0123456789ABCDEF";
  const unsigned char byte = static_cast<unsigned char>(c);
  return std::string("the byte 0x") + digits[byte >> 4] + digits[byte & 15];
}

// The code unit that `text` begins with, in UTF-8, and how many bytes it takes; none where the
// bytes are no character, or one beyond the 16 bits of a code unit.
std::size_t Utf8Unit(const char* text, std::size_t size, std::uint64_t* unit) {
  const auto byte = [&](std::size_t at) {
    return at < size ? static_cast<unsigned char>(text[at]) : 0u;
  };
  const auto continues = [&](std::size_t at) { return (byte(at) & 0xC0) == 0x80; };
  if (byte(0) < 0x80) {
    *unit = byte(0);
    return 1;
  }
  if (byte(0) >= 0xC2 && byte(0) < 0xE0 && continues(1)) {
    *unit = (byte(0) & 0x1F) << 6 | (byte(1) & 0x3F);
    return 2;
  }
  if ((byte(0) & 0xF0) == 0xE0 && continues(1) && continues(2)) {
    *unit = (byte(0) & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F);
    return *unit < 0x800 ? 0 : 3;
  }
  return 0;
}

// The digits of an integer without its sign; false when they do not fit.
bool Magnitude(const char* begin, const char* end, int base, std::uint64_t* magnitude) {
  const std::from_chars_result result = std::from_chars(begin, end, *magnitude, base);
  return result.ec == std::errc() && result.ptr == end;
}

}  // namespace

void AppendUtf8(unsigned int unit, std::string& text) {
  if (unit < 0x80) {
    text += static_cast<char>(unit);
  } else if (unit < 0x800) {
    text += static_cast<char>(0xC0 | (unit >> 6));
    text += static_cast<char>(0x80 | (unit & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (unit >> 12));
    text += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (unit & 0x3F));
  }
}

Scanner::Scanner(const std::string& text, const std::string& file) : fText(text), fFile(file) {
  if (fText.compare(0, 3, "\xEF\xBB\xBF") == 0) {
    fAt = fLineStart = 3;
  }
}

char Scanner::Peek(std::size_t ahead) const {
  return fText.size() - fAt > ahead ? fText[fAt + ahead] : '\0';
}

char Scanner::Take() {
  const char c = fText[fAt++];
  if (c == '\n') {
    ++fLine;
    fLineStart = fAt;
  }
  return c;
}

Place Scanner::Here() const {
  return {&fFile, fLine, static_cast<unsigned int>(fAt - fLineStart + 1)};
}

void Scanner::SkipBlockComment() {
  const Place begin = Here();
  fAt += 2;
  while (!(Peek() == '*' && Peek(1) == '/')) {
    if (AtEnd()) {
      Fail(begin, "this comment has no end");
    }
    Take();
  }
  fAt += 2;
}

void Scanner::SkipBlanks() {
  while (!AtEnd()) {
    const char c = Peek();
    if (c == ' ' || (c >= '\t' && c <= '\r')) {
      Take();
    } else if (c == '/' && Peek(1) == '/') {
      while (!AtEnd() && Peek() != '\n') {
        ++fAt;
      }
    } else if (c == '/' && Peek(1) == '*') {
      SkipBlockComment();
    } else {
      return;
    }
  }
}

Token Scanner::Next() {
  SkipBlanks();
  Token token;
  token.place = Here();
  if (AtEnd()) {
    return token;
  }
  const char c = Peek();
  if (BeginsIdentifier(c) || c == '$') {
    return Identifier();
  }
  if (IsDigit(c) || c == '+' || c == '-' || (c == '.' && IsDigit(Peek(1)))) {
    return Number();
  }
  if (c == '"') {
    return String();
  }
  if (c == '\'') {
    return Character();
  }
  if (std::string("{}()[];:,=#").find(c) == std::string::npos) {
    Fail(token.place, Shown(c) + " has no meaning here");
  }
  token.kind = Token::kSymbol;
  token.symbol = Take();
  return token;
}

Token Scanner::Identifier() {
  Token token;
  token.place = Here();
  const std::size_t begin = fAt;
  if (Peek() == '$') {
    token.kind = Token::kLiteral;
    token.literal.kind = Literal::kAlias;
    token.literal.place = token.place;
    ++fAt;
    if (!BeginsIdentifier(Peek())) {
      Fail(token.place, "a \"$\" begins the name of an alias, and no name follows");
    }
  } else {
    token.kind = Token::kIdentifier;
  }
  while (!AtEnd() && ContinuesIdentifier(Peek())) {
    ++fAt;
  }
  (token.kind == Token::kIdentifier ? token.text : token.literal.text)
      .assign(fText, begin, fAt - begin);
  return token;
}

Token Scanner::Number() {
  const Place place = Here();
  const std::size_t begin = fAt;
  if (Peek() == '+' || Peek() == '-') {
    ++fAt;
  }
  bool isReal = false;
  const bool isHexadecimal = Peek() == '0' && (Peek(1) | 0x20) == 'x';
  while (!AtEnd()) {
    const char c = Peek();
    const bool isSign =
        (c == '+' || c == '-') && !isHexadecimal && fAt > begin && (fText[fAt - 1] | 0x20) == 'e';
    if (!ContinuesIdentifier(c) && c != '.' && !isSign) {
      break;
    }
    isReal = isReal || c == '.';
    ++fAt;
  }
  const std::string digits(fText, begin, fAt - begin);
  if (!isReal) {
    return Integer(digits, place);
  }
  Token token;
  token.kind = Token::kLiteral;
  token.place = token.literal.place = place;
  token.literal.kind = Literal::kReal;
  const char* first = digits.c_str() + (digits[0] == '+' ? 1 : 0);
  const char* last = digits.c_str() + digits.size();
  const std::from_chars_result result = std::from_chars(first, last, token.literal.real);
  if (result.ec != std::errc() || result.ptr != last) {
    Fail(place, Quoted(digits) + " is no number, or beyond what a real64 holds");
  }
  return token;
}

// Decimal, 0x.., 0.. (octal) or ..b (binary).
Token Scanner::Integer(const std::string& digits, const Place& place) {
  Token token;
  token.kind = Token::kLiteral;
  token.place = token.literal.place = place;
  token.literal.kind = Literal::kInteger;
  const char* begin = digits.c_str();
  const char* end = begin + digits.size();
  if (*begin == '+' || *begin == '-') {
    token.literal.negative = *begin++ == '-';
  }
  int base = 10;
  if (end - begin > 2 && begin[0] == '0' && (begin[1] | 0x20) == 'x') {
    base = 16;
    begin += 2;
  } else if (end - begin > 1 && (end[-1] | 0x20) == 'b') {
    base = 2;
    --end;
  } else if (end - begin > 1 && begin[0] == '0') {
    base = 8;
  }
  if (!Magnitude(begin, end, base, &token.literal.magnitude)) {
    Fail(place, Quoted(digits) + " is no whole number, or beyond 64 bits");
  }
  return token;
}

unsigned int Scanner::HexEscape(const Place& place) {
  unsigned int unit = 0;
  int count = 0;
  for (; count < 4 && HexDigit(Peek()) >= 0; ++count) {
    unit = unit * 16 + static_cast<unsigned int>(HexDigit(Take()));
  }
  if (count == 0) {
    Fail(place, "\\x needs one to four hexadecimal digits behind it");
  }
  return unit;
}

void Scanner::AppendEscape(std::string& text) {
  const Place place = Here();
  ++fAt;
  if (AtEnd()) {
    Fail(place, "the text ends in an escape");
  }
  const char c = Take();
  switch (c) {
    case 'b':
      text += '\b';
      break;
    case 't':
      text += '\t';
      break;
    case 'n':
      text += '\n';
      break;
    case 'f':
      text += '\f';
      break;
    case 'r':
      text += '\r';
      break;
    case '"':
    case '\'':
    case '\\':
      text += c;
      break;
    case 'x':
    case 'X':
      AppendUtf8(HexEscape(place), text);
      break;
    default:
      Fail(place, "there is no escape of a backslash and " + Shown(c));
  }
}

Token Scanner::String() {
  Token token;
  token.kind = Token::kLiteral;
  token.place = token.literal.place = Here();
  token.literal.kind = Literal::kString;
  std::string& text = token.literal.text;
  ++fAt;
  for (;;) {
    const std::size_t run = fText.find_first_of("\"\\\n", fAt);
    if (run == std::string::npos || fText[run] == '\n') {
      Fail(token.place, "this string has no closing quote on its line");
    }
    text.append(fText, fAt, run - fAt);
    fAt = run;
    if (Peek() == '"') {
      ++fAt;
      return token;
    }
    AppendEscape(text);
  }
}

Token Scanner::Character() {
  Token token;
  token.kind = Token::kLiteral;
  token.place = token.literal.place = Here();
  token.literal.kind = Literal::kCharacter;
  ++fAt;
  if (Peek() == '\\' && (Peek(1) | 0x20) == 'x') {
    const Place place = Here();
    fAt += 2;
    token.literal.magnitude = HexEscape(place);
  } else if (Peek() == '\\') {
    std::string text;
    AppendEscape(text);
    token.literal.magnitude = static_cast<unsigned char>(text[0]);
  } else {
    const bool isThere = !AtEnd() && Peek() != '\'' && Peek() != '\n';
    const std::size_t size =
        isThere ? Utf8Unit(&fText[fAt], fText.size() - fAt, &token.literal.magnitude) : 0;
    if (size == 0) {
      Fail(token.place,
           "a char16 is one character of 16 bits, in UTF-8, or \\x and its code in single quotes");
    }
    fAt += size;
  }
  if (Peek() != '\'') {
    Fail(token.place, "this char16 has no closing quote, or more than one character");
  }
  ++fAt;
  return token;
}

}  // namespace mof
}  // namespace NZRVQDA20
