// The thread's last socket error, and what the host's resolver says of a service that nobody knows.

#ifndef TESTS_TRANSFER_LASTSOCKETERROR_H
#define TESTS_TRANSFER_LASTSOCKETERROR_H

namespace transfer_test {

int LastSocketError();
void SetLastSocketError(int code);

#if defined(_WIN32)
const int kUnknownService = 10109;  // WSATYPE_NOT_FOUND
#else
const int kUnknownService = -8;  // EAI_SERVICE
#endif

}  // namespace transfer_test

#endif
