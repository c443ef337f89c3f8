// Built with what pkg-config says and nothing else.

#include <cstdio>

#include <qdacore/qdacore.h>

int main() {
  NZRVQDA20::TCIMValue value(7u);
  // Through the library smbios, which nobody named.
  std::printf("%s %s\n", value.ToString().c_str(),
              NZRVQDA20::TOSSpecific::GetMachineType().c_str());
  return 0;
}
