// Which machine this is, by its firmware's structures: type 0, BIOS Information, and type 1, System
// Information (DMTF DSP0134, 7.1 and 7.2). What a structure says is not to be trusted: nothing
// here leaves the buffer that it was copied to.

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>

#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/os/TOSSpecific.h>
#include <smbios/smbios.h>

namespace NZRVQDA20 {

namespace {

const int kBiosType = 0;
const int kBiosBufferSize = 4096;
const int kSystemType = 1;
const int kSystemBufferSize = 1024;

// Offsets in both structures: of the length of the formatted area, behind which the strings
// stand, and of the number of the string that counts here (BIOS version, product name).
const int kLengthOffset = 1;
const int kStringNumberOffset = 5;

// How far into a BIOS structure's strings the version is looked for.
const int kStringSpan = 100;

// BIOS build identifiers whose machine type is known, in the order in which they are tried.
struct KnownBuild {
  const char* identifier;
  const char* machineType;
};
const KnownBuild kKnownBuilds[] = {
    {"a3", "7141"}, {"k3", "4192"}, {"gu", "4367"}, {"m9", "4190"}, {"p9", "1936"},
    {"d6", "4199"}, {"y4", "7836"}, {"tm", "7321"}, {"gy", "7327"}, {"g0", "7145"},
    {"hi", "7872"}, {"hs", "7376"}, {"ml", "7148"}, {"j2", "4253"}, {"ay", "7164"},
};

int ByteAt(const char* structure, int offset) {
  return static_cast<unsigned char>(structure[offset]);
}

void LogDebug(const std::string& text) { LogToCore(ILogger::kLogDebug, text); }

int Load(void*& handle) { return smBiosLoad(nullptr, &handle).GetStatusCode(); }

// Copies the BIOS structure to `buffer`. False when the table has none. A read that failed leaves
// the buffer cleared and is carried on with, and this is meant: the version is then empty.
bool ReadBios(void* handle, const std::string& operation, char (&buffer)[kBiosBufferSize]) {
  std::memset(buffer, 0, sizeof buffer);
  LogDebug(operation + " - Retrieving first SMBIOS structure");
  int size = kBiosBufferSize;
  const int status = smBiosGetFirst(handle, kBiosType, buffer, &size).GetStatusCode();
  if (status == TQDAStatusCode::kQDAStatusFail) {
    LogDebug(operation + " - smbios read operation failed! ");
  }
  if (status == TQDAStatusCode::kQDAStatusNoMoreItems) {
    LogDebug(operation + " - read all smbios structures available for type 0");
    return false;
  }
  return true;
}

std::string BiosVersion(const char (&bios)[kBiosBufferSize]) {
  char span[kStringSpan] = {};
  // A length is one byte, so this is always inside the buffer.
  std::memcpy(span, bios + ByteAt(bios, kLengthOffset), sizeof span);
  char version[kStringSpan] = {};
  TOSSpecific::getBIDString(span, version, kStringSpan, ByteAt(bios, kStringNumberOffset));
  return version;
}

// Throws std::out_of_range when fewer than two characters are left; nobody catches it, and the
// table stays loaded, which is meant.
std::string BuildIdentifier(const char (&bios)[kBiosBufferSize]) {
  std::string rest = BiosVersion(bios);
  TOSSpecific::removeNonAlpaNumeric(rest);
  std::string build = rest;
  TOSSpecific::breakApartVersion(rest, build);
  build.erase(2);
  return build;
}

// Throws std::out_of_range when the first dash ends the name, with the same consequence.
std::string MachineTypeOfName(const std::string& productName, const std::string& otherwise) {
  const std::size_t dash = productName.find('-');
  if (dash != std::string::npos) {
    return productName.substr(dash + 2, 4);
  }
  return productName.size() == 7 ? productName.substr(0, 4) : otherwise;
}

// `size` is how many bytes of the structure there are.
std::string MachineTypeOfStructure(char* system, int size, const std::string& otherwise) {
  const int length = ByteAt(system, kLengthOffset);
  // A formatted area that is longer than the structure makes a length that wraps around, and no
  // string. The last string is never among them: two bytes stand behind its end.
  const std::vector<std::string> strings = TOSSpecific::multiStringTok(
      system + length, static_cast<unsigned long long>(size - length), '\0');
  const int index = ByteAt(system, kStringNumberOffset) - 1;
  if (index < 0 || static_cast<std::size_t>(index) >= strings.size()) {
    return otherwise;
  }
  return MachineTypeOfName(strings[static_cast<std::size_t>(index)], otherwise);
}

// What GetMachineType does between opening and closing a table. The result so far when there is
// nothing to read.
std::string ReadMachineType(void* handle, const std::string& otherwise) {
  if (!handle) {
    LogDebug("Unable to read machine type from SMBIOS. Invalid Handle was encountered.");
    return otherwise;
  }
  const std::unique_ptr<char[]> buffer(new (std::nothrow) char[kSystemBufferSize]());
  if (!buffer) {
    LogDebug("Unable to allocate memory to hold machineType");
    return otherwise;
  }
  int size = kSystemBufferSize;
  const int status = smBiosGetFirst(handle, kSystemType, buffer.get(), &size).GetStatusCode();
  if (status != TQDAStatusCode::kQDAStatusOK || size < 1) {
    LogDebug("Unable to read DMI structure type 1 from SMBIOS");
    return otherwise;
  }
  const std::string machineType =
      MachineTypeOfStructure(buffer.get(), std::min(size, kSystemBufferSize), otherwise);
  LogDebug("Machine type detected: " + machineType);
  return machineType;
}

}  // namespace

std::string TOSSpecific::GetBiosID() {
  std::string biosID = "00";
  void* handle = nullptr;
  if (const int status = Load(handle)) {
    LogToCore(ILogger::kLogError,
              "GetBiosID: Unable to open SMBIOS lib error = " + std::to_string(status));
    return biosID;
  }
  char buffer[kBiosBufferSize];
  if (handle && ReadBios(handle, "TOSSpecific::GetBiosID", buffer)) {
    biosID = BuildIdentifier(buffer);
    LogDebug("TOSSpecific::GetBiosID - biosID = " + biosID);
  }
  smBiosClose(&handle);
  return biosID;
}

std::string TOSSpecific::GetMachineType() {
  LogDebug("getMachineType() entered.");
  std::string machineType = "0000";
  void* handle = nullptr;
  if (const int status = Load(handle)) {
    LogToCore(ILogger::kLogError,
              "getMachineType: Unable to open SMBIOS lib error = " + std::to_string(status));
    return machineType;
  }
  machineType = ReadMachineType(handle, machineType);
  smBiosClose(&handle);
  LogDebug("getMachineType() completed.");
  return machineType;
}

std::string TOSSpecific::GetMachineTypeFromID() {
  std::string machineType = GetMachineType();
  void* handle = nullptr;
  if (const int status = Load(handle)) {
    const std::string failure =
        "getBIOSstructure: Unable to open SMBIOS lib error = " + std::to_string(status);
    LogToCore(ILogger::kLogError, failure);
    // The second message begins with the first one, on one line with it.
    LogDebug(failure +
             "Failed in getting machineType from Bios ID.\n"
             "Get machineType from GetMachineType().\n"
             "machineType=" +
             machineType);
    return machineType;
  }
  char buffer[kBiosBufferSize];
  if (handle && ReadBios(handle, "TOSSpecific::GetMachineTypeFromID", buffer)) {
    std::string identifier = BuildIdentifier(buffer);
    for (char& character : identifier) {
      character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    }
    LogDebug("TOSSpecific::GetMachineTypeFromID -buildNumber is " + identifier);
    for (const KnownBuild& build : kKnownBuilds) {
      if (identifier.find(build.identifier) != std::string::npos) {
        machineType = build.machineType;
        break;
      }
    }
    // Said also when no identifier is known and the type still comes from GetMachineType.
    LogDebug(
        "Get machineType from Bios ID().\n"
        "machineType=" +
        machineType + "\tBios ID =" + identifier);
  }
  smBiosClose(&handle);
  return machineType;
}

}  // namespace NZRVQDA20
