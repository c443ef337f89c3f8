// How a host call that can fail in more than one way says what happened.

#ifndef QDACORE_HOST_SITUATION_H
#define QDACORE_HOST_SITUATION_H

namespace NZRVQDA20 {
namespace host {

enum class Situation { kDone, kExists, kDenied, kNotReady, kNoFile, kNoPath, kOther };

struct Outcome {
  Situation situation;
  // The number to show for it, captured at once: on every host the number that Windows gives
  // the situation.
  unsigned long number;

  bool Done() const { return situation == Situation::kDone; }
};

inline Outcome Success() { return {Situation::kDone, 0}; }

}  // namespace host
}  // namespace NZRVQDA20

#endif
