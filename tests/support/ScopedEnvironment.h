// An environment variable with another value, or none, until the end of the scope. Both the
// process's and the C runtime's environment change, where the two differ.

#ifndef TESTS_SUPPORT_SCOPEDENVIRONMENT_H
#define TESTS_SUPPORT_SCOPEDENVIRONMENT_H

#include <string>

namespace test_support {

class ScopedEnvironment {
 public:
  // `value` null: the variable is not set.
  ScopedEnvironment(const std::string& name, const char* value);
  ~ScopedEnvironment();
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

 private:
  std::string fName;
  bool fWasSet;
  std::string fOldValue;
};

// The two primitives, for each platform. `value` may be empty on every platform.
void SetVariable(const std::string& name, const std::string& value);
void UnsetVariable(const std::string& name);

}  // namespace test_support

#endif
