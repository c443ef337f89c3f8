// One session with a BMC, opened by the core library's client.

#ifndef QDA_BMCSESSION_H
#define QDA_BMCSESSION_H

#include <cstdint>
#include <string>

namespace qda {

struct BmcSession {
  // What was asked last, the way IPMI names it: "Get Session Challenge".
  std::string lastRequest;
  // The socket error that broke the exchange off; 0: it went to its end.
  int socketError = 0;
  // At least one reply passed its check.
  bool isConfirmed = false;
  // What did not pass, in words; empty: nothing.
  std::string doubt;
  // The four bytes as they stood on the wire, in hexadecimal.
  std::string sessionID;
  // For the next message to the BMC.
  std::uint32_t nextSequenceNumber = 0;
};

// Opens a session and gives up its socket again; the BMC ends the session by itself. Blocks up to
// 20 seconds. Needs a core logger.
BmcSession OpenBmcSession(const std::string& address, const std::string& user,
                          const std::string& password);

// A socket error of Windows or Linux in words: "timed out". Their numbers do not meet.
std::string SocketErrorText(int error);

bool IsTimeout(int socketError);

}  // namespace qda

#endif
