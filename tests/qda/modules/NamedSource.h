// A provider of a test's own, but for what it serves.

#ifndef TESTS_QDA_MODULES_NAMEDSOURCE_H
#define TESTS_QDA_MODULES_NAMEDSOURCE_H

#include <map>
#include <string>

#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/plugin/INamespaceSource.h>

namespace odd_modules {

class NamedSource : public NZRVQDA20::INamespaceSource {
 public:
  explicit NamedSource(const std::string& name) : fName(name) {}
  const std::string& GetName(std::map<std::string, NZRVQDA20::TCIMValue>) const override {
    return fName;
  }

 private:
  const std::string fName;
};

}  // namespace odd_modules

#endif
