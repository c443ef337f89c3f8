// Lists of paths in one text, as in the variable PATH.

#ifndef PLUGINS_MOF_PATHLIST_H
#define PLUGINS_MOF_PATHLIST_H

#include <string>
#include <vector>

namespace mof_provider {

// What stands between the separators, in order; empty parts do not count.
std::vector<std::string> SplitPathList(const std::string& text, char separator);

}  // namespace mof_provider

#endif
