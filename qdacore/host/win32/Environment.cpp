#include <windows.h>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/win32/Errors.h>

namespace NZRVQDA20 {
namespace host {
namespace {

// The longest that the system lets a variable be, its NUL included.
const DWORD kLongestVariable = 32767;

class WindowsEnvironment final : public Environment {
 public:
  Outcome Read(const std::string& name, std::string& value) override {
    std::string buffer(kLongestVariable, '\0');
    // The call sets no error for a variable that is there and empty.
    SetLastError(ERROR_SUCCESS);
    DWORD length = 0;
    for (;;) {
      const DWORD size = static_cast<DWORD>(buffer.size());
      length = GetEnvironmentVariableA(name.c_str(), &buffer[0], size);
      if (length == 0) {
        return {Situation::kOther, GetLastError()};
      }
      if (length < size) {
        break;
      }
      // Longer than it should be able to be: this is the size that it wants.
      buffer.resize(length + 1);
    }
    value.assign(buffer, 0, length);
    return Success();
  }

  Outcome Write(const std::string& name, const std::string& value) override {
    return SetEnvironmentVariableA(name.c_str(), value.c_str()) ? Success() : OutcomeOfLastError();
  }
};

}  // namespace

Environment& SystemEnvironment() {
  static WindowsEnvironment environment;
  return environment;
}

}  // namespace host
}  // namespace NZRVQDA20
