// File name patterns, by the one rule that the library has for them on this host.

#ifndef QDACORE_HOST_POSIX_WILDCARD_H
#define QDACORE_HOST_POSIX_WILDCARD_H

#include <string>

namespace NZRVQDA20 {
namespace host {

// "*" is any text, also none; "?" is any one character; all else stands for itself, and case
// counts. Time is at most the product of the two lengths.
bool MatchesWildcard(const std::string& pattern, const char* name);

}  // namespace host
}  // namespace NZRVQDA20

#endif
