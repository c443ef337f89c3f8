// How the list of provider modules is printed.

#ifndef QDA_PROVIDERSOUTPUT_H
#define QDA_PROVIDERSOUTPUT_H

#include <string>
#include <vector>

#include <qda/ProviderModules.h>

namespace qda {

// Columns with a heading; one line that says so when `folder` has no module.
std::string ProvidersTable(const std::string& folder, const std::vector<ProviderModule>& modules);

// One object, written as Json.h has it.
std::string ProvidersJson(const std::string& folder, const std::vector<ProviderModule>& modules);

}  // namespace qda

#endif
