// A file descriptor that is closed at the end of its scope.

#ifndef QDACORE_HOST_POSIX_DESCRIPTOR_H
#define QDACORE_HOST_POSIX_DESCRIPTOR_H

#include <errno.h>
#include <unistd.h>

namespace NZRVQDA20 {
namespace host {

class Descriptor {
 public:
  // Negative: none is open.
  explicit Descriptor(int number) : fNumber(number) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Number() const { return fNumber; }
  bool Open() const { return fNumber >= 0; }
  // False with errno: some file systems report a failed write only here.
  bool Close() {
    const int number = fNumber;
    fNumber = -1;
    return number < 0 || close(number) == 0 || errno == EINTR;
  }

 private:
  int fNumber;
};

}  // namespace host
}  // namespace NZRVQDA20

#endif
