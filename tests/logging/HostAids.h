// What the logger's tests need of each host.

#ifndef TESTS_LOGGING_HOSTAIDS_H
#define TESTS_LOGGING_HOSTAIDS_H

#include <string>

// From now on what the process writes to the debugger's output stands on its standard error,
// where a parent reads it. (On a host without a debugger's output it stands there anyway.)
void ShowDebuggerOutput();

// Makes an existing file one that this process may not open for writing. False when that fails.
bool DenyOpening(const std::string& path);

#endif
