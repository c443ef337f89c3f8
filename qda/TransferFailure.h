// What a failed transfer is told as: the library's log, in words that say what to do.

#ifndef QDA_TRANSFERFAILURE_H
#define QDA_TRANSFERFAILURE_H

#include <string>

namespace qda {

// `log` is what the library logged as errors. The text ends with a status name in brackets, and
// what to try behind it.
std::string TransferFailure(const std::string& log);

// Whether the log of an upload that was done says that it is in another directory.
bool IsAstray(const std::string& log);

}  // namespace qda

#endif
