// The keyboard, and the programs that a user works with in between.

#include <qdacore/host/Console.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>

namespace NZRVQDA20 {

bool TOSSpecific::IsKeyWaiting() { return host::HostConsole().IsKeyWaiting(); }

int TOSSpecific::GetKeyboardChar() { return host::HostConsole().ReadKey(); }

void TOSSpecific::LaunchTextEditor(std::string path) {
  if (HoldsNul(path)) {
    return;
  }
  host::Console& console = host::HostConsole();
  // Not quoted, and this is meant: callers quote what needs it, or add arguments.
  console.Run(console.Editor() + " " + path);
}

void TOSSpecific::LaunchCommandShell() {
  host::Console& console = host::HostConsole();
  console.Run(console.Shell());
}

}  // namespace NZRVQDA20
