// The target texts of file transfers, taken apart. Pure text: nothing is looked up or reached.

#ifndef QDACORE_OS_INTERNAL_FTPTARGET_H
#define QDACORE_OS_INTERNAL_FTPTARGET_H

#include <cstdint>
#include <string>

namespace NZRVQDA20 {

// The target of an upload:
//
//   any text that holds the vendor's upload server's name    taken as it stands, not parsed
//   [USER[:PASSWORD]@]HOST[:PORT][/PATH]
//   [USER[:PASSWORD]@]IPV6-ADDRESS[:PORT][/PATH]              bare, or in brackets
//
// What is odd about it, and meant:
//   - the first "@" ends the credentials, so no password holds one; a later ":" it may hold
//   - `port` is set for the second form only; behind an IPv6 address the text is cut off, shown
//     and never converted
//   - a bare IPv6 address stays whole as the server, and less its last group is the alternative
//     server, since that group may be a port
struct UploadTarget {
  bool isCustom = false;  // not the vendor's server
  std::string server;     // what is left of the text
  std::string user;
  std::string password;
  std::string path;  // from the first "/" on
  std::string portText;
  std::uint16_t port = 21;
  bool hasCredentials = false;
  bool hasAlternative = false;
  std::string alternativeServer;
};

// `vendorServer` is the host name of the vendor's upload server, and not empty.
UploadTarget ParseUploadTarget(const std::string& target, const std::string& vendorServer);

// The target of a download: [USER:PASSWORD@]HOST. The text before the first ":" is the user name
// even when no "@" follows; `hasCredentials` says that both marks were there.
struct DownloadTarget {
  std::string server;
  std::string user;
  std::string password;
  bool hasCredentials = false;
};

DownloadTarget ParseDownloadTarget(const std::string& target);

// Whether `text` holds a carriage return, a line feed or a NUL: on the wire each would end a
// command, and what follows would be one of its own.
bool HoldsLineEnd(const std::string& text);

}  // namespace NZRVQDA20

#endif
