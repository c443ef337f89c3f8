// Built with what pkg-config says and nothing else.

#include <cstdio>

#include <qdacore/qdacore.h>

int main() {
  NZRVQDA20::TCIMValue value(7u);
  std::printf("%s\n", value.ToString().c_str());
  return 0;
}
