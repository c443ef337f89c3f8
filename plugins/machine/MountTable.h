// The text of /proc/self/mountinfo (proc(5)), and which file systems in it are local. Pure.

#ifndef PLUGINS_MACHINE_MOUNTTABLE_H
#define PLUGINS_MACHINE_MOUNTTABLE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace machine {

struct Mount {
  std::uint32_t id = 0;
  std::uint32_t parent = 0;
  std::uint32_t majorNumber = 0;
  std::uint32_t minorNumber = 0;
  std::string root;   // the folder of the file system that is mounted
  std::string point;  // where; bytes, without a NUL
  std::string options;
  std::string type;
  std::string source;
  std::string superOptions;
};

// One line without its line feed. Absent when it does not have the form of one, or when it
// names no absolute mount point.
std::optional<Mount> ParseMount(std::string_view line);

// `text` with each \ooo (three octal digits, up to 377) replaced by its byte; any other
// backslash stays. That is how the kernel writes blanks, tabs, line feeds and backslashes.
std::string WithoutOctalEscapes(std::string_view text);

// True when `options`, between commas, has the word `option`.
bool HasOption(std::string_view options, std::string_view option);

// A file system of this machine, mounted where it can be seen.
struct LocalMount {
  Mount mount;
  bool isReadOnly = false;
  // Asking it, and all that stands on the way to it, asks no network and no other process.
  bool mayBeAsked = false;
};

// The local file systems, in the order of the table. Local are those on a block device, and the
// types that keep their devices to themselves (btrfs, zfs and their like); not what a server or
// another process provides, and not what the kernel makes up. overlay counts when it says what
// it is written to. A file system that is mounted at several places counts once: at the first of
// those that show its root or, if none does, at the first.
//
// A mount that another one hides does not count; lines that are no mounts are passed over. Takes
// time in proportion to the length of the text.
std::vector<LocalMount> FindLocalMounts(std::string_view text);

}  // namespace machine

#endif
