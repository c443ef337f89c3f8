// The independent reader of SMBIOS dumps, where the machine has it.

#ifndef TESTS_SMBIOS_DMIDECODE_H
#define TESTS_SMBIOS_DMIDECODE_H

#include <filesystem>
#include <string>
#include <vector>

namespace smbios_test {

// Why dmidecode cannot be run here; empty when it can.
std::string NoDmidecodeReason();

// The lines that `dmidecode --from-dump dump ARGUMENTS` prints.
std::vector<std::string> Dmidecode(const std::filesystem::path& dump, const std::string& arguments);

}  // namespace smbios_test

#endif
