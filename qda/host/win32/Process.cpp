#include <qda/host/Process.h>

#include <stdlib.h>

namespace qda {
namespace host {

// Sets the C runtime's copy and the system's.
bool SetVariable(const char* name, const std::string& value) {
  return _putenv_s(name, value.c_str()) == 0;
}

const char* NullDevice() { return "NUL"; }

}  // namespace host
}  // namespace qda
