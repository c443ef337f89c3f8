#include <windows.h>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/win32/Errors.h>

namespace NZRVQDA20 {
namespace host {
namespace {

class WindowsModules final : public Modules {
 public:
  // The program's own file, not this library's: the module handle is null.
  std::size_t ProgramPath(char* buffer, std::size_t size) override {
    return GetModuleFileNameA(nullptr, buffer, static_cast<DWORD>(size));
  }

  Outcome Load(const std::string& path, Module& module) override {
    const HMODULE loaded = LoadLibraryA(path.c_str());
    if (!loaded) {
      return OutcomeOfLastError();
    }
    module = loaded;
    return Success();
  }

  Symbol Find(Module module, const std::string& name) override {
    return reinterpret_cast<Symbol>(GetProcAddress(static_cast<HMODULE>(module), name.c_str()));
  }
};

}  // namespace

Modules& SystemModules() {
  static WindowsModules modules;
  return modules;
}

}  // namespace host
}  // namespace NZRVQDA20
