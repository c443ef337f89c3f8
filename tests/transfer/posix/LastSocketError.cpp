#include <tests/transfer/LastSocketError.h>

#include <errno.h>

namespace transfer_test {

int LastSocketError() { return errno; }

void SetLastSocketError(int code) { errno = code; }

}  // namespace transfer_test
