// The host's FTP client, bound at run time: a machine without one still loads the library.
// Every connection is passive. Nothing here throws anything of ours, logs anything or looks into
// the texts that it is given: that no text holds a carriage return, line feed or NUL, which would
// be commands of their own on the wire, is the caller's part.

#ifndef QDACORE_HOST_FTPCLIENT_H
#define QDACORE_HOST_FTPCLIENT_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace NZRVQDA20 {
namespace host {

// One transfer: a session, then a connection, then what is done over it. Calls block as long as
// the client does.
class FtpTransfer {
 public:
  // The working directory and the server's reply, closing NUL included, are no longer than these.
  static const std::size_t kDirectorySize = 260;
  static const std::size_t kReplySize = 1024;

  struct PutResult {
    bool done;
    // The server itself gave a reason, which LastReply tells (on Windows: the thread's last error
    // is 12003). Captured at once after the call.
    bool serverSaidWhy;
  };

  // Frees memory. What it closes beyond that is the host's matter: on Windows nothing, the
  // handles of a transfer stay until the process ends; on Linux the connection.
  virtual ~FtpTransfer() = default;

  // Opens the session; `agent` names the program where the protocol has a place for it.
  virtual bool Open(const char* agent) = 0;

  // Connects and logs in, over a connection of its own each time. A null or empty user name with
  // no password is an anonymous login. A refused login is a failed connection. `port` 0 is FTP's
  // own, 21.
  virtual bool Connect(const std::string& server, std::uint16_t port, const char* user,
                       const char* password) = 0;

  // The working directory on the server, as the server says it.
  virtual bool GetDirectory(std::string& directory) = 0;
  virtual bool SetDirectory(const std::string& directory) = 0;

  // Sends a file in binary mode.
  virtual PutResult Put(const std::string& localFile, const std::string& remoteFile) = 0;

  // Fetches a file in text mode into a new local file; one that is there already is left alone,
  // and the call fails. A transfer that fails leaves no file behind.
  virtual bool Get(const std::string& remoteFile, const std::string& localFile) = 0;

  // What the server last said, cut to kReplySize - 1 characters; empty when it is not to be had.
  virtual std::string LastReply() = 0;
};

class FtpClient {
 public:
  enum class Purpose { kUpload, kDownload };
  enum class Binding { kBound, kNoClient, kNoEntryPoint };

  // Loads the client and looks its entry points up, anew at each call; nothing unloads it. What
  // is needed for `purpose` must be there. `transfer` is set when the result is kBound.
  virtual Binding Bind(Purpose purpose, std::unique_ptr<FtpTransfer>& transfer) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~FtpClient() = default;
};

FtpClient& HostFtpClient();

}  // namespace host
}  // namespace NZRVQDA20

#endif
