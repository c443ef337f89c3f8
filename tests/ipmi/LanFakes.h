// A network and a core logger that are made up, for IIPMILan without sockets.

#ifndef TESTS_IPMI_LANFAKES_H
#define TESTS_IPMI_LANFAKES_H

#include <cstring>
#include <list>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <qdacore/host/HostServices.h>
#include <qdacore/ipmi/IIPMILan.h>
#include <qdacore/logging/ILogger.h>
#include <qdacore/logging/internal/CoreLog.h>
#include <tests/ipmi/SampleFrames.h>

namespace ipmi_test {

using namespace NZRVQDA20;

// Answers each receive with the next of `replies`, or with `noReply` when there is none left. Each
// call is a line in `calls`.
class FakeNetwork final : public host::Network {
 public:
  enum { kTimedOut = 4711, kTooLong = 4712 };

  std::uint16_t Start(std::uint16_t version) override {
    calls.push_back("start " + std::to_string(version));
    return version == 0x0202 ? newestVersion : version;
  }
  Socket OpenDatagram() override {
    calls.push_back("open");
    return nextSocket++;
  }
  void MakeAddress(const char* dotted, std::uint16_t port,
                   unsigned char (&address)[kAddressSize]) override {
    calls.push_back(std::string("address ") + dotted + " " + std::to_string(port));
    std::memset(address, 0xAD, sizeof address);
  }
  bool SetReceiveTimeout(Socket socket, std::uint32_t milliseconds) override {
    calls.push_back("timeout " + std::to_string(socket) + " " + std::to_string(milliseconds));
    return !failTimeout;
  }
  bool Send(Socket socket, const unsigned char (&address)[kAddressSize], const unsigned char* bytes,
            std::size_t size) override {
    const bool isRightAddress = address[0] == 0xAD && address[kAddressSize - 1] == 0xAD;
    calls.push_back((isRightAddress ? "send " : "send elsewhere ") + std::to_string(socket));
    sent.emplace_back(reinterpret_cast<const char*>(bytes), size);
    return failedSends.count(sent.size()) == 0;
  }
  bool Receive(Socket socket, unsigned char* bytes, std::size_t size, int& error) override {
    calls.push_back("receive " + std::to_string(socket) + " " + std::to_string(size));
    if (received == replies.size()) {
      error = kTimedOut;
      return false;
    }
    const std::string& reply = replies[received++];
    std::memcpy(bytes, reply.data(), reply.size() < size ? reply.size() : size);
    if (reply.size() > size) {
      error = kTooLong;
      return false;
    }
    return true;
  }
  bool Close(Socket socket) override {
    calls.push_back("close " + std::to_string(socket));
    return open.erase(socket) == 1;
  }

  std::vector<std::string> replies;
  std::uint16_t newestVersion = 0x0202;
  bool failTimeout = false;
  // Counted from 1.
  std::set<std::size_t> failedSends;
  Socket nextSocket = 17;
  std::set<Socket> open;

  std::vector<std::string> calls;
  std::vector<std::string> sent;
  std::size_t received = 0;
};

typedef std::vector<std::string> Lines;

// Every message as "SEVERITY message", NUL bytes and all.
class RecordingLogger final : public ILogger {
 public:
  RecordingLogger() { fgCoreLogger = this; }
  ~RecordingLogger() override { fgCoreLogger = nullptr; }

  void LogMessage(EQDALogSeverity severity, const std::string& message) override {
    lines.push_back(std::to_string(severity) + " " + message);
  }
  void LogSystemEvent(EQDALogSeverity, const std::string&) override {}
  std::list<TLogEntry>& GetLogEntries() override { return fEntries; }
  void ClearLogEntries() override {}
  void SetLogThreshold(EQDALogSeverity) override {}
  EQDALogSeverity GetLogThreshold() override { return kLogVerbose; }
  void SetLogFilename(std::string) override {}

  Lines lines;

 private:
  std::list<TLogEntry> fEntries;
};

// A fresh client, on a made-up network.
class FakeLan {
 public:
  explicit FakeLan(const std::vector<std::string>& replies = SampleReplies()) {
    network.replies = replies;
    host::replacements.network = &network;
    IIPMILan::Initialize();
    lan = IIPMILan::GetInstance();
  }
  ~FakeLan() {
    delete lan;
    host::replacements = {};
  }
  FakeLan(const FakeLan&) = delete;
  FakeLan& operator=(const FakeLan&) = delete;

  // What is thrown; 0 when it returns, which is true always.
  int Connect(const std::string& address = "192.0.2.7", const std::string& user = "admin",
              const std::string& password = "secret") {
    try {
      return lan->IpmilanOpenConnect(address, user, password) ? 0 : -1;
    } catch (int error) {
      return error;
    }
  }

  std::string SessionID() const {
    char id[4];
    lan->getIPMISessionID(id, 4);
    return std::string(id, 4);
  }

  FakeNetwork network;
  RecordingLogger log;
  IIPMILan* lan;
};

}  // namespace ipmi_test

#endif
