#include <conio.h>
#include <stdlib.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

class WindowsConsole final : public Console {
 public:
  bool IsKeyWaiting() override { return _kbhit() != 0; }

  int ReadKey() override { return _getch(); }

  std::string Editor() override { return "notepad"; }

  std::string Shell() override { return "cmd"; }

  void Run(const std::string& command) override { system(command.c_str()); }
};

}  // namespace

Console& SystemConsole() {
  static WindowsConsole console;
  return console;
}

}  // namespace host
}  // namespace NZRVQDA20
