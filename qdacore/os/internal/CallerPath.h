// A path as a caller gave it, on its way to the host.

#ifndef QDACORE_OS_INTERNAL_CALLERPATH_H
#define QDACORE_OS_INTERNAL_CALLERPATH_H

#include <string>

#include <qdacore/host/Paths.h>
#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {

// To the host a text ends at its first NUL: with one in it, it would name something else.
inline bool HoldsNul(const std::string& text) { return text.find('\0') != std::string::npos; }

// What stands between the parts of a path that a caller gives.
inline bool IsSeparator(char character) {
  return character == '\\' || character == host::PathSeparator();
}

// The path in the host's own form, also for one of which only a part is there yet: what is there
// as it stands, up to a separator of the host's, is kept so, because a name may hold the other
// separator; behind it both separate.
std::string ToHostPath(const std::string& path);

// Both separators are accepted in a path that a caller gives. One that is there as it stands is
// taken so, because a name may hold the other one. `attempt` gives the host's Outcome for a path.
template <class Attempt>
host::Outcome TryBothSeparators(const std::string& path, Attempt attempt) {
  const host::Outcome outcome = attempt(path);
  const bool isMissing = outcome.situation == host::Situation::kNoFile ||
                         outcome.situation == host::Situation::kNoPath;
  const std::string other = host::FromCaller(path);
  return isMissing && other != path ? attempt(other) : outcome;
}

}  // namespace NZRVQDA20

#endif
