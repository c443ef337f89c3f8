#include <tests/peers/FtpPeers.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <thread>

#include <gtest/gtest.h>

namespace ftp_peers {

namespace {

std::map<std::string, std::string> ReadFacts() {
  std::map<std::string, std::string> facts;
  const char* const path = std::getenv("QDACORE_FTP_PEERS");
  std::ifstream file(path ? path : "");
  EXPECT_TRUE(file) << "run this program through tests/peers/with_ftp_peers.py";
  for (std::string line; std::getline(file, line);) {
    const std::size_t at = line.find('=');
    facts[line.substr(0, at)] = line.substr(at + 1);
  }
  return facts;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0, end; (end = text.find('\n', begin)) != std::string::npos;
       begin = end + 1) {
    lines.push_back(text.substr(begin, end - begin));
  }
  return lines;
}

bool IsClientsOwn(const std::string& line) {
  const std::string verb = line.substr(0, line.find(' '));
  const char* const verbs[] = {"TYPE", "PASV", "EPSV", "PWD", "SIZE", "QUIT", "SYST", "FEAT"};
  return std::find(std::begin(verbs), std::end(verbs), verb) != std::end(verbs);
}

}  // namespace

std::string Fact(const std::string& key) {
  static const std::map<std::string, std::string> facts = ReadFacts();
  const auto found = facts.find(key);
  return found == facts.end() ? std::string() : found->second;
}

std::string At(const std::string& server, const std::string& portKey) {
  return Address(server) + ":" + Fact(server + portKey);
}

std::string Address(const std::string& server) { return Fact(server + "_address"); }

std::string Bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

std::string Stored(const std::string& path) { return Bytes(Fact("folder") + "/" + path); }

bool IsStored(const std::string& path) {
  return static_cast<bool>(std::ifstream(Fact("folder") + "/" + path));
}

void Store(const std::string& path, const std::string& bytes) {
  std::ofstream(Fact("folder") + "/" + path, std::ios::binary) << bytes;
}

Seen::Seen(const std::string& server)
    : fPath(Fact("folder") + "/" + server + ".seen"), fBegin(Bytes(fPath).size()) {}

std::vector<std::string> Seen::All(const std::string& last) const {
  for (int attempt = 0;; ++attempt) {
    const std::vector<std::string> lines = LinesOf(Bytes(fPath).substr(fBegin));
    if (last.empty() || attempt == 50 ||
        std::find(lines.begin(), lines.end(), last) != lines.end()) {
      return lines;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
}

std::vector<std::string> Seen::Main(const std::string& last) const {
  std::vector<std::string> lines = All(last);
  lines.erase(std::remove_if(lines.begin(), lines.end(), IsClientsOwn), lines.end());
  return lines;
}

}  // namespace ftp_peers
