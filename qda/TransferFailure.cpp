#include <qda/TransferFailure.h>

#include <fmt/format.h>

namespace qda {

namespace {

struct Told {
  const char* inLog;
  const char* text;
};

const char kReason[] = "TOSSpecific Error: ";
const char kNotEntered[] = "TOSSpecific Error: Couldn't do SetCurrentDirectory.";
const char kNoDirectory[] = "TOSSpecific Error: Couldn't do GetCurrentDirectory.";

const Told kFailures[] = {
    {"Unable to load",
     "this machine has no FTP client (kQDAStatusINETNotFound); install the system's: libcurl4 on "
     "Debian, WinINet on Windows"},
    {"Unable to initialize",
     "this machine's FTP client lacks functions that are needed (kQDAStatusINETNotFound); install "
     "a newer one"},
    {"Couldn't establish", "this machine's FTP client does not start (kQDAStatusINETNotFound)"},
    {"Couldn't connect",
     "the server cannot be reached, or refuses the login (kQDAStatusConnectionFailed); \"qda "
     "host\" tells whether its name is known"},
    {"carriage return",
     "a name holds a carriage return, line feed or NUL (kQDAStatusTransferFailure); nothing was "
     "sent"},
};

// What the server itself said; empty when it said nothing.
std::string ReasonIn(std::string log) {
  for (const char* const ours : {kNoDirectory, kNotEntered}) {
    const std::size_t at = log.find(ours);
    if (at != std::string::npos) {
      log.erase(at, std::string(ours).size());
    }
  }
  const std::size_t at = log.find(kReason);
  std::string reason = at == std::string::npos ? "" : log.substr(at + sizeof kReason - 1);
  reason.erase(reason.find_last_not_of("\r\n ") + 1);
  return reason;
}

}  // namespace

std::string TransferFailure(const std::string& log) {
  for (const Told& failure : kFailures) {
    if (log.find(failure.inLog) != std::string::npos) {
      return failure.text;
    }
  }
  const std::string astray =
      IsAstray(log) ? "the server does not let us into the directory; " : std::string();
  const std::string reason = ReasonIn(log);
  if (!reason.empty()) {
    return fmt::format("{}the server says \"{}\" (kQDAStatusTransferFailure)", astray, reason);
  }
  return astray +
         "the server refused it, or the connection broke (kQDAStatusTransferFailure); look whether "
         "the names are right, and whether the account may do it";
}

bool IsAstray(const std::string& log) { return log.find(kNotEntered) != std::string::npos; }

}  // namespace qda
