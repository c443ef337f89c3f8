// MachineProvider: serves the machine that it runs on, under the name "machine".
//
// The facts are read at the first GetNamespace and kept for the life of the process; a first
// call that failed reads anew at the next.
//
// The context may say how much of the machine is wanted, because reading all of it costs more than
// asking who it is: the key "scope" with the string "system" gives a namespace that has the
// computer system, the operating system and the collector's own product, and nothing else. It is
// the same namespace that callers without a scope get, if one of them has been served already.
// Any other scope, and a value that is no string, is everything.
//
// Threads: one caller at a time, as the CIM object
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
  // that cannot be read is no failure. Of the context only "scope" is looked at.
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> GetNamespace(
      std::map<std::string, NZRVQDA20::TCIMValue> context) override;

 private:
  const std::string fName;
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> fWhole;
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> fSystem;
};

}  // namespace machine

#endif
