#include <qda/SmbiosReport.h>

#include <stdexcept>

#include <qdacore/os/TOSSpecific.h>
#include <smbios/smbios.h>

namespace qda {

using NZRVQDA20::TOSSpecific;
using NZRVQDA20::TQDAStatusCode;

namespace {

// Takes every structure of a table before SMBIOS 3.0, and every one seen in practice.
const std::size_t kUsualBuffer = 65536;
// No table is larger, and so is no structure.
const std::size_t kLargestBuffer = 16 * 1024 * 1024;

bool IsStatus(TQDAStatusCode status, TQDAStatusCode::EQDAStatusCode code) {
  return status.GetStatusCode() == code;
}

class OpenTable {
 public:
  OpenTable() : fStatus(smBiosLoad(nullptr, &fHandle)) {}
  ~OpenTable() { smBiosClose(&fHandle); }
  OpenTable(const OpenTable&) = delete;
  OpenTable& operator=(const OpenTable&) = delete;

  TQDAStatusCode Status() const {
    const bool isNone = fHandle == nullptr;
    return IsStatus(fStatus, TQDAStatusCode::kQDAStatusOK) && isNone
               ? TQDAStatusCode(TQDAStatusCode::kQDAStatusNotFound)
               : fStatus;
  }

  SmbiosVersion Version() const {
    SmbiosVersion version;
    smBiosGetVersion(fHandle, &version.majorNumber, &version.minorNumber);
    return version;
  }

  // False behind the last structure.
  bool Get(unsigned int index, std::vector<unsigned char>* buffer, std::size_t* size) const {
    for (;;) {
      int delivered = static_cast<int>(buffer->size());
      const TQDAStatusCode status =
          smBiosGetNext(fHandle, kSmBiosAnyType, index, buffer->data(), &delivered);
      *size = static_cast<std::size_t>(delivered);
      if (!IsStatus(status, TQDAStatusCode::kQDAStatusFail) || buffer->size() >= kLargestBuffer) {
        return IsStatus(status, TQDAStatusCode::kQDAStatusOK);
      }
      // It is larger than the buffer.
      buffer->resize(buffer->size() * 4);
    }
  }

 private:
  void* fHandle = nullptr;
  const TQDAStatusCode fStatus;
};

// The library's answer; empty when the text that it cuts is too short.
std::optional<std::string> Ask(std::string (*query)()) {
  try {
    return query();
  } catch (const std::out_of_range&) {
    return std::nullopt;
  }
}

}  // namespace

TQDAStatusCode ReadSmbios(SmbiosReport* report) {
  const OpenTable table;
  const TQDAStatusCode status = table.Status();
  if (!IsStatus(status, TQDAStatusCode::kQDAStatusOK)) {
    return status;
  }
  report->version = table.Version();
  std::vector<unsigned char> buffer(kUsualBuffer);
  std::size_t size = 0;
  for (unsigned int index = 0; table.Get(index, &buffer, &size); ++index) {
    report->structures.push_back(DecodeStructure(buffer.data(), size, report->version));
  }
  report->biosId = Ask(TOSSpecific::GetBiosID);
  report->machineType = Ask(TOSSpecific::GetMachineType);
  report->machineTypeFromId = Ask(TOSSpecific::GetMachineTypeFromID);
  return status;
}

}  // namespace qda
