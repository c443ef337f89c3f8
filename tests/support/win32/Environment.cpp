#include <windows.h>

#include <stdlib.h>
#include <string.h>

#include <tests/support/ScopedEnvironment.h>

namespace test_support {

// The runtime takes an empty value for a removal. A value of one blank, cut in place afterwards,
// leaves an empty one, which is what a parent's empty variable looks like.
void SetVariable(const std::string& name, const std::string& value) {
  if (!value.empty()) {
    _putenv_s(name.c_str(), value.c_str());
    return;
  }
  _putenv_s(name.c_str(), " ");
  if (char* text = getenv(name.c_str())) {
    *text = '\0';
  }
  SetEnvironmentVariableA(name.c_str(), "");
}

void UnsetVariable(const std::string& name) {
  _putenv_s(name.c_str(), "");
  SetEnvironmentVariableA(name.c_str(), nullptr);
}

}  // namespace test_support
