// MofProvider: serves what MOF files say, under the name "mof", so that an inventory that was taken
// elsewhere is read like a live one.
//
// The environment variable QDA_MOF_PATH names the files, separated as in PATH. They are read at the
// first GetNamespace, in their order and into one namespace, and kept for the life of the process;
// a first call that failed reads anew at the next. Without the variable the namespace is empty.
//
// Threads: one caller at a time, as the CIM object interfaces have it.

#ifndef PLUGINS_MOF_MOFPROVIDER_H
#define PLUGINS_MOF_MOFPROVIDER_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/plugin/INamespaceSource.h>

namespace mof_provider {

class MofProvider : public NZRVQDA20::INamespaceSource {
 public:
  MofProvider();

  const std::string& GetName(std::map<std::string, NZRVQDA20::TCIMValue> context) const override;

  // Throws what ReadMofFile throws, after an error line in the core log that names file, line,
  // column and reason. The context is not looked at.
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> GetNamespace(
      std::map<std::string, NZRVQDA20::TCIMValue> context) override;

 private:
  const std::string fName;
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> fNamespace;
};

}  // namespace mof_provider

#endif
