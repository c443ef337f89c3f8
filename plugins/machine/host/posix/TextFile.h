// Small files and links of the file system, read whole.

#ifndef PLUGINS_MACHINE_HOST_POSIX_TEXTFILE_H
#define PLUGINS_MACHINE_HOST_POSIX_TEXTFILE_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace machine {
namespace host {

// Closed with the scope.
class Descriptor {
 public:
  explicit Descriptor(int number) : fNumber(number) {}
  ~Descriptor();
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Get() const { return fNumber; }

 private:
  const int fNumber;
};

// The bytes of the ordinary file at `path`; absent when it is not there, is anything else (a
// pipe in its place does not hold us up), may not be read, or has more than `mostBytes`.
std::optional<std::string> ReadFileText(const std::string& path, std::size_t mostBytes);

// What the link at `path` says; absent when there is none, or when it is longer than PATH_MAX.
std::optional<std::string> ReadLinkText(const std::string& path);

// The names in the folder at `path`, sorted, without those that begin with a dot; none when it
// cannot be read.
std::vector<std::string> NamesIn(const std::string& path);

// Of these the ones that a device of their own is behind, as sysfs shows it.
std::vector<std::string> NamesOfDevicesIn(const std::string& path);

// The text of a file of sysfs, which has a page at the most.
std::optional<std::string> ReadSysText(const std::string& folder, const char* file);

bool IsThere(const std::string& path);

}  // namespace host
}  // namespace machine

#endif
