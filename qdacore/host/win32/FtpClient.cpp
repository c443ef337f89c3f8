// WinINet. Its handles are never closed and its library is never released: they stay until the
// process ends, and this is meant.

#include <qdacore/host/FtpClient.h>

#include <windows.h>
// After Windows' own header.
#include <wininet.h>

#include <cstring>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

template <class Function>
void Find(HMODULE library, const char* name, Function& function) {
  function =
      reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
}

struct WinInet {
  decltype(&InternetOpenA) open = nullptr;
  decltype(&InternetConnectA) connect = nullptr;
  decltype(&FtpPutFileA) put = nullptr;
  decltype(&FtpGetFileA) get = nullptr;
  // These three may be missing; the call then fails.
  decltype(&FtpGetCurrentDirectoryA) getDirectory = nullptr;
  decltype(&FtpSetCurrentDirectoryA) setDirectory = nullptr;
  decltype(&InternetGetLastResponseInfoA) lastReply = nullptr;

  bool FindForUpload(HMODULE library) {
    Find(library, "InternetOpenA", open);
    Find(library, "InternetConnectA", connect);
    Find(library, "FtpPutFileA", put);
    Find(library, "FtpGetCurrentDirectoryA", getDirectory);
    Find(library, "FtpSetCurrentDirectoryA", setDirectory);
    Find(library, "InternetGetLastResponseInfoA", lastReply);
    return open && connect && put;
  }

  bool FindForDownload(HMODULE library) {
    Find(library, "InternetOpenA", open);
    Find(library, "InternetConnectA", connect);
    Find(library, "FtpGetFileA", get);
    return open && connect && get;
  }
};

std::string TextIn(const char* buffer, std::size_t size) {
  return std::string(buffer, strnlen(buffer, size));
}

class WindowsFtpTransfer final : public FtpTransfer {
 public:
  explicit WindowsFtpTransfer(const WinInet& calls) : fCalls(calls) {}

  bool Open(const char* agent) override {
    fSession = fCalls.open(agent, INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0);
    return fSession != nullptr;
  }

  bool Connect(const std::string& server, std::uint16_t port, const char* user,
               const char* password) override {
    fConnection = fCalls.connect(fSession, server.c_str(), port, user, password,
                                 INTERNET_SERVICE_FTP, INTERNET_FLAG_PASSIVE, 0);
    return fConnection != nullptr;
  }

  bool GetDirectory(std::string& directory) override {
    char buffer[kDirectorySize] = {};
    DWORD size = sizeof buffer;
    if (!fCalls.getDirectory || !fCalls.getDirectory(fConnection, buffer, &size)) {
      return false;
    }
    directory = TextIn(buffer, sizeof buffer);
    return true;
  }

  bool SetDirectory(const std::string& directory) override {
    return fCalls.setDirectory && fCalls.setDirectory(fConnection, directory.c_str());
  }

  PutResult Put(const std::string& localFile, const std::string& remoteFile) override {
    const BOOL done =
        fCalls.put(fConnection, localFile.c_str(), remoteFile.c_str(), FTP_TRANSFER_TYPE_BINARY, 0);
    const DWORD error = GetLastError();
    return {done != FALSE, error == ERROR_INTERNET_EXTENDED_ERROR};
  }

  bool Get(const std::string& remoteFile, const std::string& localFile) override {
    return fCalls.get(fConnection, remoteFile.c_str(), localFile.c_str(), TRUE,
                      FILE_ATTRIBUTE_NORMAL, FTP_TRANSFER_TYPE_ASCII, 0);
  }

  std::string LastReply() override {
    char buffer[kReplySize] = {};
    DWORD size = sizeof buffer;
    DWORD error = 0;
    if (!fCalls.lastReply || !fCalls.lastReply(&error, buffer, &size)) {
      return std::string();
    }
    return TextIn(buffer, sizeof buffer);
  }

 private:
  const WinInet fCalls;
  HINTERNET fSession = nullptr;
  HINTERNET fConnection = nullptr;
};

class WindowsFtpClient final : public FtpClient {
 public:
  Binding Bind(Purpose purpose, std::unique_ptr<FtpTransfer>& transfer) override {
    const HMODULE library = LoadLibraryA("wininet.dll");
    if (!library) {
      return Binding::kNoClient;
    }
    WinInet calls;
    const bool found =
        purpose == Purpose::kUpload ? calls.FindForUpload(library) : calls.FindForDownload(library);
    if (!found) {
      return Binding::kNoEntryPoint;
    }
    transfer.reset(new WindowsFtpTransfer(calls));
    return Binding::kBound;
  }
};

}  // namespace

FtpClient& SystemFtpClient() {
  static WindowsFtpClient client;
  return client;
}

}  // namespace host
}  // namespace NZRVQDA20
