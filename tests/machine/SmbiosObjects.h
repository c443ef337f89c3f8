// What the tests of the SMBIOS families share: a namespace made of a table, and its objects as
// texts.

#ifndef TESTS_MACHINE_SMBIOSOBJECTS_H
#define TESTS_MACHINE_SMBIOSOBJECTS_H

#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <smbios/sample/TableBuilder.h>

namespace NZRVQDA20 {
class ICIMNamespace;
}

namespace machine_test {

// The namespace of a host "box", from the file at `path`, by way of the smbios library. Nothing
// when the file is no table.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> NamespaceOfFile(const std::string& path);

// The same from a dump that exists for a moment.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> NamespaceOfDump(const smbios::sample::Bytes& dump);

// The same from one structure, or from several, in a table of their own.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> NamespaceOf(
    const std::vector<smbios::sample::StructureBuilder>& structures);

// The properties of an object that are not null, as text; arrays as ToString has them.
typedef std::map<std::string, std::string> Facts;

// The objects of exactly this class, in order of publication.
std::vector<Facts> ObjectsOf(const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& ns,
                             const std::string& className);

// `facts` without the keys that every device has and that come from the host.
Facts WithoutSystemKeys(Facts facts);

}  // namespace machine_test

#endif
