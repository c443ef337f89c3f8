#include <tests/logging/HostAids.h>

#include <sys/stat.h>
#include <unistd.h>

void ShowDebuggerOutput() {}

// The superuser opens whatever there is, so the process becomes somebody else.
bool DenyOpening(const std::string& path) {
  const unsigned int nobody = 65534;
  return chmod(path.c_str(), 0444) == 0 &&
         (geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0));
}
