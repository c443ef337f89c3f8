// MachineProvider: serves the machine that it runs on, under the name "machine".
//
// The facts are read at the first GetNamespace and kept for the life of the process; a first
// call that failed reads anew at the next. Threads: one caller at a time, as the CIM object
// interfaces have it.

#ifndef PLUGINS_MACHINE_MACHINEPROVIDER_H
#define PLUGINS_MACHINE_MACHINEPROVIDER_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/plugin/INamespaceSource.h>

namespace machine {

class MachineProvider : public NZRVQDA20::INamespaceSource {
 public:
  MachineProvider();

  const std::string& GetName(std::map<std::string, NZRVQDA20::TCIMValue> context) const override;

  // The namespace of Schema.h. Throws TQDAException with the status of smBiosLoad when
  // QDA_SMBIOS_DUMP names a file that is no SMBIOS table or cannot be read; a firmware table
  // that cannot be read is no failure. The context is not looked at.
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> GetNamespace(
      std::map<std::string, NZRVQDA20::TCIMValue> context) override;

 private:
  const std::string fName;
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> fNamespace;
};

}  // namespace machine

#endif
