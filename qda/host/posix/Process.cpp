#include <qda/host/Process.h>

#include <stdlib.h>

namespace qda {
namespace host {

bool SetVariable(const char* name, const std::string& value) {
  return setenv(name, value.c_str(), 1) == 0;
}

const char* NullDevice() { return "/dev/null"; }

}  // namespace host
}  // namespace qda
