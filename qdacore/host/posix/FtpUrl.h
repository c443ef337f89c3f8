// The text of the URLs that the FTP client is given.

#ifndef QDACORE_HOST_POSIX_FTPURL_H
#define QDACORE_HOST_POSIX_FTPURL_H

#include <string>

namespace NZRVQDA20 {
namespace host {

// "ftp://HOST/" for a host name, an IPv4 address or an IPv6 address (without brackets; with a zone
// behind "%" when it has one). Empty when `server` is none of them, and so nothing that could be
// reached: what is a mark in a URL may not stand in it.
std::string FtpUrlOf(const std::string& server);

}  // namespace host
}  // namespace NZRVQDA20

#endif
