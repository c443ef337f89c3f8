#include <qdacore/host/posix/FtpUrl.h>

namespace NZRVQDA20 {
namespace host {

namespace {

const char kAddressCharacters[] = "0123456789abcdefABCDEF:.";

bool IsNameCharacter(char character) {
  const unsigned char byte = static_cast<unsigned char>(character);
  return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
         (byte >= 'a' && byte <= 'z') || byte == '-' || byte == '.' || byte == '_' || byte >= 0x80;
}

bool IsName(const std::string& text) {
  for (const char character : text) {
    if (!IsNameCharacter(character)) {
      return false;
    }
  }
  return !text.empty();
}

}  // namespace

std::string FtpUrlOf(const std::string& server) {
  if (server.find(':') == std::string::npos) {
    return IsName(server) ? "ftp://" + server + "/" : std::string();
  }
  const std::size_t zone = server.find('%');
  const std::string address = server.substr(0, zone);
  if (address.find_first_not_of(kAddressCharacters) != std::string::npos) {
    return std::string();
  }
  if (zone == std::string::npos) {
    return "ftp://[" + address + "]/";
  }
  // RFC 6874: the mark of the zone is written as "%25".
  const std::string name = server.substr(zone + 1);
  return IsName(name) ? "ftp://[" + address + "%25" + name + "]/" : std::string();
}

}  // namespace host
}  // namespace NZRVQDA20
