#include <qda/BmcSession.h>

#include <algorithm>

#include <fmt/format.h>

#include <qda/RunLog.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/ipmi/IIPMILan.h>

namespace qda {

using NZRVQDA20::IIPMILan;
using NZRVQDA20::ILogger;
using NZRVQDA20::TRootObject;

namespace {

struct SocketError {
  int windows;  // WSAGetLastError
  int linux_;   // errno
  const char* text;
};

const SocketError kSocketErrors[] = {
    {10060, 11, "timed out"},
    {10040, 90, "the reply is longer than any that was asked for"},
    {10054, 104, "the address has no one who listens"},
    {10061, 111, "the address has no one who listens"},
    {10051, 101, "the network is unreachable"},
    {10065, 113, "the host is unreachable"},
    {10013, 13, "not permitted"},
    {10022, 22, "the request could not be sent"},
    {10038, 9, "no socket could be opened"},
    {10050, 100, "the network is down"},
};

bool Contains(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

// The client says how far it came by its next sequence number, and by the log's words for the two
// requests that have none.
std::string LastRequest(std::uint32_t nextNumber, const std::string& kept) {
  if (nextNumber == 3) {
    return "Get SEL Entry";
  }
  if (nextNumber == 2) {
    return "Set Session Privilege Level";
  }
  return Contains(kept, "Activate Session Request : error code") ? "Activate Session"
                                                                 : "Get Session Challenge";
}

// The words of the log are those of other steps, in part.
std::string Doubt(const std::string& kept) {
  if (Contains(kept, "Set Privilege Level : ChkResponse failed")) {
    return "Set Session Privilege Level was refused, or its reply is damaged";
  }
  if (Contains(kept, "Activate Session Request : ChkResponse failed")) {
    return "the reply to Get SEL Entry is damaged";
  }
  return "";
}

std::string SessionID(const IIPMILan& lan) {
  char id[4];
  lan.getIPMISessionID(id, sizeof id);
  std::string text;
  for (const char byte : id) {
    text += fmt::format("{:02x}", static_cast<unsigned char>(byte));
  }
  return text;
}

}  // namespace

BmcSession OpenBmcSession(const std::string& address, const std::string& user,
                          const std::string& password) {
  IIPMILan::Initialize();
  IIPMILan& lan = *TRootObject::GetipmiLanIns();
  BmcSession session;
  // The client tells of a reply that did not pass by a warning, and by nothing else. So warnings
  // are let through, whatever was asked for: without them a refused session would be taken for
  // good.
  ILogger& log = *TRootObject::GetCoreLogger();
  const ILogger::EQDALogSeverity threshold = log.GetLogThreshold();
  log.SetLogThreshold(std::max(threshold, ILogger::kLogWarning));
  RunLog::TakeKept(ILogger::kLogWarning);
  try {
    lan.IpmilanOpenConnect(address, user, password);
  } catch (int error) {
    // 0 would read as success.
    session.socketError = error ? error : -1;
  }
  const std::string kept = RunLog::TakeKept(ILogger::kLogWarning);
  log.SetLogThreshold(threshold);
  session.isConfirmed = lan.getipmiLanStatus();
  session.sessionID = SessionID(lan);
  session.nextSequenceNumber = lan.getSeqNum();
  session.lastRequest = LastRequest(session.nextSequenceNumber, kept);
  session.doubt = Doubt(kept);
  lan.closeSocket();
  return session;
}

std::string SocketErrorText(int error) {
  for (const SocketError& known : kSocketErrors) {
    if (error == known.windows || error == known.linux_) {
      return known.text;
    }
  }
  return "the host's sockets failed";
}

bool IsTimeout(int socketError) {
  return socketError == kSocketErrors[0].windows || socketError == kSocketErrors[0].linux_;
}

}  // namespace qda
