// Files to and from FTP servers, and names that resolve.
//
// The steps, their order and their texts are the same on every platform; "WindowsOS" and
// "wininet.dll" in a text stand for the host and its client.

#include <memory>

#include <qdacore/host/FtpClient.h>
#include <qdacore/host/Resolver.h>
#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/FtpTarget.h>

namespace NZRVQDA20 {

namespace {

using host::FtpClient;
using host::FtpTransfer;

const char kAgent[] = "InetURL/1.0";
const char kUploadServer[] = QDACORE_UPLOAD_SERVER;
const std::uint16_t kFtpPort = 21;

static_assert(sizeof kUploadServer > 1, "an empty name would stand in every target");

void LogError(const std::string& text) { LogToCore(ILogger::kLogError, text); }

// No such text may reach a server, so nothing is begun with it.
bool IsRefused(const std::string& target, const std::string& localFile,
               const std::string& remoteFile) {
  if (!HoldsLineEnd(target) && !HoldsLineEnd(localFile) && !HoldsLineEnd(remoteFile)) {
    return false;
  }
  LogError("TOSSpecific Error: a target or file name holds a carriage return, line feed or NUL.");
  return true;
}

std::unique_ptr<FtpTransfer> BindClient(FtpClient::Purpose purpose) {
  std::unique_ptr<FtpTransfer> transfer;
  switch (host::HostFtpClient().Bind(purpose, transfer)) {
    case FtpClient::Binding::kNoClient:
      LogError("WindowsOS: ERROR: Unable to load wininet.dll");
      break;
    case FtpClient::Binding::kNoEntryPoint:
      LogError("WindowsOS: ERROR: Unable to initialize wininet.dll");
      break;
    case FtpClient::Binding::kBound:
      break;
  }
  return transfer;
}

bool OpenSession(FtpTransfer& transfer) {
  if (transfer.Open(kAgent)) {
    return true;
  }
  LogError("WindowsOS: ERROR: Couldn't establish Internet connection");
  return false;
}

// The port counts only with credentials; without them it is 21 whatever the target said. Both are
// meant, and so is that the alternative server is tried without the credentials.
bool ConnectForUpload(FtpTransfer& transfer, const UploadTarget& target) {
  const bool isConnected = target.hasCredentials
                               ? transfer.Connect(target.server, target.port, target.user.c_str(),
                                                  target.password.c_str())
                               : transfer.Connect(target.server, kFtpPort, nullptr, nullptr);
  if (isConnected || (target.hasAlternative &&
                      transfer.Connect(target.alternativeServer, kFtpPort, nullptr, nullptr))) {
    return true;
  }
  LogError("WindowsOS: ERROR: Couldn't connect to ZRV Service");
  return false;
}

// A directory that cannot be had or entered is told, and the upload is tried all the same.
void EnterDirectory(FtpTransfer& transfer, const std::string& path) {
  std::string directory;
  // The server's text goes back to the server, so it is held to the same rule as the caller's.
  if (!transfer.GetDirectory(directory) || HoldsLineEnd(directory)) {
    directory.clear();
    LogError("TOSSpecific Error: Couldn't do GetCurrentDirectory.");
  }
  if (!transfer.SetDirectory(directory + path)) {
    LogError("TOSSpecific Error: Couldn't do SetCurrentDirectory.");
  }
}

}  // namespace

bool TOSSpecific::FTPFile(std::string target, std::string localFile, std::string remoteFile) {
  if (IsRefused(target, localFile, remoteFile)) {
    return false;
  }
  const UploadTarget parsed = ParseUploadTarget(target, kUploadServer);
  const std::unique_ptr<FtpTransfer> transfer = BindClient(FtpClient::Purpose::kUpload);
  if (!transfer) {
    return false;
  }
  // With the password in clear text, and no blank before the next name: that is how it is read.
  DebugOut("username:" + parsed.user + " userpassword:" + parsed.password + " userpath:" +
           parsed.path + " userport:" + parsed.portText + " remoteName:" + parsed.server);
  if (!OpenSession(*transfer) || !ConnectForUpload(*transfer, parsed)) {
    return false;
  }
  if (!parsed.isCustom) {
    return transfer->Put(localFile, remoteFile).done;
  }
  EnterDirectory(*transfer, parsed.path);
  const FtpTransfer::PutResult result = transfer->Put(localFile, remoteFile);
  // Also after an upload that worked: what the server had against the directory is still there.
  if (result.serverSaidWhy) {
    LogError("TOSSpecific Error: " + transfer->LastReply());
  }
  return result.done;
}

bool TOSSpecific::FTPFileFromZRV(std::string target, std::string localFile,
                                 std::string remoteFile) {
  if (IsRefused(target, localFile, remoteFile)) {
    return false;
  }
  const DownloadTarget parsed = ParseDownloadTarget(target);
  const std::unique_ptr<FtpTransfer> transfer = BindClient(FtpClient::Purpose::kDownload);
  if (!transfer || !OpenSession(*transfer)) {
    return false;
  }
  // The opposite sense of FTPFile's, and meant: an account that the target names in full is not
  // used. Without one the two texts go as they are, mostly empty.
  const char* const user = parsed.hasCredentials ? nullptr : parsed.user.c_str();
  const char* const password = parsed.hasCredentials ? nullptr : parsed.password.c_str();
  if (!transfer->Connect(parsed.server, kFtpPort, user, password)) {
    // Not the text of FTPFile.
    LogError("WindowsOS: ERROR: Couldn't connect to ZRV");
    return false;
  }
  return transfer->Get(remoteFile, localFile);
}

int TOSSpecific::DetectHostnameAvailable(std::string hostName, std::string service) {
  host::Resolver& resolver = host::HostResolver();
  const int startFailure = resolver.Start();
  if (startFailure != 0) {
    DebugOut("WSAStartup failed.");
    return startFailure;
  }
  const int code = resolver.Resolve(hostName, service);
  resolver.SetLastError(code);
  DebugOut(code != 0 ? "getaddrinfo() failed." : "getaddrinfo() successfully!");
  resolver.Stop();
  // Once more: writing the log may have left a number of its own.
  resolver.SetLastError(code);
  return code;
}

}  // namespace NZRVQDA20
