// libcurl as far as the FTP client needs it, bound at run time. The build needs neither libcurl
// nor its headers: the few declarations below are those of its public binary interface, which
// promises never to change their values (curl's documentation, "libcurl ABI policy").

#ifndef QDACORE_HOST_POSIX_CURLLIBRARY_H
#define QDACORE_HOST_POSIX_CURLLIBRARY_H

#include <sys/socket.h>

namespace NZRVQDA20 {
namespace host {
namespace curl {

// CURLcode and the values that callbacks return.
const int kOk = 0;
const unsigned kReadAbort = 0x10000000;
const int kBadSocket = -1;

// CURLoption.
enum Option {
  kPort = 3,
  kNoBody = 44,
  kUpload = 46,
  kTransferText = 53,
  kUseEpsv = 85,
  kBufferSize = 98,
  kNoSignal = 99,
  kSkipPasvAddress = 137,
  kFileMethod = 138,
  kUploadBufferSize = 280,
  kWriteData = 10001,
  kUrl = 10002,
  kProxy = 10004,
  kReadData = 10009,
  kQuote = 10028,
  kHeaderData = 10029,
  kOpenSocketData = 10164,
  kUserName = 10173,
  kPassword = 10174,
  kWriteFunction = 20011,
  kReadFunction = 20012,
  kHeaderFunction = 20079,
  kOpenSocketFunction = 20163
};

// CURLFTPMETHOD_NOCWD: a file's whole path goes with the command, with no change of directory.
const long kFileMethodNoCwd = 2;

// CURLINFO.
enum Info { kEntryPath = 0x100000 + 30, kResponseCode = 0x200000 + 2, kSocket = 0x500000 + 44 };

// struct curl_slist, of which libcurl only reads.
struct List {
  char* data;
  List* next;
};

// struct curl_sockaddr. `address` goes on behind its end when `addressLength` says so.
struct Address {
  int family;
  int type;
  int protocol;
  unsigned int addressLength;
  sockaddr address;
};

struct Library {
  void* (*easyInit)();
  void (*easyCleanup)(void* handle);
  int (*easySetopt)(void* handle, int option, ...);
  int (*easyPerform)(void* handle);
  int (*easyGetinfo)(void* handle, int info, ...);
  char* (*easyEscape)(void* handle, const char* text, int length);
  void (*free)(void* text);
};

enum class Loading { kLoaded, kNoLibrary, kNoFunction };

// Loads libcurl.so.4, which stays loaded, and looks its functions up.
Loading Load(Library& library);

}  // namespace curl
}  // namespace host
}  // namespace NZRVQDA20

#endif
