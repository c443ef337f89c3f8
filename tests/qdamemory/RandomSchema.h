// A random schema with random instances in a namespace in memory: trees of classes and of
// associations, all types, arrays, nulls, overriding, static values, methods with parameters,
// qualifiers on everything, references as keys of references up to four deep. The same seed gives
// the same.

#ifndef TESTS_QDAMEMORY_RANDOMSCHEMA_H
#define TESTS_QDAMEMORY_RANDOMSCHEMA_H

#include <cstddef>
#include <string>
#include <vector>

#include <tests/qdamemory/MemoryTestSupport.h>
#include <tests/qdamemory/RandomValues.h>

namespace memory_test {

// What one of the two ways of moving a namespace does not keep, and so is left out of its test.
enum class RandomFor {
  // No null over a default, which a copy leaves out; no label on a reference, which it drops.
  kCopy,
  kMof
};

class RandomSchema {
 public:
  RandomSchema(unsigned int seed, RandomFor purpose);

  const Namespace& Built() const { return fNamespace; }
  // In order of creation: those that one refers to stand before it.
  const std::vector<Instance>& Instances() const { return fInstances; }
  // How deep references nest in the keys of a class: 1 without any.
  int Depth() const;

 private:
  struct Property {
    std::string name;
    // Of an element, where it is an array.
    Type::ECIMType type;
    bool isArray;
    unsigned int size;
    bool isKey;
    // The class that a reference is declared for.
    std::size_t target;
    bool hasDefault;
  };

  struct Entry {
    Class cls;
    int parent;
    std::size_t root;
    bool isAssociation;
    bool isAbstract;
    int depth;
    bool hasKeys;
    // All, inherited first.
    std::vector<Property> properties;
    std::vector<std::pair<std::string, Type::ECIMType>> methods;
  };

  struct Published {
    std::size_t cls;
    Instance instance;
  };

  void DeclareQualifiers();
  // Some of them, never one twice.
  void QualifyAtRandom(const Class& cls, ICIMNamedElement& element);
  void AddClass(bool isAssociation);
  void AddProperties(Entry& entry, std::size_t number);
  Property NewProperty(const Entry& entry, std::size_t number, bool isKey);
  void Declare(const Entry& entry, const Property& property, bool isOverriding);
  void AddStaticValues(const Entry& entry);
  void AddMethods(Entry& entry);
  void AddMethod(const Entry& entry, const std::string& name, Type::ECIMType type);
  void AddInstance();

  // A class that is copied before class `number` is, with keys; or none.
  bool PickTarget(const Entry& entry, int maxDepth, std::size_t& target);
  bool Derives(std::size_t cls, std::size_t from) const;
  TCIMValue NullOf(const Property& property) const;
  // Not null. With `anyBelow` a reference may name a class that derives from the declared one.
  TCIMValue ValueOf(const Property& property, bool anyBelow);
  TCIMValue ReferenceTo(std::size_t cls, bool anyBelow);
  TCIMReference ReferenceToAnything(std::size_t cls, bool anyBelow);
  // One that is published, where there is one.
  bool PickPublished(std::size_t cls, TCIMReference& reference);

  RandomValues fRandom;
  const RandomFor fPurpose;
  Namespace fNamespace;
  std::vector<Property> fQualifiers;
  std::vector<Entry> fClasses;
  std::vector<Published> fPublished;
  std::vector<Instance> fInstances;
};

}  // namespace memory_test

#endif
