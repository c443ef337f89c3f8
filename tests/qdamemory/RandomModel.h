// A random schema with random instances, built at once in a namespace and in a model that knows
// nothing but lists and maps of text; and the comparison of the two. References stand as keys, up
// to four deep.

#ifndef TESTS_QDAMEMORY_RANDOMMODEL_H
#define TESTS_QDAMEMORY_RANDOMMODEL_H

#include <cstddef>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {

struct ModelProperty {
  std::string name;
  Type::ECIMType type;
  bool isKey;
  // The class that a reference refers to.
  std::size_t target;
  std::string defaultText;
};

struct ModelClass {
  std::string name;
  int parent;
  std::size_t root;
  // How deep references nest in the keys: 1 without any.
  int depth;
  // All, inherited first.
  std::vector<ModelProperty> properties;
  std::vector<std::size_t> instances;
};

struct ModelInstance {
  std::size_t cls;
  std::vector<std::string> texts;
  // For each property the instance that a reference key names.
  std::vector<std::size_t> targets;
};

class RandomModel {
 public:
  explicit RandomModel(unsigned int seed) : fRandom(seed), fNamespace(MakeNamespace()) {}

  void Run();
  int Duplicates() const { return fDuplicates; }
  int Depth() const { return fDepth; }

 private:
  std::size_t Below(std::size_t count) { return fRandom() % count; }

  std::string AnyCase(std::string name);
  TCIMValue ValueOfText(Type::ECIMType type, const std::string& text);
  std::string AnyText(Type::ECIMType type);
  void AddClass();
  void AddProperties(ModelClass& cls, const Class& real, std::size_t number);
  Class RealClass(int number);

  // An instance of the class or below, or none.
  bool PickTarget(std::size_t cls, std::size_t& picked);
  bool Derives(std::size_t cls, std::size_t from) const;

  // The path of an instance under the name of a class: of the model's own spelling and order,
  // or in any.
  std::string Path(const ModelInstance& instance, std::size_t cls, bool any);
  void AddInstance();
  void CheckLookup(std::size_t at);
  void CheckProperties(std::size_t at);
  void CollectDeep(std::size_t cls, Names& classes, std::vector<std::size_t>& instances) const;
  void CheckTree(std::size_t at);

  std::mt19937 fRandom;
  Namespace fNamespace;
  std::vector<ModelClass> fClasses;
  std::vector<ModelInstance> fInstances;
  std::vector<Instance> fReal;
  std::map<std::string, std::size_t> fKeys;
  int fDuplicates = 0;
  int fDepth = 0;
};

}  // namespace memory_test

#endif
