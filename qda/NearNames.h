// Names near one that is not there, for a message that helps.

#ifndef QDA_NEARNAMES_H
#define QDA_NEARNAMES_H

#include <string>
#include <vector>

namespace qda {

// At most three of `names`, the nearest first: those that have `wanted` in them or stand in it,
// then those that differ in few characters. Case does not count (in ASCII). Equally near ones come
// in their order in `names`.
std::vector<std::string> NearNames(const std::string& wanted,
                                   const std::vector<std::string>& names);

}  // namespace qda

#endif
