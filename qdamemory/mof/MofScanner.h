// The words of a MOF text (DSP0004, annex A). The text is bytes; strings are handed on as they
// stand, in UTF-8 as a rule.

#ifndef QDAMEMORY_MOF_MOFSCANNER_H
#define QDAMEMORY_MOF_MOFSCANNER_H

#include <cstddef>
#include <string>

#include <qdamemory/mof/MofSyntax.h>

namespace NZRVQDA20 {
namespace mof {

struct Token {
  // kSymbol: one of { } ( ) [ ] ; : , = and, alone, the "#" of a pragma.
  enum Kind { kEnd, kIdentifier, kLiteral, kSymbol };

  Kind kind = kEnd;
  Place place;
  char symbol = 0;
  std::string text;  // kIdentifier
  Literal literal;   // integer, real, character, string (one part of it), alias
};

class Scanner {
 public:
  // Both must outlive the scanner.
  Scanner(const std::string& text, const std::string& file);

  // The next word. Throws Failure at what is none.
  Token Next();

 private:
  bool AtEnd() const { return fAt == fText.size(); }
  char Peek(std::size_t ahead = 0) const;
  char Take();
  void SkipBlanks();
  void SkipBlockComment();
  Token Identifier();
  Token Number();
  Token Integer(const std::string& digits, const Place& place);
  Token String();
  Token Character();
  void AppendEscape(std::string& text);
  unsigned int HexEscape(const Place& place);
  Place Here() const;

  const std::string& fText;
  const std::string& fFile;
  std::size_t fAt = 0;
  unsigned int fLine = 1;
  std::size_t fLineStart = 0;
};

// A code unit as UTF-8; half of a surrogate pair like any other unit of its range.
void AppendUtf8(unsigned int unit, std::string& text);

}  // namespace mof
}  // namespace NZRVQDA20

#endif
