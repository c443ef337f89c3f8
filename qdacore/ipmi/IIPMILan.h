// IIPMILan: opens an IPMI 1.5 session to a baseboard management controller (BMC) over the LAN:
// RMCP over UDP to port 623, authentication by straight password, privilege level Administrator.
// There is one per process.
//
//   IIPMILan::Initialize();
//   IIPMILan* lan = TRootObject::GetipmiLanIns();
//   try {
//     lan->IpmilanOpenConnect("192.0.2.7", "admin", "secret");
//   } catch (int socketError) {
//     // No reply, most likely. The socket is open, and the caller's.
//   }
//   if (lan->getipmiLanStatus()) {
//     // Go on with getTheSocket, getSaServer, getIPMISessionID, getBMCPassword and getSeqNum.
//   }
//   lan->closeSocket();
//
// Four requests are sent, each once, and one reply is taken to each: Get Session Challenge,
// Activate Session, Set Session Privilege Level, Get SEL Entry. The rest is the caller's: nothing
// here sends anything further, and nothing closes the session at the BMC, which ends it by itself.
//
// The exchange is not quite the published one (IPMI specification 1.5, section 18), on purpose:
//   - the requester's address is 0x21 in every message, and its sequence number is 0;
//   - messages of the session are numbered 1, 2, ... by our own counter, whatever first number the
//     reply to Activate Session asks for. A BMC that insists on it stays silent from request 3 on;
//   - Get Channel Authentication Capabilities and Close Session are never sent;
//   - the reply to Get Session Challenge is not tested, a failed test of another one is logged and
//     never ends the exchange, and source, session ID and numbers of a reply are not compared.
// docs/ipmi.md shows the frames byte by byte.
//
// The password stands in the core log at debug level, in plain text, and in every message: this
// version has no other authentication.
//
// Threads: nothing is guarded. One thread at a time uses it.

#ifndef QDACORE_IPMI_IIPMILAN_H
#define QDACORE_IPMI_IIPMILAN_H

#include <cstdint>
#include <string>

#include <qdacore/Export.h>

// Complete in the host's socket header; needed only by callers of getSaServer.
struct sockaddr_in;

namespace NZRVQDA20 {

class QDACORE_EXPORT IIPMILan {
 public:
  // Nothing in it is set but to zero, and there is no socket. The destructor is the implicit one
  // and does nothing: it closes no socket.
  IIPMILan();

  // Copies the whole object byte for byte, the socket's handle included, which is then shared.
  IIPMILan& operator=(const IIPMILan& other);

  // Makes the one instance, without running the constructor: all zero, no socket, status false. An
  // earlier instance is abandoned, not freed: whoever holds it owns it. The library never frees
  // one.
  static void Initialize();

  // The instance; null before Initialize, for nothing is made here. Not owned by the caller.
  static IIPMILan* GetInstance();

  // Runs the exchange, and returns true whenever it returns: getipmiLanStatus tells whether a reply
  // was good. `address` is IPv4 in dotted decimal form; a name is not resolved, and not refused.
  // Of `userID` and `password` the first 16 characters count, shorter ones are padded with NUL;
  // each of the three is kept up to 99 characters. Opens a new socket, does not close an earlier
  // one, and numbers from 1 again. Blocks up to 5 seconds for each of the four replies. Throws an
  // int, the host's socket error (errno, or WSAGetLastError's code), when a receive fails: EAGAIN
  // or WSAETIMEDOUT when no reply came in time, EMSGSIZE or WSAEMSGSIZE for a reply of more than
  // 100 bytes. What was set until then stays, the open socket too, which is the caller's.
  bool IpmilanOpenConnect(std::string address, std::string userID, std::string password);

  // Copies `length` bytes to `out`, from the session ID on, when `length` is 1 to 19; otherwise
  // nothing. The ID has 4 bytes, as they stood on the wire; what is asked for beyond it is the
  // begin of the address.
  void getIPMISessionID(char* const out, int length) const;

  // Copies exactly 20 bytes of the password to `out`. The int is ignored.
  void getBMCPassword(char* const out, int length) const;

  // Copies exactly 40 bytes of the address's text to `out`. The int is ignored.
  void getIPMIAddress(char* const out, int length) const;

  // The checksum of the bytes from `first` to `last`, both included, which makes bytes and checksum
  // sum up to zero modulo 256. 0 when `last` is below `first`.
  char GenSum(char* const buffer, int first, int last) const;

  // Checks a reply. `lengthOffset` is the place of the message's length byte in a reply with an
  // authentication code, 29; in one whose byte 4 is 0 it is taken 16 bytes earlier. Modes:
  //   0  checksum and completion code   1  checksum alone
  //   2  completion code alone          other  nothing at all
  // The length byte is taken as a signed number and is not bounded: `reply` must be readable from
  // 128 bytes before to 127 bytes behind it. True, and the status becomes true, when all tests of
  // the mode pass; otherwise false, and the status stays.
  bool ChkResponse(char* const reply, int lengthOffset, int mode);

  // True once any ChkResponse has passed, in this session or an earlier one: nothing sets it back,
  // neither closeSocket nor another IpmilanOpenConnect. Logs a debug line.
  bool getipmiLanStatus() const;

  // The UDP socket's handle; all bits are set when there is none. It is not connected.
  std::uint64_t getTheSocket() const;

  // Closes the socket. The sense is inverted, on purpose: true means that it failed, false that the
  // socket is closed. Neither the handle nor the status is reset, so a second call fails.
  bool closeSocket();

  // Where the BMC is: family, port and IPv4 address.
  sockaddr_in getSaServer() const;

  // Counts the session's sequence number on and returns it: the number for the caller's next
  // message. Logs a debug line.
  std::uint32_t getSeqNum();

 private:
  void KeepArguments(const std::string& address, const std::string& userID,
                     const std::string& password);
  void OpenSocket();

  static IIPMILan* fgipmilanInstance;

  // In this order and without gaps: getIPMISessionID reads on from the first into the second.
  char fSessionID[4];
  char fIPAddress[100];
  char fUserID[100];
  char fPassword[100];
  bool fLanStatus;
  std::uint32_t fSeqNum;
  std::uint64_t fSocket;
  // A sockaddr_in, whose header is not for ours to include.
  alignas(4) unsigned char fSaServer[16];
};

}  // namespace NZRVQDA20

#endif
