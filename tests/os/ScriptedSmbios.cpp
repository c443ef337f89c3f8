// These are the functions, in place of the library's.
#define SMBIOS_BUILDING

#include <tests/os/ScriptedSmbios.h>

#include <algorithm>
#include <cstdint>
#include <stdexcept>

#include <smbios/smbios.h>
#include <tests/support/LogCapture.h>

using NZRVQDA20::TPluginManagerProvider;
using NZRVQDA20::TQDAStatusCode;
using scripted_smbios::Answer;
using scripted_smbios::script;

namespace {

TQDAStatusCode Status(int number) { return static_cast<TQDAStatusCode::EQDAStatusCode>(number); }

std::string Name(void* handle) { return std::to_string(reinterpret_cast<std::uintptr_t>(handle)); }

}  // namespace

TQDAStatusCode smBiosLoad(TPluginManagerProvider const* provider, void** handle) {
  script.calls.push_back(provider ? "load with a provider" : "load");
  const std::size_t load = static_cast<std::size_t>(script.loads++);
  if (load < script.loadStatuses.size() && script.loadStatuses[load] != 0) {
    return Status(script.loadStatuses[load]);
  }
  *handle =
      script.nullHandle ? nullptr : reinterpret_cast<void*>(static_cast<std::uintptr_t>(load + 1));
  return TQDAStatusCode::kQDAStatusOK;
}

TQDAStatusCode smBiosGetFirst(void* handle, int type, void* buffer, int* size) {
  char* const bytes = static_cast<char*>(buffer);
  const bool clear = std::all_of(bytes, bytes + *size, [](char byte) { return byte == 0; });
  script.calls.push_back("first " + std::to_string(type) + " " + std::to_string(*size) + " of " +
                         Name(handle) + (clear ? "" : ", not cleared"));
  const auto found = script.answers.find(type);
  if (found == script.answers.end()) {
    *size = 0;
    return TQDAStatusCode::kQDAStatusNoMoreItems;
  }
  const Answer& answer = found->second;
  const std::size_t count = std::min(answer.bytes.size(), static_cast<std::size_t>(*size));
  std::copy_n(answer.bytes.begin(), count, static_cast<unsigned char*>(buffer));
  *size = answer.size == scripted_smbios::kWhole ? static_cast<int>(count) : answer.size;
  return Status(answer.status);
}

// Nobody looks at the status.
TQDAStatusCode smBiosClose(void** handle) {
  script.calls.push_back("close " + Name(*handle));
  return TQDAStatusCode::kQDAStatusFail;
}

#if defined(_WIN32)
// What a call of a library's function goes through.
extern "C" {
void* __imp_smBiosLoad = reinterpret_cast<void*>(&smBiosLoad);
void* __imp_smBiosGetFirst = reinterpret_cast<void*>(&smBiosGetFirst);
void* __imp_smBiosClose = reinterpret_cast<void*>(&smBiosClose);
}
#endif

namespace scripted_smbios {

using smbios::sample::StructureBuilder;

Script script;

Script Machine(const std::string& biosVersion, const std::string& productName) {
  Script whole;
  whole.answers[0].bytes = StructureBuilder(0, 0)
                               .Text("ZRV")
                               .Text(biosVersion)
                               .Word(0xE000)
                               .Text("01/02/2020")
                               .Byte(0)
                               .Qword(8)
                               .Build();
  whole.answers[1].bytes =
      StructureBuilder(1, 1).Text("ZRV").Text(productName).Text("V1").Text("SN1").Build();
  return whole;
}

Script Server() { return Machine("-[GYE143AUS-1.20]-", "ZRV server -[7145AC1]-"); }

Lines TypeLines(const std::string& machineType) {
  return {"[Debug] getMachineType() entered.", "[Debug] Machine type detected: " + machineType,
          "[Debug] getMachineType() completed."};
}

Record RunScript(const Script& whole, std::string (*operation)()) {
  script = whole;
  const test_support::LogCapture log;
  Record record;
  try {
    record.result = operation();
  } catch (const std::out_of_range&) {
    record.result = "out of range";
  }
  record.calls = script.calls;
  record.lines = log.Lines();
  return record;
}

// Without a logger, which nothing here needs.
std::string Result(const Script& whole, std::string (*operation)()) {
  script = whole;
  try {
    return operation();
  } catch (const std::out_of_range&) {
    return "out of range";
  }
}

}  // namespace scripted_smbios
