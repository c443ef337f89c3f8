#include <tests/os/ServiceAids.h>

#include <sys/utsname.h>

#include <fstream>

namespace service_aids {

const bool kRuntimeSharesTheEnvironment = true;
const unsigned kLongestValue = 200000;

// The second of the four user numbers is the effective one.
bool IsAdministrator() {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word && word != "Uid:") {
  }
  int real = -1;
  int effective = -1;
  status >> real >> effective;
  return effective == 0;
}

std::string MachineName() {
  struct utsname names;
  return uname(&names) == 0 ? names.nodename : "";
}

}  // namespace service_aids
