// What stands in a MOF text, as the parser hands it on: nothing is looked up yet.

#ifndef QDAMEMORY_MOF_MOFSYNTAX_H
#define QDAMEMORY_MOF_MOFSYNTAX_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {
namespace mof {

// Stands for the class of a reference that nobody knows: a parameter keeps no class.
const char kAnyClass[] = "Any";

// A place in one of the files of a reading.
struct Place {
  const std::string* file = nullptr;
  unsigned int line = 0;
  unsigned int column = 0;
};

struct Literal {
  enum Kind { kNull, kBoolean, kInteger, kReal, kString, kCharacter, kAlias };

  Kind kind = kNull;
  Place place;
  std::string text;             // kString, kAlias (with its "$")
  bool negative = false;        // kInteger
  std::uint64_t magnitude = 0;  // kInteger; kBoolean: 0 or 1; kCharacter: the code unit
  double real = 0;              // kReal
};

struct Value {
  Place place;
  bool isArray = false;
  std::vector<Literal> literals;  // exactly one unless it is an array
};

// A type as it is written: one of the intrinsic ones, or a reference to a class.
struct TypeName {
  Place place;
  TCIMValue::TCIMType::ECIMType type = TCIMValue::TCIMType::kCIMTypeNone;
  std::string className;  // of a reference
};

// [], [8] or nothing behind a name.
struct ArraySize {
  bool isArray = false;
  unsigned int size = 0;  // 0: not said
};

struct QualifierUse {
  Place place;
  std::string name;
  std::optional<Value> value;
};

typedef std::vector<QualifierUse> Qualifiers;

struct QualifierDeclaration {
  Place place;
  std::string name;
  TypeName type;
  ArraySize array;
  std::optional<Value> value;
  std::int32_t scope = 0;
  std::int32_t flavor = 0;
};

struct Parameter {
  Place place;
  Qualifiers qualifiers;
  TypeName type;
  std::string name;
  ArraySize array;
};

struct Feature {
  Place place;
  Qualifiers qualifiers;
  TypeName type;
  std::string name;
  bool isMethod = false;
  ArraySize array;                    // of a property
  std::optional<Value> value;         // of a property
  std::vector<Parameter> parameters;  // of a method
};

struct ClassDeclaration {
  Place place;
  Qualifiers qualifiers;
  std::string name;
  Place superclassPlace;
  std::string superclass;  // empty: a root class
  std::vector<Feature> features;
};

struct PropertyValue {
  Place place;
  std::string name;
  Value value;
};

struct InstanceDeclaration {
  Place place;
  std::string className;
  std::string alias;  // with its "$"; empty: none
  std::vector<PropertyValue> values;
};

struct StaticValue {
  Place place;
  std::string className;
  PropertyValue value;
};

}  // namespace mof
}  // namespace NZRVQDA20

#endif
