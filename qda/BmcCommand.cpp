#include <qda/BmcCommand.h>

#include <memory>
#include <string>

#include <fmt/format.h>

#include <qda/BmcOutput.h>
#include <qda/BmcSession.h>
#include <qda/CommandOptions.h>
#include <qda/Progress.h>
#include <qda/Secret.h>
#include <qda/Text.h>

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

std::string CheckAddress(const std::string& text) {
  return IsDottedAddress(text)
             ? ""
             : "\"" + text + "\" is no IPv4 address such as 192.0.2.7; names are not resolved";
}

std::string CheckUser(const std::string& name) {
  return name.size() <= kLongestName ? ""
                                     : "is longer than 16 characters, the most that IPMI takes";
}

bool ReadPassword(const BmcOptions& options, std::string* password) {
  const std::string of = options.user.empty() ? "" : " of " + options.user;
  const SecretRequest request = {options.passwordFile, kPasswordVariable,
                                 fmt::format("Password{} at {}: ", of, options.address)};
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

BmcSession OpenSession(const BmcOptions& options, const std::string& password) {
  const Progress progress(
      fmt::format("waiting for the BMC at {}, 20 s at the most", options.address));
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
  AddPositional(app, {"ADDRESS", "The BMC's IPv4 address, such as 192.0.2.7", true, "(IPv4)"},
                &options->address, CheckAddress);
  // May be empty: all zeros in Get Session Challenge are the BMC's user without a name.
  AddOption(app,
            {"--user", "NAME", "The user's name at the BMC; \"\" is the\nuser without a name",
             "Login", true},
            &options->user, CheckUser);
  AddPasswordFile(app, kPasswordVariable, &options->passwordFile);
  AddFormat(app, run);
  return [options, run] { return RunBmc(*options, run->format); };
}

}  // namespace

const Command kBmcCommand = {"bmc", "Network", "Open a session with a BMC over the LAN",
                             DeclareBmc};

}  // namespace qda
