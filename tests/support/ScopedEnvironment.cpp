#include <tests/support/ScopedEnvironment.h>

#include <cstdlib>

namespace test_support {

ScopedEnvironment::ScopedEnvironment(const std::string& name, const char* value)
    : fName(name), fWasSet(false) {
  if (const char* old = std::getenv(name.c_str())) {
    fWasSet = true;
    fOldValue = old;
  }
  if (value) {
    SetVariable(name, value);
  } else {
    UnsetVariable(name);
  }
}

ScopedEnvironment::~ScopedEnvironment() {
  if (fWasSet) {
    SetVariable(fName, fOldValue);
  } else {
    UnsetVariable(fName);
  }
}

}  // namespace test_support
