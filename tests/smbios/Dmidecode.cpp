#include "Dmidecode.h"

#include <cstdio>

namespace smbios_test {

#if defined(_WIN32)

std::string NoDmidecodeReason() { return "dmidecode is a program of POSIX systems"; }
std::vector<std::string> Dmidecode(const std::filesystem::path&, const std::string&) { return {}; }

#else

namespace {

std::vector<std::string> LinesOf(const std::string& command) {
  std::vector<std::string> lines;
  // Where it is installed is not on everybody's path.
  std::FILE* const pipe = popen(("PATH=$PATH:/usr/sbin:/sbin; " + command).c_str(), "r");
  if (pipe == nullptr) {
    return lines;
  }
  std::string line;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) {
    if (c == '\n') {
      lines.push_back(line);
      line.clear();
    } else {
      line.push_back(static_cast<char>(c));
    }
  }
  pclose(pipe);
  return lines;
}

}  // namespace

std::string NoDmidecodeReason() {
  if (LinesOf("dmidecode --version 2>/dev/null").empty()) {
    return "no dmidecode on this machine";
  }
  return "";
}

std::vector<std::string> Dmidecode(const std::filesystem::path& dump,
                                   const std::string& arguments) {
  return LinesOf("dmidecode --from-dump '" + dump.string() + "' " + arguments + " 2>/dev/null");
}

#endif

}  // namespace smbios_test
