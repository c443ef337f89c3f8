// NamespaceBuilder: a namespace in memory while it is being filled.
//
//   const Object fan = builder.Create(kFan)
//                          .Key("DeviceID", "fan-0")
//                          .Set("DesiredSpeed", speed)  // std::nullopt: stays the typed null
//                          .Publish();
//   builder.Associate(kSystemDevice, builder.Kept(kSystemRole), fan);
//   builder.Keep("fan", 0, fan);                        // for families that come later
//
// Classes are declared when they are first asked for, so a namespace has what its families name
// and nothing else. A family names all its classes, also those that it finds no objects for:
// that a machine has no fan is an answer, that there is no such class is a surprise.
//
// Not for several threads. Throws std::bad_alloc, and TQDAException for rows that contradict
// each other or values of another type than their row says, which is a mistake in a family.

#ifndef PLUGINS_MACHINE_NAMESPACEBUILDER_H
#define PLUGINS_MACHINE_NAMESPACEBUILDER_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <plugins/machine/SchemaRows.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {
class ICIMClass;
class ICIMInstance;
class ICIMNamespace;
class ICIMQualifierDecl;
}  // namespace NZRVQDA20

namespace machine {

// A published object, as associations refer to it: a reference value (TCIMReference with the
// namespace, the object's own class and all its keys). Null when there is no such object, or
// when one of its keys is null, because no path leads to it then.
class Object {
 public:
  Object() {}
  explicit Object(const NZRVQDA20::TCIMValue& reference) : fReference(reference) {}

  bool HasName() const { return !fReference.IsNull(); }
  const NZRVQDA20::TCIMValue& Reference() const { return fReference; }

 private:
  NZRVQDA20::TCIMValue fReference;
};

// An object before it is published. What is not set stays the typed null that it is declared as.
class NewObject {
 public:
  // A key, which the object's reference will have. Absent: a null key.
  template <class T>
  NewObject& Key(const char* name, const std::optional<T>& value) {
    return value ? KeyValue(name, NZRVQDA20::TCIMValue(*value)) : NoKey();
  }
  template <class T>
  NewObject& Key(const char* name, const T& value) {
    return KeyValue(name, NZRVQDA20::TCIMValue(value));
  }

  template <class T>
  NewObject& Set(const char* name, const std::optional<T>& value) {
    return value ? SetValue(name, NZRVQDA20::TCIMValue(*value)) : *this;
  }
  template <class T>
  NewObject& Set(const char* name, const T& value) {
    return SetValue(name, NZRVQDA20::TCIMValue(value));
  }

  // An empty text is a text that is not known.
  NewObject& Text(const char* name, std::string_view text);

  // An array of `type` (the element's). No elements: stays null.
  template <class T>
  NewObject& Array(const char* name, PropertyType type, const std::vector<T>& elements) {
    if (elements.empty()) {
      return *this;
    }
    std::vector<NZRVQDA20::TCIMValue> values;
    values.reserve(elements.size());
    for (const T& element : elements) {
      values.push_back(NZRVQDA20::TCIMValue(element));
    }
    return SetValue(name, NZRVQDA20::TCIMValue(NZRVQDA20::TCIMValue::TCIMType(type), 0, values));
  }

  NewObject& SetValue(const char* name, const NZRVQDA20::TCIMValue& value);

  // Takes the object into its class. When the class has one with the same keys already, that one
  // stays, and this one is left out with a warning in the core log: what a machine says about
  // itself may be wrong, and one such fact must not cost all the others.
  Object Publish();

 private:
  friend class NamespaceBuilder;
  NewObject(const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& ns,
            const boost::shared_ptr<NZRVQDA20::ICIMClass>& cls);

  NewObject& KeyValue(const char* name, const NZRVQDA20::TCIMValue& value);
  NewObject& NoKey();

  boost::shared_ptr<NZRVQDA20::ICIMClass> fClass;
  boost::shared_ptr<NZRVQDA20::ICIMInstance> fInstance;
  NZRVQDA20::TCIMReference fReference;
  bool fHasName = true;
};

class NamespaceBuilder {
 public:
  // A new namespace "root/cimv2" with the standard qualifiers declared.
  NamespaceBuilder();

  NamespaceBuilder(const NamespaceBuilder&) = delete;
  NamespaceBuilder& operator=(const NamespaceBuilder&) = delete;

  // The class of `row`, declared with its superclasses unless it is there already. A row is known
  // by its address.
  const boost::shared_ptr<NZRVQDA20::ICIMClass>& Declare(const ClassRow& row);
  const boost::shared_ptr<NZRVQDA20::ICIMClass>& Declare(const AssociationRow& row);

  NewObject Create(const ClassRow& row);

  // Publishes an association object between the two. Nothing, when one of them has no name.
  // `more` are the association's own properties; null values stay the nulls they are declared as.
  typedef std::vector<std::pair<const char*, NZRVQDA20::TCIMValue> > Properties;
  void Associate(const AssociationRow& row, const Object& first, const Object& second,
                 const Properties& more = Properties());

  // Leaves an object for the families behind: `role` is what it is, `number` which one of them,
  // such as an SMBIOS handle. The first one that was kept stays.
  void Keep(const std::string& role, std::uint32_t number, const Object& object);
  // The object that was kept; one without a name when there is none.
  const Object& Kept(const std::string& role, std::uint32_t number = 0) const;

  const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& Namespace() const { return fNamespace; }

 private:
  typedef std::unordered_map<const void*, boost::shared_ptr<NZRVQDA20::ICIMClass> > Classes;

  const boost::shared_ptr<NZRVQDA20::ICIMClass>& DeclareNew(const ClassRow& row);
  const boost::shared_ptr<NZRVQDA20::ICIMClass>& DeclareNew(const AssociationRow& row);
  void AddProperties(NZRVQDA20::ICIMClass& cls, const PropertyRow* properties, std::size_t count);
  void MarkAsKey(NZRVQDA20::ICIMClass& cls, const char* property,
                 const NZRVQDA20::TCIMValue& typedNull);

  const boost::shared_ptr<NZRVQDA20::ICIMNamespace> fNamespace;
  boost::shared_ptr<NZRVQDA20::ICIMQualifierDecl> fKey;
  Classes fClasses;
  std::map<std::pair<std::string, std::uint32_t>, Object> fKept;
  const Object fNone;
};

}  // namespace machine

#endif
