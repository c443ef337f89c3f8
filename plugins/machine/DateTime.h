// Points in time as CIM has them.

#ifndef PLUGINS_MACHINE_DATETIME_H
#define PLUGINS_MACHINE_DATETIME_H

#include <cstdint>
#include <optional>

#include <qdacore/cim/value/TCIMDateTime.h>

namespace machine {

// The timestamp, at offset 0 from UTC, of a number of seconds since the start of 1970, UTC.
// Absent before that, and from the year 3000 on, which the type does not reach.
std::optional<NZRVQDA20::TCIMDateTime> DateTimeAt(std::int64_t seconds);

}  // namespace machine

#endif
