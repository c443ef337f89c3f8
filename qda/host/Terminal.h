// The seam to the terminal at which somebody sits. Throws nothing but std::bad_alloc.

#ifndef QDA_HOST_TERMINAL_H
#define QDA_HOST_TERMINAL_H

#include <cstddef>
#include <string>

namespace qda {
namespace host {

enum class Answer {
  kGiven,
  kNone,       // the input ended, or was broken off, before a line was complete
  kTooLong,    // longer than was allowed
  kNoTerminal  // this process has none, or it cannot be kept from showing what is typed
};

// Writes `prompt` to the terminal of this process, wherever its standard handles lead, and reads
// one line from there, which is not shown. Stores it, without its line end, when kGiven. The
// terminal is as it was when this returns; on POSIX also when a signal ends the process meanwhile.
Answer AskHidden(const std::string& prompt, std::size_t longest, std::string* line);

// Whether somebody watches standard error, at a terminal that takes escape sequences (ECMA-48), so
// that a line there may be written over again.
bool ErrorIsWatched();

}  // namespace host
}  // namespace qda

#endif
