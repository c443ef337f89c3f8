#include <errno.h>
#include <time.h>
#include <unistd.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

class PosixMachine final : public Machine {
 public:
  bool ReadName(std::string& name) override {
    // The longest that POSIX knows of, and a NUL, which a name that was cut would lack.
    char buffer[256] = "";
    if (gethostname(buffer, sizeof buffer - 1) != 0) {
      return false;
    }
    name = buffer;
    return true;
  }

  void Sleep(unsigned int milliseconds) override {
    struct timespec left = {static_cast<time_t>(milliseconds / 1000),
                            static_cast<long>(milliseconds % 1000) * 1000000};
    // After a signal handler has run, the rest of the time.
    while (clock_nanosleep(CLOCK_MONOTONIC, 0, &left, &left) == EINTR) {
    }
  }
};

}  // namespace

Machine& SystemMachine() {
  static PosixMachine machine;
  return machine;
}

}  // namespace host
}  // namespace NZRVQDA20
