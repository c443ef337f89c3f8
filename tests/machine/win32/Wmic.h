// wmic, as a second opinion on Windows and under Wine.

#ifndef TESTS_MACHINE_WIN32_WMIC_H
#define TESTS_MACHINE_WIN32_WMIC_H

#include <string>
#include <vector>

namespace machine_test {

// The values of `property` of all objects of `alias` ("cpu"), one each; empty texts are left
// out. None when there is no wmic, as on new systems.
std::vector<std::string> AskWmic(const std::string& alias, const std::string& property);

}  // namespace machine_test

#endif
