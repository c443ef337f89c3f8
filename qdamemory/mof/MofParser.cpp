// Productions and declarations; what they are made of stands in MofParserValues.cpp.

#include <qdamemory/mof/MofParser.h>

#include <utility>

#include <qdamemory/StandardQualifiers.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/mof/MofFailure.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

struct Word {
  const char* word;
  std::int32_t bits;
};

const Word kScopes[] = {
    {"class", kQualifierScopeClass},           {"association", kQualifierScopeAssociation},
    {"indication", kQualifierScopeIndication}, {"property", kQualifierScopeProperty},
    {"reference", kQualifierScopeReference},   {"method", kQualifierScopeMethod},
    {"parameter", kQualifierScopeParameter},   {"any", kQualifierScopeAny},
};

// A qualifier's declaration that says nothing of its flavor (DSP0004, "Qualifier flavors").
const std::int32_t kDefaultFlavor = kQualifierEnableOverride | kQualifierToSubclass;

}  // namespace

Parser::Parser(const std::string& text, const std::string& file, Handler& handler)
    : fScanner(text, file), fHandler(handler) {}

void Parser::Parse() {
  Advance();
  while (fToken.kind != Token::kEnd) {
    ParseProduction();
  }
}

void Parser::ParseProduction() {
  if (IsSymbol('#')) {
    return ParsePragma();
  }
  if (IsWord("qualifier")) {
    return ParseQualifierDeclaration();
  }
  Qualifiers qualifiers = ParseQualifiers();
  if (IsWord("class")) {
    return ParseClass(qualifiers);
  }
  if (IsWord("instance")) {
    // Qualifiers of instances are gone from the standard; old texts have them.
    return ParseInstance();
  }
  FailHere("a class, an instance, a qualifier's declaration or a #pragma");
}

void Parser::ParsePragma() {
  Advance();
  ExpectWord("pragma", "behind \"#\"");
  const std::string name = FoldCIMName(ExpectIdentifier("the name of the pragma"));
  ExpectSymbol('(', "behind the name of the pragma");
  const Place place = fToken.place;
  const std::string text = ParseStringParts();
  if (!IsSymbol(')')) {
    FailHere("\")\" at the end of the pragma");
  }
  // What is included stands in front of the next word here.
  if (name == "include") {
    fHandler.OnInclude(place, text);
  } else if (name == "qda_static_value") {
    StaticValue value = ParseStaticValue(place, text);
    fHandler.OnStaticValue(value);
  }
  Advance();
}

// "CLASS.PROPERTY = VALUE"; places inside it are those of the string.
StaticValue Parser::ParseStaticValue(const Place& place, const std::string& text) {
  const std::size_t dot = text.find('.');
  if (dot == std::string::npos) {
    Fail(place, "a static value reads \"CLASS.PROPERTY = VALUE\"");
  }
  StaticValue value;
  value.place = place;
  value.className.assign(text, 0, dot);
  const std::string rest = text.substr(dot + 1) + ";";
  Parser inner(rest, *place.file, fHandler);
  try {
    inner.Advance();
    value.value = inner.ParsePropertyValue();
    if (inner.fToken.kind != Token::kEnd) {
      inner.FailHere("the end of the static value");
    }
  } catch (Failure& failure) {
    failure.place = place;
    throw;
  }
  value.value.place = value.value.value.place = place;
  for (Literal& literal : value.value.value.literals) {
    literal.place = place;
  }
  return value;
}

void Parser::ParseQualifierDeclaration() {
  QualifierDeclaration declaration;
  Advance();
  declaration.place = fToken.place;
  declaration.name = ExpectIdentifier("the name of the qualifier");
  ExpectSymbol(':', "and its type");
  declaration.type = ParseType();
  declaration.array = ParseArraySize();
  if (SkipSymbol('=')) {
    declaration.value = ParseValue();
  }
  ExpectSymbol(',', "and the scope");
  ExpectWord("scope", "of the qualifier");
  declaration.scope = ParseScope();
  declaration.flavor = SkipSymbol(',') ? ParseFlavor() : kDefaultFlavor;
  ExpectSymbol(';', "at the end of the qualifier's declaration");
  fHandler.OnQualifier(declaration);
}

std::int32_t Parser::ParseScope() {
  std::int32_t scope = 0;
  ExpectSymbol('(', "and the elements that the qualifier is for");
  while (!IsSymbol(')')) {
    std::int32_t bits = 0;
    for (const Word& word : kScopes) {
      bits |= IsWord(word.word) ? word.bits : 0;
    }
    // Schemas are no elements any more; old texts have the word.
    if (bits == 0 && !IsWord("schema")) {
      FailHere("class, association, indication, property, reference, method, parameter or any");
    }
    scope |= bits;
    Advance();
    if (!IsSymbol(')')) {
      ExpectSymbol(',', "between elements");
    }
  }
  Advance();
  return scope;
}

std::int32_t Parser::ParseFlavor() {
  std::int32_t flavor = kDefaultFlavor;
  ExpectWord("flavor", "of the qualifier");
  ExpectSymbol('(', "and the flavor");
  while (!IsSymbol(')')) {
    ParseFlavorWord(flavor);
    if (!IsSymbol(')')) {
      ExpectSymbol(',', "between flavors");
    }
  }
  Advance();
  return flavor;
}

void Parser::ParseFlavorWord(std::int32_t& flavor) {
  if (IsWord("enableoverride")) {
    flavor |= kQualifierEnableOverride;
  } else if (IsWord("disableoverride")) {
    flavor &= ~kQualifierEnableOverride;
  } else if (IsWord("tosubclass")) {
    flavor |= kQualifierToSubclass;
  } else if (IsWord("restricted")) {
    flavor &= ~kQualifierToSubclass;
  } else if (IsWord("translatable")) {
    flavor |= kQualifierTranslatable;
  } else if (!IsWord("toinstance")) {  // gone from the standard
    FailHere("EnableOverride, DisableOverride, ToSubclass, Restricted or Translatable");
  }
  Advance();
}

Qualifiers Parser::ParseQualifiers() {
  Qualifiers qualifiers;
  if (!SkipSymbol('[')) {
    return qualifiers;
  }
  do {
    QualifierUse use;
    use.place = fToken.place;
    use.name = ExpectIdentifier("the name of a qualifier");
    if (IsSymbol('{')) {
      use.value = ParseList();
    } else if (SkipSymbol('(')) {
      use.value = Value{fToken.place, false, {ParseLiteral()}};
      ExpectSymbol(')', "behind the value of the qualifier");
    }
    if (SkipSymbol(':')) {
      // A flavor of its own has no place in a namespace: the declaration's counts.
      std::int32_t flavor = 0;
      while (fToken.kind == Token::kIdentifier) {
        ParseFlavorWord(flavor);
      }
    }
    qualifiers.push_back(std::move(use));
  } while (SkipSymbol(','));
  ExpectSymbol(']', "behind the qualifiers");
  return qualifiers;
}

void Parser::ParseClass(Qualifiers& qualifiers) {
  ClassDeclaration declaration;
  declaration.qualifiers = std::move(qualifiers);
  Advance();
  declaration.place = fToken.place;
  declaration.name = ExpectIdentifier("the name of the class");
  // Nothing that can be written refers to a class by an alias.
  ParseAlias("the alias of the class");
  if (SkipSymbol(':')) {
    declaration.superclassPlace = fToken.place;
    declaration.superclass = ExpectIdentifier("the name of the superclass");
  }
  ExpectSymbol('{', "and the properties and methods of the class");
  while (!IsSymbol('}')) {
    declaration.features.push_back(ParseFeature());
  }
  Advance();
  ExpectSymbol(';', "at the end of the class");
  fHandler.OnClass(declaration);
}

Feature Parser::ParseFeature() {
  Feature feature;
  feature.qualifiers = ParseQualifiers();
  feature.type = ParseType();
  feature.place = fToken.place;
  feature.name = ExpectIdentifier("the name of the property or method");
  feature.isMethod = SkipSymbol('(');
  if (feature.isMethod) {
    while (!IsSymbol(')')) {
      feature.parameters.push_back(ParseParameter());
      if (!IsSymbol(')')) {
        ExpectSymbol(',', "between parameters");
      }
    }
    Advance();
    ExpectSymbol(';', "at the end of the method");
    return feature;
  }
  feature.array = ParseArraySize();
  if (SkipSymbol('=')) {
    feature.value = ParseValue();
  }
  ExpectSymbol(';', "at the end of the property");
  return feature;
}

Parameter Parser::ParseParameter() {
  Parameter parameter;
  parameter.qualifiers = ParseQualifiers();
  parameter.type = ParseType();
  parameter.place = fToken.place;
  parameter.name = ExpectIdentifier("the name of the parameter");
  parameter.array = ParseArraySize();
  return parameter;
}

void Parser::ParseInstance() {
  InstanceDeclaration declaration;
  declaration.place = fToken.place;
  Advance();
  ExpectWord("of", "behind \"instance\"");
  declaration.className = ExpectIdentifier("the name of the instance's class");
  declaration.alias = ParseAlias("the alias of the instance, such as $Disk");
  ExpectSymbol('{', "and the values of the instance");
  while (!IsSymbol('}')) {
    declaration.values.push_back(ParsePropertyValue());
  }
  Advance();
  ExpectSymbol(';', "at the end of the instance");
  fHandler.OnInstance(declaration);
}

// "as $NAME", with the "$"; empty where there is none.
std::string Parser::ParseAlias(const char* what) {
  if (!IsWord("as")) {
    return std::string();
  }
  Advance();
  if (fToken.kind != Token::kLiteral || fToken.literal.kind != Literal::kAlias) {
    FailHere(what);
  }
  const std::string alias = fToken.literal.text;
  Advance();
  return alias;
}

PropertyValue Parser::ParsePropertyValue() {
  PropertyValue property;
  ParseQualifiers();
  property.place = fToken.place;
  property.name = ExpectIdentifier("the name of a property");
  ExpectSymbol('=', "and the value of the property");
  property.value = ParseValue();
  ExpectSymbol(';', "behind the value of the property");
  return property;
}

}  // namespace mof
}  // namespace NZRVQDA20
