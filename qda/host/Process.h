// The seam to the host, as far as the core library does not have it. Throws nothing but
// std::bad_alloc.

#ifndef QDA_HOST_PROCESS_H
#define QDA_HOST_PROCESS_H

#include <string>

namespace qda {
namespace host {

// Sets a variable in this process's environment, for everything that it loads. False when the
// system refuses.
bool SetVariable(const char* name, const std::string& value);

// The file that swallows everything.
const char* NullDevice();

}  // namespace host
}  // namespace qda

#endif
