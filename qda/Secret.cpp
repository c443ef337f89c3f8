#include <qda/Secret.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <system_error>

#include <fmt/format.h>

#include <qda/Text.h>
#include <qda/host/Terminal.h>

namespace qda {

namespace {

// A longer file is no password.
const std::size_t kLongestSecret = 1024;

struct CloseFile {
  void operator()(std::FILE* file) const {
    if (file != stdin) {
      std::fclose(file);
    }
  }
};
typedef std::unique_ptr<std::FILE, CloseFile> FileHolder;

bool Refuse(const std::string& file, const std::string& reason, const char* status) {
  const std::string shown = file == "-" ? "on standard input" : fmt::format("file \"{}\"", file);
  Complain(fmt::format("password {}: {} ({})", shown, reason, status));
  return false;
}

bool RefuseUnread(const std::string& file, int error) {
  const char* const status = error == ENOENT   ? "kQDAStatusFileNotFound"
                             : error == EACCES ? "kQDAStatusAccessDenied"
                                               : "kQDAStatusFileSystemError";
  return Refuse(file, "it cannot be read: " + std::generic_category().message(error), status);
}

bool CutLine(const std::string& file, std::string text, std::string* secret) {
  if (!text.empty() && text.back() == '\n') {
    text.pop_back();
    if (!text.empty() && text.back() == '\r') {
      text.pop_back();
    }
  }
  if (text.size() > kLongestSecret) {
    return Refuse(file, fmt::format("it is longer than {} characters", kLongestSecret),
                  "kQDAStatusInvalidFormat");
  }
  // Taking the first of several lines would hide that it is the wrong file.
  if (text.find_first_of(std::string("\r\n\0", 3)) != std::string::npos) {
    return Refuse(file, "it must hold one line of text, the password", "kQDAStatusInvalidFormat");
  }
  *secret = text;
  return true;
}

bool ReadFile(const std::string& file, std::string* secret) {
  const FileHolder holder(file == "-" ? stdin : std::fopen(file.c_str(), "rb"));
  if (!holder) {
    return RefuseUnread(file, errno);
  }
  // The line end is not counted, and one character more shows that the file is longer.
  std::string text(kLongestSecret + 3, '\0');
  text.resize(std::fread(&text[0], 1, text.size(), holder.get()));
  if (std::ferror(holder.get())) {
    return RefuseUnread(file, errno);
  }
  return CutLine(file, text, secret);
}

bool AskTerminal(const SecretRequest& request, std::string* secret) {
  switch (host::AskHidden(Printable(request.prompt), kLongestSecret, secret)) {
    case host::Answer::kGiven:
      return true;
    case host::Answer::kNone:
      Complain("password: none was entered (kQDAStatusNotFound)");
      return false;
    case host::Answer::kTooLong:
      Complain(fmt::format("password: it is longer than {} characters (kQDAStatusInvalidFormat)",
                           kLongestSecret));
      return false;
    case host::Answer::kNoTerminal:
      break;
  }
  Complain(
      fmt::format("password: none is given, and there is no terminal to ask at "
                  "(kQDAStatusNotFound); use --password-file FILE, or set the environment "
                  "variable {}",
                  request.variable));
  return false;
}

}  // namespace

bool ReadSecret(const SecretRequest& request, std::string* secret) {
  if (!request.file.empty()) {
    return ReadFile(request.file, secret);
  }
  if (const char* const value = std::getenv(request.variable.c_str())) {
    *secret = value;
    return true;
  }
  return AskTerminal(request, secret);
}

}  // namespace qda
