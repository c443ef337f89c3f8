#include <stdlib.h>

#include <tests/support/ScopedEnvironment.h>

namespace test_support {

void SetVariable(const std::string& name, const std::string& value) {
  setenv(name.c_str(), value.c_str(), 1);
}

void UnsetVariable(const std::string& name) { unsetenv(name.c_str()); }

}  // namespace test_support
