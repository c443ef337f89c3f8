#include "DmidecodeRecords.h"

#include <algorithm>
#include <cstdlib>

#include <tests/smbios/Dmidecode.h>

namespace machine_test {

std::string DmidecodeRecord::Field(const std::string& label) const {
  const auto found = fields.find(label);
  return found != fields.end() ? found->second : "";
}

bool DmidecodeRecord::Lists(const std::string& label, const std::string& line) const {
  const auto found = lists.find(label);
  return found != lists.end() &&
         std::find(found->second.begin(), found->second.end(), line) != found->second.end();
}

std::vector<DmidecodeRecord> DmidecodeRecords(const std::string& path, int type) {
  std::vector<DmidecodeRecord> records;
  std::string label;
  for (const std::string& line : smbios_test::Dmidecode(path, "-t " + std::to_string(type))) {
    if (line.rfind("Handle 0x", 0) == 0) {
      records.emplace_back();
      records.back().type = type;
      label.clear();
    } else if (records.empty() || line.empty() || line[0] != '\t') {
      continue;
    } else if (line.rfind("\t\t", 0) == 0) {
      records.back().lists[label].push_back(line.substr(2));
    } else {
      const std::size_t colon = line.find(':');
      label = line.substr(1, colon - 1);
      std::string value = colon + 2 <= line.size() && colon != std::string::npos
                              ? line.substr(colon + 2)
                              : std::string();
      if (value == "Not Specified" || value == "<BAD INDEX>") {
        value.clear();
      }
      records.back().fields[label] = value;
    }
  }
  return records;
}

unsigned long long BytesOfSize(const std::string& size) {
  char* end = nullptr;
  const unsigned long long number = std::strtoull(size.c_str(), &end, 10);
  const std::string unit = end;
  const char* const units[] = {" bytes", " kB", " MB", " GB", " TB"};
  for (unsigned int power = 0; power < 5; ++power) {
    if (unit == units[power]) {
      return number << (10 * power);
    }
  }
  return 0;
}

std::string LeadingNumber(const std::string& text) {
  char* end = nullptr;
  const unsigned long long number = std::strtoull(text.c_str(), &end, 0);
  return end == text.c_str() ? "" : std::to_string(number);
}

std::string AsDmidecodeShows(std::string text) {
  for (char& character : text) {
    if (character < 32 || character == 127) {
      character = '.';
    }
  }
  return text;
}

}  // namespace machine_test
