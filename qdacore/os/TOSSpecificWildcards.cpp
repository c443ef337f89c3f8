// What a Unix shell does for its programs, for a program's own arguments.

#include <cstdlib>
#include <cstring>
#include <new>

#include <qdacore/host/Files.h>
#include <qdacore/host/Paths.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>

namespace NZRVQDA20 {

namespace {

// Up to and including the last separator; empty when there is none. On a host whose separator is
// the backslash a slash is none here, though the host takes it for one, and this is meant: what
// stands before it is then missing from the matches.
std::string DirectoryPart(const std::string& argument) {
  std::size_t end = argument.size();
  while (end > 0 && !IsSeparator(argument[end - 1])) {
    --end;
  }
  return argument.substr(0, end);
}

// False when nothing matches, or the search cannot be opened for any other reason.
bool AppendMatches(const std::string& argument, std::vector<std::string>& arguments) {
  const std::string asGiven = DirectoryPart(argument);
  const std::string prefix = ToHostPath(asGiven);
  host::Files::Search search = nullptr;
  host::FoundEntry entry;
  if (!host::HostFiles()
           .FindFirstPath(prefix + argument.substr(asGiven.size()), search, entry)
           .Done()) {
    return false;
  }
  do {
    arguments.push_back(std::string(prefix).append(entry.name));
  } while (host::HostFiles().FindNext(search, entry).Done());
  // The search stays open, which is meant.
  return true;
}

// A vector of C strings from malloc, released again unless it is taken.
class CStrings {
 public:
  explicit CStrings(std::size_t count)
      : fStrings(static_cast<char**>(std::calloc(count > 0 ? count : 1, sizeof(char*)))) {
    if (!fStrings) {
      throw std::bad_alloc();
    }
  }
  ~CStrings() {
    for (std::size_t at = 0; at < fCount; ++at) {
      std::free(fStrings[at]);
    }
    std::free(fStrings);
  }
  CStrings(const CStrings&) = delete;
  CStrings& operator=(const CStrings&) = delete;

  void Append(const std::string& text) {
    char* copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (!copy) {
      throw std::bad_alloc();
    }
    std::memcpy(copy, text.c_str(), text.size() + 1);
    fStrings[fCount++] = copy;
  }

  char** Take() {
    char** const strings = fStrings;
    fStrings = nullptr;
    fCount = 0;
    return strings;
  }

 private:
  char** fStrings;
  std::size_t fCount = 0;
};

}  // namespace

void TOSSpecific::ExpandCommandLineWildcards(int argc, char** const argv, int* newArgc,
                                             char*** const newArgv) {
  std::vector<std::string> arguments;
  for (int at = 0; at < argc; ++at) {
    const std::string argument = argv[at];
    // A "?" alone is no reason to search.
    if (argument.find('*') == std::string::npos || !AppendMatches(argument, arguments)) {
      arguments.push_back(argument);
    }
  }
  CStrings strings(arguments.size());
  for (const std::string& argument : arguments) {
    strings.Append(argument);
  }
  *newArgc = static_cast<int>(arguments.size());
  *newArgv = strings.Take();
}

}  // namespace NZRVQDA20
