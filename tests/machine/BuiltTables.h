// Small tables with the shapes that real machines' tables have, made up here.

#ifndef TESTS_MACHINE_BUILTTABLES_H
#define TESTS_MACHINE_BUILTTABLES_H

#include <string>
#include <vector>

#include <smbios/sample/TableBuilder.h>

namespace machine_test {

struct BuiltTable {
  std::string name;
  smbios::sample::Bytes dump;
};

std::vector<BuiltTable> BuiltTables();

}  // namespace machine_test

#endif
