// How the classes that the provider serves are written down: as constant rows, which
// NamespaceBuilder declares when they are first needed, superclasses and the classes of
// association ends included. So a family of classes is one source of its own, and adding one
// touches no other.
//
//   const PropertyRow kFanProperties[] = {{"DesiredSpeed", kUint64}};
//   const ClassRow kFan("CIM_Fan", &kCoolingDevice, kFanProperties);
//
// Names and types are those of the DMTF CIM Schema 2.49, where it has them.

#ifndef PLUGINS_MACHINE_SCHEMAROWS_H
#define PLUGINS_MACHINE_SCHEMAROWS_H

#include <cstddef>

#include <qdacore/cim/value/TCIMValue.h>

namespace machine {

typedef NZRVQDA20::TCIMValue::TCIMType::ECIMType PropertyType;

const PropertyType kBoolean = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeBoolean;
const PropertyType kUint8 = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeUint8;
const PropertyType kUint16 = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeUint16;
const PropertyType kUint32 = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeUint32;
const PropertyType kUint64 = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeUint64;
const PropertyType kReal32 = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeReal32;
const PropertyType kSint16 = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeSint16;
const PropertyType kSint32 = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeSint32;
const PropertyType kSint64 = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeSint64;
const PropertyType kString = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeString;
const PropertyType kDateTime = NZRVQDA20::TCIMValue::TCIMType::kCIMTypeDateTime;

constexpr PropertyType ArrayOf(PropertyType element) {
  return static_cast<PropertyType>(element | NZRVQDA20::TCIMValue::TCIMType::kCIMTypeArrayFlag);
}

enum KeyRole { kNoKey, kKey };

struct PropertyRow {
  const char* name;
  PropertyType type;
  KeyRole role = kNoKey;
};

enum ClassKind { kConcrete, kAbstract };

struct ClassRow {
  constexpr ClassRow(const char* itsName, const ClassRow* itsSuperclass,
                     ClassKind itsKind = kConcrete)
      : name(itsName), superclass(itsSuperclass), properties(nullptr), count(0), kind(itsKind) {}

  template <std::size_t N>
  constexpr ClassRow(const char* itsName, const ClassRow* itsSuperclass,
                     const PropertyRow (&itsProperties)[N], ClassKind itsKind = kConcrete)
      : name(itsName),
        superclass(itsSuperclass),
        properties(itsProperties),
        count(N),
        kind(itsKind) {}

  const char* name;
  const ClassRow* superclass;  // null for a root class
  const PropertyRow* properties;
  std::size_t count;
  ClassKind kind;
};

struct EndRow {
  const char* name;
  const ClassRow* of;  // the class that it refers to; instances of subclasses fit too
};

// An association of two ends, both of them keys, and perhaps properties of its own.
struct AssociationRow {
  constexpr AssociationRow(const char* itsName, EndRow itsFirst, EndRow itsSecond)
      : name(itsName), first(itsFirst), second(itsSecond), properties(nullptr), count(0) {}

  template <std::size_t N>
  constexpr AssociationRow(const char* itsName, EndRow itsFirst, EndRow itsSecond,
                           const PropertyRow (&itsProperties)[N])
      : name(itsName), first(itsFirst), second(itsSecond), properties(itsProperties), count(N) {}

  const char* name;
  EndRow first;
  EndRow second;
  const PropertyRow* properties;
  std::size_t count;
};

}  // namespace machine

#endif
