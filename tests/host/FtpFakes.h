// An FTP client and a resolver that are made up. Each records what it is asked, and answers what
// the test wants.

#ifndef TESTS_HOST_FTPFAKES_H
#define TESTS_HOST_FTPFAKES_H

#include <memory>
#include <string>
#include <vector>

#include <qdacore/host/FtpClient.h>
#include <qdacore/host/Resolver.h>

namespace host_fakes {

using namespace NZRVQDA20;

class FakeFtpClient final : public host::FtpClient {
 public:
  Binding Bind(Purpose purpose, std::unique_ptr<host::FtpTransfer>& transfer) override {
    calls.push_back(purpose == Purpose::kUpload ? "bind upload" : "bind download");
    if (binding == Binding::kBound) {
      transfer.reset(new Transfer(*this));
    }
    return binding;
  }

  Binding binding = Binding::kBound;
  bool opens = true;
  int failedConnects = 0;  // so many at first
  bool hasDirectory = true;
  std::string directory = "/";
  bool entersDirectory = true;
  host::FtpTransfer::PutResult put = {true, false};
  bool gets = true;
  std::string reply;
  std::vector<std::string> calls;

 private:
  class Transfer final : public host::FtpTransfer {
   public:
    explicit Transfer(FakeFtpClient& client) : fClient(client) {}
    ~Transfer() override { fClient.calls.push_back("end"); }

    bool Open(const char* agent) override {
      fClient.calls.push_back(std::string("open ") + agent);
      return fClient.opens;
    }
    bool Connect(const std::string& server, std::uint16_t port, const char* user,
                 const char* password) override {
      fClient.calls.push_back("connect " + server + " " + std::to_string(port) + " " + Shown(user) +
                              " " + Shown(password));
      return fClient.failedConnects-- <= 0;
    }
    bool GetDirectory(std::string& current) override {
      fClient.calls.push_back("get directory");
      if (fClient.hasDirectory) {
        current = fClient.directory;
      }
      return fClient.hasDirectory;
    }
    bool SetDirectory(const std::string& entered) override {
      fClient.calls.push_back("set directory " + entered);
      return fClient.entersDirectory;
    }
    PutResult Put(const std::string& localFile, const std::string& remoteFile) override {
      fClient.calls.push_back("put " + localFile + " " + remoteFile);
      return fClient.put;
    }
    bool Get(const std::string& remoteFile, const std::string& localFile) override {
      fClient.calls.push_back("get " + remoteFile + " " + localFile);
      return fClient.gets;
    }
    std::string LastReply() override {
      fClient.calls.push_back("last reply");
      return fClient.reply;
    }

   private:
    static std::string Shown(const char* text) {
      return text == nullptr ? "null" : *text == '\0' ? "''" : text;
    }

    FakeFtpClient& fClient;
  };
};

class FakeResolver final : public host::Resolver {
 public:
  int Start() override {
    calls.push_back("start");
    return startFailure;
  }
  void Stop() override { calls.push_back("stop"); }
  int Resolve(const std::string& name, const std::string& service) override {
    calls.push_back("resolve " + name + " " + service);
    return code;
  }
  void SetLastError(int lastError) override {
    calls.push_back("last error " + std::to_string(lastError));
  }

  int startFailure = 0;
  int code = 0;
  std::vector<std::string> calls;
};

}  // namespace host_fakes

#endif
