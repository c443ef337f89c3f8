#include <windows.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

class WindowsMachine final : public Machine {
 public:
  // The NetBIOS name: 15 characters at the most, and a NUL.
  bool ReadName(std::string& name) override {
    char buffer[MAX_COMPUTERNAME_LENGTH + 1] = "";
    DWORD size = sizeof buffer;
    if (!GetComputerNameA(buffer, &size)) {
      return false;
    }
    name = buffer;
    return true;
  }

  void Sleep(unsigned int milliseconds) override { ::Sleep(milliseconds); }
};

}  // namespace

Machine& SystemMachine() {
  static WindowsMachine machine;
  return machine;
}

}  // namespace host
}  // namespace NZRVQDA20
