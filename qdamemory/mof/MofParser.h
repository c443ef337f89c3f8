// The grammar of MOF (DSP0004, annex A): words become declarations, which are handed on one by one
// as they end. Keywords compare without case.

#ifndef QDAMEMORY_MOF_MOFPARSER_H
#define QDAMEMORY_MOF_MOFPARSER_H

#include <string>
#include <vector>

#include <qdamemory/mof/MofScanner.h>
#include <qdamemory/mof/MofSyntax.h>

namespace NZRVQDA20 {
namespace mof {

// Takes what a text declares, in its order.
class Handler {
 public:
  virtual void OnInclude(const Place& place, const std::string& path) = 0;
  virtual void OnQualifier(QualifierDeclaration& declaration) = 0;
  virtual void OnClass(ClassDeclaration& declaration) = 0;
  virtual void OnInstance(InstanceDeclaration& declaration) = 0;
  virtual void OnStaticValue(StaticValue& value) = 0;

 protected:
  ~Handler() = default;
};

class Parser {
 public:
  // All must outlive the parser.
  Parser(const std::string& text, const std::string& file, Handler& handler);

  // Reads the text to its end. Throws Failure, and what the handler throws.
  void Parse();

 private:
  bool IsSymbol(char symbol) const;
  bool IsWord(const char* word) const;
  void Advance();
  bool SkipSymbol(char symbol);
  void ExpectSymbol(char symbol, const char* where);
  void ExpectWord(const char* word, const char* where);
  std::string ExpectIdentifier(const char* what);
  [[noreturn]] void FailHere(const std::string& expected) const;

  void ParseProduction();
  void ParsePragma();
  StaticValue ParseStaticValue(const Place& place, const std::string& text);
  void ParseQualifierDeclaration();
  std::int32_t ParseScope();
  std::int32_t ParseFlavor();
  void ParseFlavorWord(std::int32_t& flavor);
  Qualifiers ParseQualifiers();
  void ParseClass(Qualifiers& qualifiers);
  Feature ParseFeature();
  Parameter ParseParameter();
  void ParseInstance();
  std::string ParseAlias(const char* what);
  PropertyValue ParsePropertyValue();

  TypeName ParseType();
  ArraySize ParseArraySize();
  Value ParseValue();
  Value ParseList();
  Literal ParseLiteral();
  std::string ParseStringParts();

  Scanner fScanner;
  Handler& fHandler;
  Token fToken;
};

}  // namespace mof
}  // namespace NZRVQDA20

#endif
