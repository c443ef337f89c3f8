// How an SMBIOS table is printed.

#ifndef QDA_SMBIOSOUTPUT_H
#define QDA_SMBIOSOUTPUT_H

#include <string>

#include <qda/SmbiosReport.h>

namespace qda {

// The identification, then a block a structure.
std::string SmbiosTable(const SmbiosReport& report);

// One object, written as Json.h has it.
std::string SmbiosJson(const SmbiosReport& report);

}  // namespace qda

#endif
