// What dmidecode says about a dump, structure by structure.

#ifndef TESTS_MACHINE_DMIDECODERECORDS_H
#define TESTS_MACHINE_DMIDECODERECORDS_H

#include <map>
#include <string>
#include <vector>

namespace machine_test {

struct DmidecodeRecord {
  int type = 0;
  // By label, such as "Serial Number". "Not Specified" and bad string numbers are empty texts.
  std::map<std::string, std::string> fields;
  // The indented lines below a label, such as "Characteristics".
  std::map<std::string, std::vector<std::string> > lists;

  std::string Field(const std::string& label) const;
  bool Lists(const std::string& label, const std::string& line) const;
};

// The structures of `type` in the dump at `path`, which has an entry point.
std::vector<DmidecodeRecord> DmidecodeRecords(const std::string& path, int type);

// "16 GB" and its like in bytes; 0 for anything else.
unsigned long long BytesOfSize(const std::string& size);

// The number that `text` begins with ("2400 MT/s", "0x10"), as decimal text; empty when it begins
// with none.
std::string LeadingNumber(const std::string& text);

// As dmidecode shows strings: what is no printable ASCII is a dot.
std::string AsDmidecodeShows(std::string text);

}  // namespace machine_test

#endif
