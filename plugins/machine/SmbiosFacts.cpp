#include <plugins/machine/SmbiosFacts.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

#include <plugins/machine/host/OperatingSystem.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/ILogger.h>
#include <smbios/SmbiosFields.h>
#include <smbios/smbios.h>

namespace machine {

using NZRVQDA20::ILogger;
using NZRVQDA20::TQDAException;
using NZRVQDA20::TQDAStatusCode;
using NZRVQDA20::TRootObject;

namespace {

const char kDumpVariable[] = "QDA_SMBIOS_DUMP";

// System Information: type and field offsets (DSP0134, 7.2).
const int kSystemInformation = 1;
const std::size_t kManufacturerAt = 0x04;
const std::size_t kProductNameAt = 0x05;
const std::size_t kSerialNumberAt = 0x07;
const std::size_t kUuidAt = 0x08;
const std::size_t kUuidSize = 16;

// Takes every structure of a table before SMBIOS 3.0, and every one seen in practice.
const std::size_t kBufferSize = 65536;

void Log(ILogger::EQDALogSeverity severity, const std::string& message) {
  if (ILogger* logger = TRootObject::GetCoreLogger()) {
    logger->LogMessage(severity, message);
  }
}

std::string InBrackets(const TQDAStatusCode& status) {
  return " (" + status.TranslateStatusCode() + ")";
}

// A table that is open; closed with the scope.
class Table {
 public:
  Table() : fStatus(smBiosLoad(nullptr, &fHandle)) {}
  ~Table() { smBiosClose(&fHandle); }
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;

  TQDAStatusCode Status() const { return fStatus; }
  void* Handle() const { return fHandle; }
  bool IsThere() const { return fHandle != nullptr; }

  // The first structure of `type`.
  TQDAStatusCode Get(int type, std::vector<unsigned char>* structure) const {
    // Not filled first, as a vector would be: that is 16 pages for some dozen bytes.
    const std::unique_ptr<unsigned char[]> buffer(new unsigned char[kBufferSize]);
    int size = static_cast<int>(kBufferSize);
    const TQDAStatusCode status = smBiosGetFirst(fHandle, type, buffer.get(), &size);
    structure->assign(buffer.get(), buffer.get() + size);
    return status;
  }

 private:
  void* fHandle = nullptr;
  const TQDAStatusCode fStatus;
};

bool IsOK(TQDAStatusCode status) { return status.GetStatusCode() == TQDAStatusCode::kQDAStatusOK; }

std::optional<std::string> Text(const void* structure, std::size_t size, std::size_t offset) {
  const std::string_view text = smbios::StringField(structure, size, offset);
  return text.empty() ? std::nullopt : std::optional<std::string>(text);
}

// What it means that the table does not load: a failure only when somebody chose it.
void ReportNoTable(const TQDAStatusCode& status) {
  const std::string dump = host::ReadVariable(kDumpVariable);
  if (!dump.empty()) {
    Log(ILogger::kLogError, "the SMBIOS dump \"" + dump + "\" cannot be read" + InBrackets(status));
    throw TQDAException(status);
  }
  std::string message = "the firmware's SMBIOS table cannot be read" + InBrackets(status);
  if (TQDAStatusCode(status).GetStatusCode() == TQDAStatusCode::kQDAStatusAccessDenied) {
    message += ", which takes administrator rights";
  }
  Log(ILogger::kLogWarning, message);
}

}  // namespace

SystemFacts ParseSystemInformation(const void* structure, std::size_t size) {
  SystemFacts facts;
  facts.manufacturer = Text(structure, size, kManufacturerAt);
  facts.productName = Text(structure, size, kProductNameAt);
  facts.serialNumber = Text(structure, size, kSerialNumberAt);
  if (smbios::FormattedLength(structure, size) >= kUuidAt + kUuidSize) {
    facts.uuid = FormatUuid(static_cast<const unsigned char*>(structure) + kUuidAt);
  }
  return facts;
}

std::optional<std::string> FormatUuid(const unsigned char* bytes) {
  const unsigned char first = bytes[0];
  if ((first == 0x00 || first == 0xFF) &&
      std::all_of(bytes, bytes + kUuidSize,
                  [first](unsigned char byte) { return byte == first; })) {
    return std::nullopt;
  }
  // Where each printed byte stands.
  static const std::size_t kOrder[kUuidSize] = {3, 2, 1,  0,  5,  4,  7,  6,
                                                8, 9, 10, 11, 12, 13, 14, 15};
  static const char kDigits[] = "0123456789abcdef";
  std::string text;
  for (std::size_t at = 0; at < kUuidSize; ++at) {
    if (at == 4 || at == 6 || at == 8 || at == 10) {
      text += '-';
    }
    text += kDigits[bytes[kOrder[at]] >> 4];
    text += kDigits[bytes[kOrder[at]] & 0x0F];
  }
  return text;
}

SmbiosReading ReadSmbios(bool all) {
  SmbiosReading reading;
  const Table table;
  if (!IsOK(table.Status())) {
    ReportNoTable(table.Status());
    return reading;
  }
  if (!table.IsThere()) {
    Log(ILogger::kLogWarning, "this machine has no SMBIOS table");
    return reading;
  }
  std::vector<unsigned char> structure;
  const TQDAStatusCode status = table.Get(kSystemInformation, &structure);
  if (IsOK(status)) {
    reading.system = ParseSystemInformation(structure.data(), structure.size());
  } else {
    Log(ILogger::kLogWarning,
        "the SMBIOS table's System Information cannot be read" + InBrackets(status));
  }
  if (all) {
    reading.structures = SmbiosStructures(table.Handle());
  }
  return reading;
}

}  // namespace machine
