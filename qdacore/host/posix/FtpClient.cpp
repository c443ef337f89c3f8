// FTP over libcurl. One easy handle is one connection; its steps are transfers of that handle,
// of which the first two have no body:
//
//   Connect        USER, PASS, PWD
//   SetDirectory   CWD
//   Put, Get       TYPE, EPSV or PASV, STOR or RETR
//
// libcurl would quietly open a new connection where the old one has gone, with another working
// directory than the one that was set. OpenSocket, which sees every socket, does not let it.

#include <qdacore/host/FtpClient.h>

#include <errno.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/Paths.h>
#include <qdacore/host/posix/CurlLibrary.h>
#include <qdacore/host/posix/FtpUrl.h>

namespace NZRVQDA20 {
namespace host {
namespace {

const long kBufferSize = 256 * 1024;

// All that a server may say in one step. More is no answer, but a greeting without an end.
const std::size_t kMostControlText = 64 * 1024;

class Descriptor {
 public:
  explicit Descriptor(int descriptor) : fDescriptor(descriptor) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Get() const { return fDescriptor; }
  bool IsOpen() const { return fDescriptor >= 0; }
  // False when what was written last did not arrive.
  bool Close() {
    const int descriptor = fDescriptor;
    fDescriptor = -1;
    return descriptor < 0 || close(descriptor) == 0;
  }

 private:
  int fDescriptor;
};

// Only a regular file: opening a pipe would wait for whoever fills it, for ever.
int OpenToRead(const std::string& path) {
  int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0 && errno == ENOENT) {
    descriptor = open(FromCaller(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  }
  struct stat facts;
  if (descriptor >= 0 && (fstat(descriptor, &facts) != 0 || !S_ISREG(facts.st_mode))) {
    close(descriptor);
    return -1;
  }
  return descriptor;
}

std::size_t ReadFile(char* buffer, std::size_t size, std::size_t count, void* file) {
  ssize_t length;
  do {
    length = read(static_cast<Descriptor*>(file)->Get(), buffer, size * count);
  } while (length < 0 && errno == EINTR);
  return length < 0 ? curl::kReadAbort : static_cast<std::size_t>(length);
}

// Anything but the whole length makes libcurl give up.
std::size_t WriteFile(char* data, std::size_t size, std::size_t count, void* file) {
  const std::size_t length = size * count;
  std::size_t written = 0;
  while (written < length) {
    const ssize_t step =
        write(static_cast<Descriptor*>(file)->Get(), data + written, length - written);
    if (step < 0 && errno != EINTR) {
      break;
    }
    written += step < 0 ? 0 : static_cast<std::size_t>(step);
  }
  return written;
}

// The listing that a step without a body never has.
std::size_t DropBody(char*, std::size_t size, std::size_t count, void*) { return size * count; }

// What the server said in one step: its last reply, as long as there is room.
struct ControlText {
  std::string reply;
  std::size_t total = 0;
  bool replyIsComplete = false;
};

bool IsLastLine(const char* line, std::size_t length) {
  return length > 3 && line[0] >= '1' && line[0] <= '5' && line[3] == ' ';
}

std::size_t TakeReplyLine(char* line, std::size_t size, std::size_t count, void* data) {
  ControlText& text = *static_cast<ControlText*>(data);
  const std::size_t length = size * count;
  text.total += length;
  if (text.total > kMostControlText) {
    return 0;
  }
  if (text.replyIsComplete) {
    text.reply.clear();
  }
  text.reply.append(line, std::min(length, FtpTransfer::kReplySize - 1 - text.reply.size()));
  text.replyIsComplete = IsLastLine(line, length);
  return length;
}

bool IsSameAddress(const sockaddr& one, const sockaddr_storage& other) {
  if (one.sa_family != other.ss_family) {
    return false;
  }
  if (one.sa_family == AF_INET) {
    return reinterpret_cast<const sockaddr_in&>(one).sin_addr.s_addr ==
           reinterpret_cast<const sockaddr_in&>(other).sin_addr.s_addr;
  }
  return memcmp(&reinterpret_cast<const sockaddr_in6&>(one).sin6_addr,
                &reinterpret_cast<const sockaddr_in6&>(other).sin6_addr, sizeof(in6_addr)) == 0;
}

in_port_t PortOf(const sockaddr& address) {
  return address.sa_family == AF_INET ? reinterpret_cast<const sockaddr_in&>(address).sin_port
                                      : reinterpret_cast<const sockaddr_in6&>(address).sin6_port;
}

// One easy handle with its connection.
class CurlConnection {
 public:
  CurlConnection(const curl::Library& library, void* handle) : fLibrary(library), fHandle(handle) {}

  // The connection ends with no word more: libcurl would say QUIT and wait for an answer, which a
  // server that is stuck never gives.
  ~CurlConnection() {
    if (fIsUp) {
      shutdown(fSocket, SHUT_RDWR);
    }
    fLibrary.easyCleanup(fHandle);
  }
  CurlConnection(const CurlConnection&) = delete;
  CurlConnection& operator=(const CurlConnection&) = delete;

  bool LogIn(const std::string& url, std::uint16_t port, const char* user, const char* password) {
    fUrl = url;
    Set(curl::kPort, static_cast<long>(port));
    if (user) {
      Set(curl::kUserName, user);
      Set(curl::kPassword, password ? password : "");
    }
    // A proxy of the environment would be spoken to in HTTP, which has no directories.
    Set(curl::kProxy, "");
    Set(curl::kNoSignal, 1L);
    Set(curl::kUseEpsv, 0L);
    // Whatever address a passive reply names, the data comes from the server itself.
    Set(curl::kSkipPasvAddress, 1L);
    Set(curl::kFileMethod, curl::kFileMethodNoCwd);
    Set(curl::kBufferSize, kBufferSize);
    Set(curl::kUploadBufferSize, kBufferSize);
    Set(curl::kHeaderFunction, TakeReplyLine);
    Set(curl::kHeaderData, &fSaid);
    Set(curl::kOpenSocketFunction, OpenSocket);
    Set(curl::kOpenSocketData, this);
    Set(curl::kWriteFunction, DropBody);
    Set(curl::kNoBody, 1L);
    return Perform() && RememberPeer();
  }

  // Null when the server did not tell.
  const char* EntryPath() {
    const char* path = nullptr;
    return fLibrary.easyGetinfo(fHandle, curl::kEntryPath, &path) == curl::kOk ? path : nullptr;
  }

  // Whether the server accepts a command. The asterisk is libcurl's: a refusal, which the reply's
  // code tells, is no reason to end the connection.
  bool Command(const std::string& command) {
    std::string line = "*" + command;
    curl::List quote = {&line[0], nullptr};
    Set(curl::kQuote, &quote);
    const bool done = Perform() && ReplyCode() < 400;
    Set(curl::kQuote, static_cast<curl::List*>(nullptr));
    return done;
  }

  bool Send(const std::string& remoteFile, Descriptor& file) {
    Set(curl::kNoBody, 0L);
    Set(curl::kUpload, 1L);
    Set(curl::kReadFunction, ReadFile);
    Set(curl::kReadData, &file);
    return NameFile(remoteFile) && Perform();
  }

  bool Receive(const std::string& remoteFile, Descriptor& file) {
    Set(curl::kNoBody, 0L);
    Set(curl::kTransferText, 1L);
    Set(curl::kWriteFunction, WriteFile);
    Set(curl::kWriteData, &file);
    return NameFile(remoteFile) && Perform();
  }

  // The code of the last reply; 0 when there was none.
  long ReplyCode() {
    long code = 0;
    return fLibrary.easyGetinfo(fHandle, curl::kResponseCode, &code) == curl::kOk ? code : 0;
  }

  const std::string& Reply() const { return fSaid.reply; }

 private:
  template <class Value>
  void Set(curl::Option option, Value value) {
    fLibrary.easySetopt(fHandle, option, value);
  }

  bool NameFile(const std::string& remoteFile) {
    char* const escaped =
        fLibrary.easyEscape(fHandle, remoteFile.data(), static_cast<int>(remoteFile.size()));
    if (!escaped || remoteFile.empty()) {
      fLibrary.free(escaped);
      return false;
    }
    fFileUrl = fUrl + escaped;
    fLibrary.free(escaped);
    return true;
  }

  bool Perform() {
    fSaid = ControlText();
    Set(curl::kUrl, (fFileUrl.empty() ? fUrl : fFileUrl).c_str());
    return fLibrary.easyPerform(fHandle) == curl::kOk;
  }

  bool RememberPeer() {
    socklen_t size = sizeof fPeer;
    fIsUp = fLibrary.easyGetinfo(fHandle, curl::kSocket, &fSocket) == curl::kOk && fSocket >= 0 &&
            getpeername(fSocket, reinterpret_cast<sockaddr*>(&fPeer), &size) == 0;
    return fIsUp;
  }

  // Once the connection is up: data connections, to the server itself, and nothing else.
  static int OpenSocket(void* data, int, curl::Address* wanted) {
    const CurlConnection& connection = *static_cast<CurlConnection*>(data);
    if (connection.fIsUp) {
      const sockaddr& peer = reinterpret_cast<const sockaddr&>(connection.fPeer);
      if (!IsSameAddress(wanted->address, connection.fPeer) ||
          PortOf(wanted->address) == PortOf(peer)) {
        return curl::kBadSocket;
      }
    }
    return socket(wanted->family, wanted->type | SOCK_CLOEXEC, wanted->protocol);
  }

  const curl::Library fLibrary;
  void* const fHandle;
  std::string fUrl;
  std::string fFileUrl;
  ControlText fSaid;
  bool fIsUp = false;
  int fSocket = -1;
  sockaddr_storage fPeer = {};
};

class CurlTransfer final : public FtpTransfer {
 public:
  explicit CurlTransfer(const curl::Library& library) : fLibrary(library) {}

  // FTP has no place for the agent's name. A handle that libcurl gives shows that it works.
  bool Open(const char*) override { return NewConnection(); }

  bool Connect(const std::string& server, std::uint16_t port, const char* user,
               const char* password) override {
    const std::string url = FtpUrlOf(server);
    const bool namesUser = user && *user;
    // A password without a user name is nothing that FTP could say.
    const bool isLogin = namesUser || !password || !*password;
    if (url.empty() || !isLogin || !NewConnection()) {
      return false;
    }
    return fConnection->LogIn(url, port, namesUser ? user : nullptr, password);
  }

  bool GetDirectory(std::string& directory) override {
    const char* const path = fConnection->EntryPath();
    if (!path || strlen(path) >= kDirectorySize) {
      return false;
    }
    directory = path;
    return true;
  }

  bool SetDirectory(const std::string& directory) override {
    return fConnection->Command("CWD " + directory);
  }

  PutResult Put(const std::string& localFile, const std::string& remoteFile) override {
    Descriptor file(OpenToRead(localFile));
    if (!file.IsOpen()) {
      return {false, false};
    }
    const bool done = fConnection->Send(remoteFile, file);
    return {done, !done && fConnection->ReplyCode() >= 400 && !fConnection->Reply().empty()};
  }

  bool Get(const std::string& remoteFile, const std::string& localFile) override {
    struct stat facts;
    const std::string path =
        lstat(localFile.c_str(), &facts) == 0 ? localFile : FromCaller(localFile);
    Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.IsOpen()) {
      return false;
    }
    bool done = fConnection->Receive(remoteFile, file);
    done = file.Close() && done;
    if (!done) {
      unlink(path.c_str());
    }
    return done;
  }

  std::string LastReply() override { return fConnection->Reply(); }

 private:
  bool NewConnection() {
    void* const handle = fLibrary.easyInit();
    if (handle) {
      fConnection.reset(new CurlConnection(fLibrary, handle));
    }
    return handle != nullptr;
  }

  const curl::Library fLibrary;
  std::unique_ptr<CurlConnection> fConnection;
};

class PosixFtpClient final : public FtpClient {
 public:
  // Both purposes need the same functions.
  Binding Bind(Purpose, std::unique_ptr<FtpTransfer>& transfer) override {
    curl::Library library;
    switch (curl::Load(library)) {
      case curl::Loading::kNoLibrary:
        return Binding::kNoClient;
      case curl::Loading::kNoFunction:
        return Binding::kNoEntryPoint;
      default:
        transfer.reset(new CurlTransfer(library));
        return Binding::kBound;
    }
  }
};

}  // namespace

FtpClient& SystemFtpClient() {
  static PosixFtpClient client;
  return client;
}

}  // namespace host
}  // namespace NZRVQDA20
