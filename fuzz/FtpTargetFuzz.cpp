#include "FtpTargetFuzz.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <qdacore/os/internal/FtpTarget.h>

namespace {

using namespace NZRVQDA20;

const char kVendor[] = "upload.zrv.example";

void Require(bool holds, const char* promise) {
  if (!holds) {
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
  }
}

bool Holds(const std::string& text, char character) {
  return text.find(character) != std::string::npos;
}

std::size_t Colons(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), ':'));
}

// The target of `parsed` put together again from its parts, but for an IPv6 address in brackets,
// whose brackets are gone. `hasColon`: the account, or the port, had one in front of an empty text.
std::string Together(const UploadTarget& parsed, bool passwordHasColon, bool portHasColon) {
  std::string text;
  if (parsed.hasCredentials) {
    text = parsed.user + (passwordHasColon ? ":" + parsed.password : "") + "@";
  }
  text += parsed.server;
  if (portHasColon) {
    text += ":" + parsed.portText;
  }
  return text + parsed.path;
}

void CheckCredentials(const std::string& target, const UploadTarget& parsed) {
  Require(parsed.hasCredentials == Holds(target, '@'), "an at sign is what makes an account");
  Require(parsed.hasCredentials || (parsed.user.empty() && parsed.password.empty()),
          "no account, no user and no password");
  Require(!Holds(parsed.user, ':') && !Holds(parsed.user, '@') && !Holds(parsed.password, '@'),
          "the first marks divide the account");
}

void CheckHost(const std::string& target, const UploadTarget& parsed) {
  const std::string before = target.substr(0, target.find('@'));
  const std::string behind = parsed.hasCredentials ? target.substr(target.find('@') + 1) : target;
  const std::string host = behind.substr(0, behind.find('/'));
  Require(parsed.path == behind.substr(host.size()), "the first slash begins the path");
  const bool passwordHasColon = parsed.hasCredentials && Holds(before, ':');
  const bool isAddress = Colons(host) >= 2;
  if (!isAddress) {
    Require(!Holds(parsed.server, ':') && !parsed.hasAlternative, "a name holds no colon");
    Require(Together(parsed, passwordHasColon, Holds(host, ':')) == target,
            "a target is the sum of its parts");
    return;
  }
  Require(parsed.port == 21, "the port of an IPv6 address is 21");
  Require(parsed.hasAlternative == !Holds(host, ']'), "without a bracket there are two servers");
  if (parsed.hasAlternative) {
    Require(parsed.server == host, "the first server is the whole address");
    Require(
        parsed.alternativeServer + ":" + parsed.portText == host && !Holds(parsed.portText, ':'),
        "the second is the address less its last group");
    return;
  }
  Require(parsed.server.size() + parsed.portText.size() < host.size(), "the bracket is gone");
}

void CheckUpload(const std::string& target) {
  const UploadTarget parsed = ParseUploadTarget(target, kVendor);
  Require(parsed.isCustom == (target.find(kVendor) == std::string::npos),
          "the vendor's name is looked for everywhere");
  if (!parsed.isCustom) {
    Require(parsed.server == target && parsed.port == 21 && !parsed.hasCredentials &&
                !parsed.hasAlternative && (parsed.path + parsed.portText).empty(),
            "the vendor's target is not taken apart");
    return;
  }
  Require(parsed.hasAlternative || parsed.alternativeServer.empty(), "no second server, no name");
  CheckCredentials(target, parsed);
  CheckHost(target, parsed);
}

void CheckDownload(const std::string& target) {
  const DownloadTarget parsed = ParseDownloadTarget(target);
  const std::size_t colon = target.find(':');
  std::string together = parsed.server;
  if (parsed.hasCredentials) {
    Require(!Holds(parsed.password, '@'), "the first at sign ends the password");
    together = parsed.password + "@" + together;
  } else {
    Require(parsed.password.empty(), "no at sign behind the colon, no password");
    Require(colon == std::string::npos || !Holds(parsed.server, '@'),
            "an at sign behind the colon makes an account");
  }
  if (colon != std::string::npos) {
    Require(!Holds(parsed.user, ':'), "the first colon ends the user's name");
    together = parsed.user + ":" + together;
  } else {
    Require(parsed.user.empty(), "no colon, no user");
  }
  Require(together == target, "a download's target is the sum of its parts");
}

}  // namespace

void fuzz_ftp_target::FuzzOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string target(reinterpret_cast<const char*>(data), size);
  CheckUpload(target);
  CheckDownload(target);
  Require(
      HoldsLineEnd(target) == (target.find_first_of(std::string("\r\n\0", 3)) != std::string::npos),
      "line ends and NULs are seen");
}

// Here for libFuzzer only: the tests that link this file have another harness beside it.
#if defined(FUZZ_WITH_LIBFUZZER)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz_ftp_target::FuzzOneInput(data, size);
  return 0;
}
#endif
