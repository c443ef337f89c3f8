#include <qda/BmcOutput.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <qda/Json.h>
#include <qda/Text.h>

namespace qda {

namespace {

// Open: a reply passed its check, and none failed it after that. Doubtful: one did.
const char* Status(const BmcSession& session) {
  return !session.isConfirmed ? "unconfirmed" : session.doubt.empty() ? "open" : "doubtful";
}

// What to try when the BMC stays silent.
std::string Advice(const BmcSession& session) {
  if (session.lastRequest == "Get Session Challenge") {
    return "check the address, that the BMC has IPMI over LAN enabled, and that UDP port 623 is "
           "open";
  }
  if (session.lastRequest == "Activate Session") {
    return "user name or password may be wrong, or the BMC refuses straight password "
           "authentication";
  }
  if (!session.isConfirmed) {
    return "Activate Session was refused, or its reply is damaged; user name or password may be "
           "wrong";
  }
  if (session.lastRequest == "Set Session Privilege Level") {
    return "the session was activated, but the BMC takes no messages that are numbered from 1";
  }
  return session.doubt.empty() ? "the session was opened; nothing is sent twice, so try again"
                               : session.doubt;
}

}  // namespace

std::string BmcTable(const std::string& address, const std::string& user,
                     const BmcSession& session) {
  return Columns({{"Address", address},
                  {"User", user},
                  {"Status", Status(session)},
                  {"Session ID", session.sessionID},
                  {"Next sequence number", std::to_string(session.nextSequenceNumber)}});
}

std::string BmcJson(const std::string& address, const std::string& user,
                    const BmcSession& session) {
  nlohmann::ordered_json json;
  json["address"] = address;
  json["user"] = user;
  json["status"] = Status(session);
  json["sessionId"] = session.sessionID;
  json["nextSequenceNumber"] = session.nextSequenceNumber;
  return JsonText(json);
}

std::string BmcComplaint(const std::string& address, const BmcSession& session) {
  const std::string start = fmt::format("BMC at {}: ", address);
  if (IsTimeout(session.socketError)) {
    return start + fmt::format(
                       "no reply to {} within 5 seconds (socket error {}, "
                       "kQDAStatusConnectionFailed); {}",
                       session.lastRequest, session.socketError, Advice(session));
  }
  if (session.socketError != 0) {
    return start + fmt::format("{}: {} (socket error {}, kQDAStatusConnectionFailed)",
                               session.lastRequest, SocketErrorText(session.socketError),
                               session.socketError);
  }
  if (!session.isConfirmed) {
    return start +
           "it answered, but no reply passed its check (kQDAStatusConnectionFailed); user name or "
           "password may be wrong, or it is no BMC";
  }
  return session.doubt.empty() ? "" : start + session.doubt + " (kQDAStatusConnectionFailed)";
}

}  // namespace qda
