#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <qdacore/host/HostServices.h>
#include <qdacore/host/posix/Errors.h>

namespace NZRVQDA20 {
namespace host {
namespace {

// The numbers that Windows' loader gives.
const unsigned long kModuleNotFound = 126;
const unsigned long kProcedureNotFound = 127;
const unsigned long kBadModule = 193;

bool HasElfMark(int descriptor) {
  char mark[4];
  return read(descriptor, mark, sizeof mark) == static_cast<ssize_t>(sizeof mark) &&
         memcmp(mark, "\177ELF", sizeof mark) == 0;
}

// dlopen says only in words why it failed; what the file itself tells comes first.
Outcome WhyNotLoaded(const std::string& path, const char* words) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) {
    const Outcome outcome = OutcomeOfErrno(errno);
    return outcome.situation == Situation::kDenied ? outcome
                                                   : Outcome{Situation::kNoFile, kModuleNotFound};
  }
  const bool isModule = HasElfMark(descriptor);
  close(descriptor);
  if (!isModule) {
    return {Situation::kOther, kBadModule};
  }
  const bool missesSymbol = words && strstr(words, "undefined symbol");
  // Otherwise a module that this one needs is missing.
  return {Situation::kOther, missesSymbol ? kProcedureNotFound : kModuleNotFound};
}

class PosixModules final : public Modules {
 public:
  std::size_t ProgramPath(char* buffer, std::size_t size) override {
    const ssize_t length = readlink("/proc/self/exe", buffer, size);
    return length < 0 ? 0 : static_cast<std::size_t>(length);
  }

  Outcome Load(const std::string& path, Module& module) override {
    // To dlopen an empty name is the program itself.
    if (path.empty()) {
      return {Situation::kNoFile, kModuleNotFound};
    }
    // A pipe would be waited for, for ever.
    struct stat facts;
    if (stat(path.c_str(), &facts) == 0 && !S_ISREG(facts.st_mode)) {
      return {Situation::kOther, kBadModule};
    }
    module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    return module ? Success() : WhyNotLoaded(path, dlerror());
  }

  Symbol Find(Module module, const std::string& name) override {
    return reinterpret_cast<Symbol>(dlsym(module, name.c_str()));
  }
};

}  // namespace

Modules& SystemModules() {
  static PosixModules modules;
  return modules;
}

}  // namespace host
}  // namespace NZRVQDA20
