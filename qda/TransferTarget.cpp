#include <qda/TransferTarget.h>

#include <algorithm>

#include <fmt/format.h>

namespace qda {

namespace {

// The vendor's upload server, to which a target is not taken apart: a password would become a part
// of the server's name.
const char kVendorServer[] = QDACORE_UPLOAD_SERVER;

std::string HostAndPort(const std::string& server) { return server.substr(0, server.find('/')); }

std::string PathOf(const std::string& server) { return server.substr(HostAndPort(server).size()); }

bool IsAddress6(const std::string& hostAndPort) {
  return std::count(hostAndPort.begin(), hostAndPort.end(), ':') >= 2;
}

std::string WhyNoVendorTarget(const std::string& server, const std::string& user) {
  if (server != kVendorServer) {
    return fmt::format("\"{}\" is reached by its name alone, with no port or path", kVendorServer);
  }
  return user.empty() ? std::string()
                      : fmt::format("\"{}\" takes no account; leave --user out", kVendorServer);
}

}  // namespace

std::string WhyNoUploadTarget(const std::string& server, const std::string& user) {
  if (server.find('@') != std::string::npos) {
    return "an account does not stand in front of the server; give its name with --user, and its "
           "password in a file, in the environment or at the prompt";
  }
  if (user.find_first_of(":@") != std::string::npos) {
    return "a user name cannot hold \":\" or \"@\"";
  }
  if ((server + user).find(kVendorServer) != std::string::npos) {
    return WhyNoVendorTarget(server, user);
  }
  const std::string host = HostAndPort(server);
  if (host.empty()) {
    return "it names no server";
  }
  if (IsAddress6(host)) {
    return host.find("]:") == std::string::npos
               ? std::string()
               : "an IPv6 address is always reached at port 21; leave the port out";
  }
  if (host.find(':') != std::string::npos && user.empty()) {
    return "a port counts only with an account; leave it out, or give --user";
  }
  return std::string();
}

std::string WhyNoTargetPassword(const std::string& password) {
  return password.find('@') == std::string::npos
             ? std::string()
             : "it holds \"@\", which would end it there; the account needs another password";
}

std::string UploadTargetText(const std::string& server, const std::string& user,
                             const std::string& password) {
  std::string host = HostAndPort(server);
  if (IsAddress6(host) && host.find(']') == std::string::npos) {
    host = "[" + host + "]";
  }
  const std::string account = user.empty() ? std::string() : user + ":" + password + "@";
  return account + host + PathOf(server);
}

std::string WhyNoDownloadTarget(const std::string& server) {
  if (server.find('@') != std::string::npos) {
    return "downloads are always anonymous; leave the account out";
  }
  if (server.find_first_of(":[]") != std::string::npos) {
    return "downloads are always from port 21 of a host name or an IPv4 address; leave the port "
           "out";
  }
  if (server.empty() || server.find('/') != std::string::npos) {
    return "it is no host name and no IPv4 address";
  }
  return std::string();
}

std::string LastPartOf(const std::string& path) {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

}  // namespace qda
