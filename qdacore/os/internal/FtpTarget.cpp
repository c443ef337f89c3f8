#include <qdacore/os/internal/FtpTarget.h>

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace NZRVQDA20 {

namespace {

// What stands before the first `mark`, which leaves `text` with it.
std::string CutBefore(std::string& text, std::size_t mark) {
  const std::string before = text.substr(0, mark);
  text.erase(0, mark + 1);
  return before;
}

// The number that a text begins with, as atoi reads it, kept to 16 bits. A number that no int
// holds is the largest or smallest int.
std::uint16_t PortOf(const std::string& text) {
  const long long number = std::strtoll(text.c_str(), nullptr, 10);
  const long long held = std::min<long long>(std::max<long long>(number, INT_MIN), INT_MAX);
  return static_cast<std::uint16_t>(held);
}

void CutCredentials(std::string& text, UploadTarget& parsed) {
  const std::size_t at = text.find('@');
  if (at == std::string::npos) {
    return;
  }
  parsed.password = CutBefore(text, at);
  const std::size_t colon = parsed.password.find(':');
  if (colon == std::string::npos) {
    parsed.user.swap(parsed.password);
  } else {
    parsed.user = CutBefore(parsed.password, colon);
  }
  parsed.hasCredentials = true;
}

void CutPath(std::string& text, UploadTarget& parsed) {
  const std::size_t slash = text.find('/');
  if (slash != std::string::npos) {
    parsed.path = text.substr(slash);
    text.erase(slash);
  }
}

// The port's text is cut off here, and never converted: an IPv6 address has port 21.
void CutIPv6Port(std::string& text, UploadTarget& parsed) {
  const std::size_t closing = text.find(']');
  if (closing == std::string::npos) {
    const std::size_t last = text.rfind(':');
    parsed.alternativeServer = text.substr(0, last);
    parsed.hasAlternative = true;
    parsed.portText = text.substr(last + 1);
    return;
  }
  if (text.compare(closing, 2, "]:") == 0) {
    parsed.portText = text.substr(closing + 2);
    text.erase(closing);
  } else {
    text.erase(closing, 1);
  }
  const std::size_t opening = text.find('[');
  if (opening != std::string::npos) {
    text.erase(opening, 1);
  }
}

void CutPort(std::string& text, UploadTarget& parsed) {
  const std::size_t colon = text.find(':');
  if (colon != std::string::npos) {
    parsed.portText = text.substr(colon + 1);
    text.erase(colon);
    parsed.port = PortOf(parsed.portText);
  }
}

}  // namespace

UploadTarget ParseUploadTarget(const std::string& target, const std::string& vendorServer) {
  UploadTarget parsed;
  parsed.server = target;
  if (target.find(vendorServer) != std::string::npos) {
    return parsed;
  }
  parsed.isCustom = true;
  std::string& text = parsed.server;
  CutCredentials(text, parsed);
  CutPath(text, parsed);
  if (std::count(text.begin(), text.end(), ':') >= 2) {
    CutIPv6Port(text, parsed);
  } else {
    CutPort(text, parsed);
  }
  return parsed;
}

DownloadTarget ParseDownloadTarget(const std::string& target) {
  DownloadTarget parsed;
  parsed.server = target;
  const std::size_t colon = target.find(':');
  if (colon == std::string::npos) {
    return parsed;
  }
  parsed.user = CutBefore(parsed.server, colon);
  const std::size_t at = parsed.server.find('@');
  if (at != std::string::npos) {
    parsed.password = CutBefore(parsed.server, at);
    parsed.hasCredentials = true;
  }
  return parsed;
}

bool HoldsLineEnd(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](char character) {
    return character == '\r' || character == '\n' || character == '\0';
  });
}

}  // namespace NZRVQDA20
