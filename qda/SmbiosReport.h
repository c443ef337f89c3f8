// An SMBIOS table, read to be shown.

#ifndef QDA_SMBIOSREPORT_H
#define QDA_SMBIOSREPORT_H

#include <optional>
#include <string>
#include <vector>

#include <qda/SmbiosStructure.h>
#include <qdacore/frame/TQDAStatusCode.h>

namespace qda {

struct SmbiosReport {
  SmbiosVersion version;
  // As the library tells them: "00" and "0000" where the table does not. Empty: what stands there
  // has too few characters for an answer.
  std::optional<std::string> biosId;
  std::optional<std::string> machineType;
  std::optional<std::string> machineTypeFromId;
  // All of the table, in its order.
  std::vector<SmbiosStructure> structures;
};

// Reads the table that QDA_SMBIOS_DUMP names, or the firmware's. The status is that of smBiosLoad,
// or kQDAStatusNotFound on a machine without a table; `*report` is whole with kQDAStatusOK only.
// Needs a core logger.
NZRVQDA20::TQDAStatusCode ReadSmbios(SmbiosReport* report);

}  // namespace qda

#endif
