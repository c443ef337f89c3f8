// All that a namespace holds, as text, read through the CIM object interfaces: what two namespaces
// are compared by. Neither the copy nor the MOF writer has a part in it.

#ifndef TESTS_QDAMEMORY_NAMESPACECONTENT_H
#define TESTS_QDAMEMORY_NAMESPACECONTENT_H

#include <map>
#include <string>
#include <vector>

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {

struct NamespaceContent {
  // Each declaration in one line, in order.
  Names qualifiers;
  // The names, superclass first, in the order of a deep enumeration.
  Names classOrder;
  // Of each class its lines: superclass, qualifiers, declarations, static values, methods.
  std::map<std::string, Names> classes;
  // Of each class its own instances, in order, a text each.
  std::map<std::string, Names> instances;
};

NamespaceContent ContentOf(const Namespace& ns);

// A value with its type, its declared array size and, for a reference, where it points: the name of
// the class, the label and all keys.
std::string DescribeValue(const TCIMValue& value);

// Each adds a failure that names what differs.
void ExpectSameSchema(const Namespace& expected, const Namespace& actual);
void ExpectSameOrder(const Namespace& expected, const Namespace& actual);
void ExpectSameInstances(const Namespace& expected, const Namespace& actual);

}  // namespace memory_test

#endif
