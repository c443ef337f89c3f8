// What tests of a machine's own firmware ask first: the outcome depends on the machine.

#ifndef TESTS_QDA_FIRMWARETABLE_H
#define TESTS_QDA_FIRMWARETABLE_H

#include <smbios/smbios.h>
#include <tests/support/ScopedEnvironment.h>

namespace qda_test {

// True when the firmware surely has no SMBIOS table, and not merely one that may not be read.
inline bool FirmwareHasNoTable() {
  const test_support::ScopedEnvironment noDump("QDA_SMBIOS_DUMP", nullptr);
  void* handle = nullptr;
  const bool isAsked =
      smBiosLoad(nullptr, &handle).GetStatusCode() == NZRVQDA20::TQDAStatusCode::kQDAStatusOK;
  const bool isThere = handle != nullptr;
  smBiosClose(&handle);
  return isAsked && !isThere;
}

}  // namespace qda_test

#endif
