// The parts of declarations: words, types and values.

#include <limits>

#include <qdamemory/internal/CIMName.h>
#include <qdamemory/mof/MofFailure.h>
#include <qdamemory/mof/MofParser.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

typedef TCIMValue::TCIMType Type;

struct IntrinsicType {
  const char* word;
  Type::ECIMType type;
};

const IntrinsicType kTypes[] = {
    {"boolean", Type::kCIMTypeBoolean}, {"uint8", Type::kCIMTypeUint8},
    {"uint16", Type::kCIMTypeUint16},   {"uint32", Type::kCIMTypeUint32},
    {"uint64", Type::kCIMTypeUint64},   {"sint8", Type::kCIMTypeSint8},
    {"sint16", Type::kCIMTypeSint16},   {"sint32", Type::kCIMTypeSint32},
    {"sint64", Type::kCIMTypeSint64},   {"real32", Type::kCIMTypeReal32},
    {"real64", Type::kCIMTypeReal64},   {"char16", Type::kCIMTypeChar16},
    {"string", Type::kCIMTypeString},   {"datetime", Type::kCIMTypeDateTime},
};

std::string Shown(const Token& token) {
  switch (token.kind) {
    case Token::kEnd:
      return "the end of the text";
    case Token::kIdentifier:
      return Quoted(token.text);
    case Token::kSymbol:
      return std::string("\"") + token.symbol + "\"";
    case Token::kLiteral:
      break;
  }
  return "a value";
}

}  // namespace

bool Parser::IsSymbol(char symbol) const {
  return fToken.kind == Token::kSymbol && fToken.symbol == symbol;
}

bool Parser::IsWord(const char* word) const {
  return fToken.kind == Token::kIdentifier && EqualCIMNames(fToken.text, word);
}

void Parser::Advance() { fToken = fScanner.Next(); }

bool Parser::SkipSymbol(char symbol) {
  if (!IsSymbol(symbol)) {
    return false;
  }
  Advance();
  return true;
}

void Parser::ExpectSymbol(char symbol, const char* where) {
  if (!SkipSymbol(symbol)) {
    FailHere(std::string("\"") + symbol + "\" " + where);
  }
}

void Parser::ExpectWord(const char* word, const char* where) {
  if (!IsWord(word)) {
    FailHere(std::string("the word \"") + word + "\" " + where);
  }
  Advance();
}

std::string Parser::ExpectIdentifier(const char* what) {
  if (fToken.kind != Token::kIdentifier) {
    FailHere(what);
  }
  const std::string name = fToken.text;
  Advance();
  return name;
}

void Parser::FailHere(const std::string& expected) const {
  Fail(fToken.place, "expected " + expected + ", found " + Shown(fToken));
}

TypeName Parser::ParseType() {
  TypeName type;
  type.place = fToken.place;
  const std::string word = ExpectIdentifier("a type or the name of a class");
  for (const IntrinsicType& intrinsic : kTypes) {
    if (EqualCIMNames(word, intrinsic.word)) {
      type.type = intrinsic.type;
      return type;
    }
  }
  if (!IsWord("ref")) {
    Fail(type.place, Quoted(word) + " is no type; a reference to a class reads " +
                         Quoted(word + " REF") + " in front of its name");
  }
  Advance();
  type.type = Type::kCIMTypeReference;
  type.className = word;
  return type;
}

ArraySize Parser::ParseArraySize() {
  ArraySize array;
  if (!SkipSymbol('[')) {
    return array;
  }
  array.isArray = true;
  if (fToken.kind == Token::kLiteral && fToken.literal.kind == Literal::kInteger &&
      !fToken.literal.negative && fToken.literal.magnitude != 0 &&
      fToken.literal.magnitude <= std::numeric_limits<unsigned int>::max()) {
    array.size = static_cast<unsigned int>(fToken.literal.magnitude);
    Advance();
  } else if (!IsSymbol(']')) {
    FailHere("the size of the array, from 1 to 4294967295, or \"]\"");
  }
  ExpectSymbol(']', "behind the size of the array");
  return array;
}

Value Parser::ParseValue() {
  if (IsSymbol('{')) {
    return ParseList();
  }
  Value value;
  value.place = fToken.place;
  value.literals.push_back(ParseLiteral());
  return value;
}

Value Parser::ParseList() {
  Value value;
  value.place = fToken.place;
  value.isArray = true;
  ExpectSymbol('{', "in front of the values");
  while (!IsSymbol('}')) {
    value.literals.push_back(ParseLiteral());
    if (!IsSymbol('}')) {
      ExpectSymbol(',', "between values");
    }
  }
  Advance();
  return value;
}

Literal Parser::ParseLiteral() {
  Literal literal;
  literal.place = fToken.place;
  if (IsWord("null")) {
    Advance();
    return literal;
  }
  if (IsWord("true") || IsWord("false")) {
    literal.kind = Literal::kBoolean;
    literal.magnitude = IsWord("true") ? 1 : 0;
    Advance();
    return literal;
  }
  if (fToken.kind != Token::kLiteral) {
    FailHere("a value");
  }
  literal = fToken.literal;
  if (literal.kind == Literal::kString) {
    literal.text = ParseStringParts();
  } else {
    Advance();
  }
  return literal;
}

// Strings that follow one another are one string.
std::string Parser::ParseStringParts() {
  if (fToken.kind != Token::kLiteral || fToken.literal.kind != Literal::kString) {
    FailHere("a string");
  }
  std::string text;
  while (fToken.kind == Token::kLiteral && fToken.literal.kind == Literal::kString) {
    text += fToken.literal.text;
    Advance();
  }
  return text;
}

}  // namespace mof
}  // namespace NZRVQDA20
