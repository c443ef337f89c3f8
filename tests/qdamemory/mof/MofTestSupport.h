// What the tests of MOF share.

#ifndef TESTS_QDAMEMORY_MOF_MOFTESTSUPPORT_H
#define TESTS_QDAMEMORY_MOF_MOFTESTSUPPORT_H

#include <sstream>
#include <string>

#include <qdamemory/Mof.h>
#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {

// The declarations that most texts need.
const char kQualifiers[] =
    "Qualifier Key : boolean = false, Scope(property, reference), "
    "Flavor(DisableOverride, ToSubclass);\n"
    "Qualifier Association : boolean = false, Scope(association), "
    "Flavor(DisableOverride, ToSubclass);\n"
    "Qualifier Abstract : boolean = false, Scope(class, association), Flavor(Restricted);\n"
    "Qualifier Override : string, Scope(any), Flavor(Restricted);\n"
    "Qualifier Description : string, Scope(any), Flavor(Translatable);\n"
    "Qualifier ValueMap : string[], Scope(property, method, parameter);\n"
    "Qualifier Max : uint32, Scope(reference);\n";

// Reads `text` into `ns`; a problem fails the test. Returns whether there was none.
inline bool Read(const Namespace& ns, const std::string& text) {
  MofProblem problem;
  try {
    ReadMofText(ns, text, "test.mof", &problem);
    return true;
  } catch (const TQDAException& failure) {
    ADD_FAILURE() << problem.file << ":" << problem.line << ":" << problem.column << ": "
                  << problem.reason << " (" << failure.what() << ")";
    return false;
  }
}

inline Namespace ReadNew(const std::string& text) {
  const Namespace ns = CreateMemoryNamespace("read");
  Read(ns, text);
  return ns;
}

inline std::string Written(const Namespace& ns) {
  std::ostringstream output;
  WriteMof(ns, output);
  return output.str();
}

inline Class ClassOf(const Namespace& ns, const std::string& name) {
  return ns->GetClass(name, None());
}

}  // namespace memory_test

#endif
