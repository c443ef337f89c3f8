#include <errno.h>
#include <stdlib.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

// The numbers that Windows gives.
const unsigned long kNotEnoughMemory = 8;
const unsigned long kInvalidParameter = 87;
const unsigned long kVariableNotFound = 203;

class PosixEnvironment final : public Environment {
 public:
  Outcome Read(const std::string& name, std::string& value) override {
    // getenv takes "A=B" for the variable A with a value that begins with "B=".
    const bool possible = name.find('=') == std::string::npos;
    const char* const text = possible ? getenv(name.c_str()) : nullptr;
    if (!text) {
      return {Situation::kOther, kVariableNotFound};
    }
    if (*text == '\0') {
      return {Situation::kOther, 0};
    }
    value = text;
    return Success();
  }

  Outcome Write(const std::string& name, const std::string& value) override {
    if (setenv(name.c_str(), value.c_str(), 1) == 0) {
      return Success();
    }
    return {Situation::kOther, errno == ENOMEM ? kNotEnoughMemory : kInvalidParameter};
  }
};

}  // namespace

Environment& SystemEnvironment() {
  static PosixEnvironment environment;
  return environment;
}

}  // namespace host
}  // namespace NZRVQDA20
