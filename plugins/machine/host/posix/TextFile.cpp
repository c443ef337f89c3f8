#include <plugins/machine/host/posix/TextFile.h>

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace machine {
namespace host {

Descriptor::~Descriptor() {
  if (fNumber >= 0) {
    close(fNumber);
  }
}

std::optional<std::string> ReadFileText(const std::string& path, std::size_t mostBytes) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat facts;
  if (file.Get() < 0 || fstat(file.Get(), &facts) != 0 || !S_ISREG(facts.st_mode)) {
    return std::nullopt;
  }
  // The size is not asked for: files of /proc have none.
  std::string text;
  char block[4096];
  for (;;) {
    const ssize_t count = read(file.Get(), block, sizeof block);
    if (count == 0) {
      return text;
    }
    // Drivers that make the text of a file of sysfs may be interrupted.
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count < 0 || text.size() + static_cast<std::size_t>(count) > mostBytes) {
      return std::nullopt;
    }
    text.append(block, static_cast<std::size_t>(count));
  }
}

std::optional<std::string> ReadLinkText(const std::string& path) {
  char target[PATH_MAX];
  const ssize_t count = readlink(path.c_str(), target, sizeof target);
  if (count < 0 || static_cast<std::size_t>(count) == sizeof target) {
    return std::nullopt;
  }
  return std::string(target, static_cast<std::size_t>(count));
}

std::vector<std::string> NamesIn(const std::string& path) {
  std::vector<std::string> names;
  DIR* const folder = opendir(path.c_str());
  if (folder == nullptr) {
    return names;
  }
  try {
    while (const struct dirent* entry = readdir(folder)) {
      if (entry->d_name[0] != '.') {
        names.push_back(entry->d_name);
      }
    }
  } catch (...) {
    closedir(folder);
    throw;
  }
  closedir(folder);
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> NamesOfDevicesIn(const std::string& path) {
  std::vector<std::string> names = NamesIn(path);
  names.erase(std::remove_if(names.begin(), names.end(),
                             [&path](const std::string& name) {
                               return !IsThere(path + "/" + name + "/device");
                             }),
              names.end());
  return names;
}

std::optional<std::string> ReadSysText(const std::string& folder, const char* file) {
  return ReadFileText(folder + "/" + file, 4096);
}

bool IsThere(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

}  // namespace host
}  // namespace machine
