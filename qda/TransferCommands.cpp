#include <qda/TransferCommands.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>

#include <fmt/format.h>

#include <qda/CommandOptions.h>
#include <qda/Json.h>
#include <qda/Progress.h>
#include <qda/RunLog.h>
#include <qda/Secret.h>
#include <qda/Text.h>
#include <qda/TransferFailure.h>
#include <qda/TransferTarget.h>
#include <qda/host/Paths.h>
#include <qdacore/os/TOSSpecific.h>

namespace qda {

using NZRVQDA20::ILogger;
using NZRVQDA20::TOSSpecific;

namespace {

const char kPasswordVariable[] = "QDA_FTP_PASSWORD";

struct TransferOptions {
  std::string server;
  std::string localFile;
  std::string remoteFile;
  std::string user;
  std::string passwordFile;
};

struct HostOptions {
  std::string name;
  std::string service = "ftp";
};

int Refuse(const std::string& message) {
  Complain(message);
  return kExitFailed;
}

int RefuseUsage(const std::string& message) {
  Complain(message + "; see \"qda --help\"");
  return kExitWrongUsage;
}

bool PrintTransfer(Format format, const TransferOptions& options, std::uintmax_t bytes) {
  if (format == Format::kTable) {
    return PrintResult(Columns({{"Server", options.server},
                                {"Remote file", options.remoteFile},
                                {"Local file", options.localFile},
                                {"Bytes", std::to_string(bytes)}}));
  }
  nlohmann::ordered_json json;
  json["server"] = options.server;
  json["remoteFile"] = options.remoteFile;
  json["localFile"] = options.localFile;
  json["bytes"] = bytes;
  return PrintResult(JsonText(json));
}

std::uintmax_t SizeOf(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(host::ToPath(path), error);
  return error ? 0 : size;
}

// Stored in `*target`; the exit code when there is none.
int AskForTarget(const TransferOptions& options, std::string* target) {
  std::string password;
  if (!options.user.empty()) {
    SecretRequest request;
    request.file = options.passwordFile;
    request.variable = kPasswordVariable;
    request.prompt =
        fmt::format("Password of {} at {}: ", Printable(options.user), Printable(options.server));
    if (!ReadSecret(request, &password)) {
      return kExitFailed;
    }
    const std::string whyNot = WhyNoTargetPassword(password);
    if (!whyNot.empty()) {
      return Refuse(
          fmt::format("password of \"{}\": {} (kQDAStatusInvalidFormat)", options.user, whyNot));
    }
  }
  *target = UploadTargetText(options.server, options.user, password);
  return kExitDone;
}

int RunPut(TransferOptions options, Format format) {
  const std::string whyNot = WhyNoUploadTarget(options.server, options.user);
  if (!whyNot.empty()) {
    return RefuseUsage(fmt::format("server \"{}\": {}", options.server, whyNot));
  }
  if (!options.passwordFile.empty() && options.user.empty()) {
    return RefuseUsage("--password-file needs --user");
  }
  if (options.remoteFile.empty()) {
    options.remoteFile = LastPartOf(options.localFile);
  }
  std::error_code error;
  // Asked here for a clear word; the transfer itself opens it anew.
  if (!std::filesystem::is_regular_file(host::ToPath(options.localFile), error) ||
      !std::ifstream(options.localFile, std::ios::binary)) {
    return Refuse(
        fmt::format("file \"{}\": it is not there, is no file or may not be read "
                    "(kQDAStatusFileNotFound)",
                    options.localFile));
  }
  std::string target;
  const int exitCode = AskForTarget(options, &target);
  if (exitCode != kExitDone) {
    return exitCode;
  }
  const std::uintmax_t size = SizeOf(options.localFile);
  RunLog::TakeKept(ILogger::kLogError);
  bool isDone = false;
  {
    const Progress progress(fmt::format("sending {} ({}) to {}", options.localFile,
                                        RoundedSizeText(size), options.server));
    isDone = TOSSpecific::FTPFile(target, options.localFile, options.remoteFile);
  }
  const std::string log = RunLog::TakeKept(ILogger::kLogError);
  if (!isDone) {
    return Refuse(fmt::format("upload of \"{}\" to \"{}\": {}", options.localFile, options.server,
                              TransferFailure(log)));
  }
  const bool isPrinted = PrintTransfer(format, options, size);
  if (IsAstray(log)) {
    return Refuse(
        fmt::format("upload of \"{}\" to \"{}\": the server does not let us into the "
                    "directory (kQDAStatusNotFound); the file is where the login leads, "
                    "as \"{}\"",
                    options.localFile, options.server, options.remoteFile));
  }
  return isPrinted ? kExitDone : kExitFailed;
}

int RunFetch(TransferOptions options, Format format) {
  const std::string whyNot = WhyNoDownloadTarget(options.server);
  if (!whyNot.empty()) {
    return RefuseUsage(fmt::format("server \"{}\": {}", options.server, whyNot));
  }
  if (options.localFile.empty()) {
    options.localFile = LastPartOf(options.remoteFile);
  }
  std::error_code error;
  if (std::filesystem::exists(
          std::filesystem::symlink_status(host::ToPath(options.localFile), error))) {
    return Refuse(
        fmt::format("file \"{}\": it is there already (kQDAStatusAlreadyExists), and is "
                    "left alone; name another one",
                    options.localFile));
  }
  RunLog::TakeKept(ILogger::kLogError);
  bool isDone = false;
  {
    const Progress progress(fmt::format("fetching {} from {}", options.remoteFile, options.server),
                            options.localFile);
    isDone = TOSSpecific::FTPFileFromZRV(options.server, options.localFile, options.remoteFile);
  }
  if (!isDone) {
    return Refuse(fmt::format("download of \"{}\" from \"{}\" into \"{}\": {}", options.remoteFile,
                              options.server, options.localFile,
                              TransferFailure(RunLog::TakeKept(ILogger::kLogError))));
  }
  return PrintTransfer(format, options, SizeOf(options.localFile)) ? kExitDone : kExitFailed;
}

int RunHost(const HostOptions& options, Format format) {
  const int code = TOSSpecific::DetectHostnameAvailable(options.name, options.service);
  bool isPrinted = false;
  if (format == Format::kTable) {
    isPrinted = PrintResult(Columns({{"Host", options.name},
                                     {"Service", options.service},
                                     {"Resolves", code == 0 ? "yes" : "no"},
                                     {"Code", std::to_string(code)}}));
  } else {
    nlohmann::ordered_json json;
    json["host"] = options.name;
    json["service"] = options.service;
    json["resolves"] = code == 0;
    json["code"] = code;
    isPrinted = PrintResult(JsonText(json));
  }
  if (code != 0) {
    return Refuse(
        fmt::format("host \"{}\": it has no IPv4 address that the resolver knows, or "
                    "service \"{}\" is unknown (kQDAStatusNotFound); the resolver's code "
                    "is {}",
                    options.name, options.service, code));
  }
  return isPrinted ? kExitDone : kExitFailed;
}

std::function<int()> DeclarePut(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<TransferOptions>();
  AddPositional(app, {"FILE", "The file to send", true}, &options->localFile);
  AddPositional(
      app,
      {"SERVER", "HOST, HOST:PORT (with --user) or an IPv6\naddress; \"/DIRECTORY\" may follow",
       true},
      &options->server);
  AddOption(app, {"--as", "NAME", "Store it under NAME, not under its own", "Transfer"},
            &options->remoteFile);
  AddOption(app, {"--user", "NAME", "Log in as NAME; without it, anonymously", "Login"},
            &options->user);
  AddPasswordFile(app, kPasswordVariable, &options->passwordFile);
  AddFormat(app, run);
  return [options, run] { return RunPut(*options, run->format); };
}

std::function<int()> DeclareFetch(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<TransferOptions>();
  AddPositional(app, {"SERVER", "A host name or an IPv4 address", true}, &options->server);
  AddPositional(app, {"NAME", "The file on the server", true}, &options->remoteFile);
  AddPositional(app, {"FILE", "Where it goes; without it, under its own\nname", false},
                &options->localFile);
  AddFormat(app, run);
  return [options, run] { return RunFetch(*options, run->format); };
}

std::function<int()> DeclareHost(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<HostOptions>();
  AddPositional(app, {"NAME", "The host's name", true}, &options->name);
  AddPositional(app, {"SERVICE", "A service's name or port; \"ftp\" when not\ngiven", false},
                &options->service);
  AddFormat(app, run);
  return [options, run] { return RunHost(*options, run->format); };
}

}  // namespace

const Command kPutCommand = {"put", "Network", "Send a file to an FTP server", DeclarePut};
const Command kFetchCommand = {"fetch", "Network", "Fetch a text file from an FTP server",
                               DeclareFetch};
const Command kHostCommand = {"host", "Network", "Tell whether a host's name resolves",
                              DeclareHost};

}  // namespace qda
