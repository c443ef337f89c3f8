// Sums of date-times as text, for tables of them.

#ifndef TESTS_CIM_VALUE_DATETIMECALCULATION_H
#define TESTS_CIM_VALUE_DATETIMECALCULATION_H

#include <string>

#include <qdacore/cim/value/TCIMDateTime.h>

namespace cim_test {

// A date-time from its text through the constructors from numbers, so without the reduction of
// microseconds and days that reading a text brings. Empty: a null one.
NZRVQDA20::TCIMDateTime MakeDateTime(const std::string& text);

// `operation` is "+", "-", "==", "<" or, with an empty `right`, "=", which only makes `left`. The
// result as text, "true" or "false", or the name of the status thrown.
std::string Calculate(const std::string& left, const std::string& operation,
                      const std::string& right);

}  // namespace cim_test

#endif
