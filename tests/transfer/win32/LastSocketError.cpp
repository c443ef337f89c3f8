#include <tests/transfer/LastSocketError.h>

#include <winsock2.h>

namespace transfer_test {

int LastSocketError() { return WSAGetLastError(); }

void SetLastSocketError(int code) { WSASetLastError(code); }

}  // namespace transfer_test
