#include <qda/BmcCommand.h>

#include <cstdio>
#include <memory>
#include <string>

#include <fmt/format.h>

#include <qda/BmcOutput.h>
#include <qda/BmcSession.h>
#include <qda/CommandOptions.h>
#include <qda/Secret.h>
#include <qda/Text.h>
#include <qda/host/Terminal.h>

namespace qda {

namespace {

const char kPasswordVariable[] = "QDA_BMC_PASSWORD";
// What IPMI 1.5 carries of a user name and of a password. The client would cut the rest off.
const std::size_t kLongestName = 16;

struct BmcOptions {
  std::string address;
  std::string user;
  std::string passwordFile;
};

// Four numbers up to 255, without zeros in front: with them a number is octal to some.
bool IsDottedAddress(const std::string& text) {
  std::size_t at = 0;
  for (int part = 0; part < 4; ++part) {
    if (part > 0 && (at >= text.size() || text[at++] != '.')) {
      return false;
    }
    const std::size_t begin = at;
    int value = 0;
    while (at < text.size() && at < begin + 3 && text[at] >= '0' && text[at] <= '9') {
      value = value * 10 + (text[at++] - '0');
    }
    if (at == begin || value > 255 || (text[begin] == '0' && at > begin + 1)) {
      return false;
    }
  }
  return at == text.size();
}

CLI::Validator DottedAddress() {
  return CLI::Validator(
      [](std::string& value) {
        return IsDottedAddress(value)
                   ? std::string()
                   : "\"" + value +
                         "\" is no IPv4 address such as 192.0.2.7; names are not resolved";
      },
      "");
}

CLI::Validator ShortName() {
  return CLI::Validator(
      [](std::string& value) {
        return value.size() <= kLongestName
                   ? std::string()
                   : std::string("is longer than 16 characters, the most that IPMI takes");
      },
      "");
}

bool ReadPassword(const BmcOptions& options, std::string* password) {
  const SecretRequest request = {
      options.passwordFile, kPasswordVariable,
      fmt::format("Password of {} at {}: ", options.user, options.address)};
  if (!ReadSecret(request, password)) {
    return false;
  }
  if (password->size() > kLongestName) {
    Complain(
        "password: it is longer than 16 characters, the most that IPMI 1.5 takes "
        "(kQDAStatusInvalidFormat)");
    return false;
  }
  return true;
}

// Says on standard error what is waited for, as long as a terminal watches there, and wipes it at
// the end.
class WaitingLine {
 public:
  explicit WaitingLine(const std::string& what) {
    if (host::ErrorIsWatched()) {
      fText = "qda: " + what;
      std::fputs(fText.c_str(), stderr);
      std::fflush(stderr);
    }
  }
  ~WaitingLine() {
    if (!fText.empty()) {
      const std::string blanks(fText.size(), ' ');
      std::fputs(("\r" + blanks + "\r").c_str(), stderr);
      std::fflush(stderr);
    }
  }
  WaitingLine(const WaitingLine&) = delete;
  WaitingLine& operator=(const WaitingLine&) = delete;

 private:
  std::string fText;
};

BmcSession OpenSession(const BmcOptions& options, const std::string& password) {
  const WaitingLine waiting("waiting for the BMC at " + options.address +
                            ", 20 seconds at the most");
  return OpenBmcSession(options.address, options.user, password);
}

int RunBmc(const BmcOptions& options, Format format) {
  std::string password;
  if (!ReadPassword(options, &password)) {
    return kExitFailed;
  }
  const BmcSession session = OpenSession(options, password);
  const std::string complaint = BmcComplaint(options.address, session);
  if (!complaint.empty()) {
    Complain(complaint);
  }
  if (session.socketError != 0) {
    return kExitFailed;
  }
  const bool isPrinted =
      PrintResult(format == Format::kJson ? BmcJson(options.address, options.user, session)
                                          : BmcTable(options.address, options.user, session));
  return complaint.empty() && isPrinted ? kExitDone : kExitFailed;
}

std::function<int()> DeclareBmc(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<BmcOptions>();
  app->add_option("ADDRESS", options->address, "The BMC's IPv4 address, such as 192.0.2.7")
      ->option_text("(IPv4)")
      ->required()
      ->check(DottedAddress());
  app->add_option("--user", options->user, "The user's name at the BMC")
      ->option_text("NAME")
      ->required()
      ->check(ShortName())
      ->group("Login");
  AddPasswordFile(app, kPasswordVariable, &options->passwordFile);
  AddFormat(app, run);
  return [options, run] { return RunBmc(*options, run->format); };
}

}  // namespace

const Command kBmcCommand = {"bmc", "Network", "Open a session with a BMC over the LAN",
                             DeclareBmc};

}  // namespace qda
