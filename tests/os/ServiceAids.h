// What the host itself says of account and machine, by other means than the library's.

#ifndef TESTS_OS_SERVICEAIDS_H
#define TESTS_OS_SERVICEAIDS_H

#include <string>

namespace service_aids {

bool IsAdministrator();
std::string MachineName();

// Whether getenv sees what PutEnvironment has set: on some hosts it has a copy of its own.
extern const bool kRuntimeSharesTheEnvironment;

// The longest value that a variable can have on every version of the host.
extern const unsigned kLongestValue;

}  // namespace service_aids

#endif
