// Dates as SMBIOS structures have them.

#ifndef PLUGINS_MACHINE_SMBIOSDATE_H
#define PLUGINS_MACHINE_SMBIOSDATE_H

#include <optional>
#include <string_view>

#include <qdacore/cim/value/TCIMDateTime.h>

namespace machine {

// The timestamp, midnight at offset 0, of a text of the form "mm/dd/yyyy" or "mm/dd/yy" (DSP0134,
// 7.1: two digits are a year of the 20th century). Absent for any other text and for a day that
// the calendar has not, as firmware in the field has.
std::optional<NZRVQDA20::TCIMDateTime> SmbiosDate(std::string_view text);

}  // namespace machine

#endif
