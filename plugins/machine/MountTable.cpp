#include <plugins/machine/MountTable.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <unordered_map>
#include <utility>

#include <plugins/machine/HostText.h>

namespace machine {

namespace {

// File systems of local devices that have no block device of their own to show for it.
const char* const kOwnDevices[] = {"bcachefs", "btrfs", "ubifs", "zfs"};

// Block devices whose file systems other machines or a process may hold up: FUSE on a block
// device, and cluster file systems.
const char* const kNotLocalOnDevices[] = {"fuseblk", "gfs2", "ocfs2"};

// Kernel-made or in memory: there is nobody to wait for on the way through them.
const char* const kHarmless[] = {"bpf",     "cgroup",     "cgroup2",   "configfs", "debugfs",
                                 "devpts",  "devtmpfs",   "efivarfs",  "fusectl",  "hugetlbfs",
                                 "mqueue",  "nsfs",       "proc",      "pstore",   "ramfs",
                                 "rootfs",  "securityfs", "selinuxfs", "sysfs",    "tmpfs",
                                 "tracefs", "binfmt_misc"};

template <std::size_t N>
bool IsOneOf(const char* const (&names)[N], std::string_view name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool IsLocal(const Mount& mount) {
  if (mount.majorNumber != 0) {
    return !IsOneOf(kNotLocalOnDevices, mount.type);
  }
  // What an overlay without a writable side lies on is not told.
  return IsOneOf(kOwnDevices, mount.type) ||
         (mount.type == "overlay" && mount.superOptions.find("upperdir=") != std::string::npos);
}

bool IsHarmless(const Mount& mount) { return IsLocal(mount) || IsOneOf(kHarmless, mount.type); }

std::optional<std::uint32_t> NumberIn(std::string_view text) {
  const std::optional<std::uint64_t> number = DecimalIn(text, UINT32_MAX);
  return number ? std::optional<std::uint32_t>(static_cast<std::uint32_t>(*number)) : std::nullopt;
}

bool ParseDevice(std::string_view text, Mount* mount) {
  const std::vector<std::string_view> parts = Split(text, ':');
  const std::optional<std::uint32_t> majorNumber = NumberIn(parts[0]);
  const std::optional<std::uint32_t> minorNumber =
      parts.size() == 2 ? NumberIn(parts[1]) : std::nullopt;
  if (!majorNumber || !minorNumber) {
    return false;
  }
  mount->majorNumber = *majorNumber;
  mount->minorNumber = *minorNumber;
  return true;
}

bool IsOctal(char character) { return character >= '0' && character <= '7'; }

// The mounts by what the kernel finds them by: the mount that they are in, and the path.
class Tree {
 public:
  explicit Tree(const std::vector<Mount>& mounts) : fMounts(mounts) {
    for (std::size_t at = 0; at < mounts.size(); ++at) {
      fById[mounts[at].id] = at;
      // The last of two at one place lies on top.
      fByPlace[Place(mounts[at].parent, mounts[at].point)] = at;
    }
  }

  // Whether a walk to the mount's point ends in it, and whether all mounts on the way are
  // harmless to walk through.
  bool IsReached(const Mount& mount, bool* isHarmless) const {
    std::uint32_t current = Outermost(mount);
    *isHarmless = true;
    for (std::size_t end = 1; end <= mount.point.size(); ++end) {
      if (end > 1 && end < mount.point.size() && mount.point[end] != '/') {
        continue;
      }
      Enter(mount.point.substr(0, end), &current, isHarmless);
    }
    return current == mount.id;
  }

 private:
  typedef std::pair<std::uint32_t, std::string> Place;

  // What the topmost mount above `mount` is in: no mount that we are told of.
  std::uint32_t Outermost(const Mount& mount) const {
    std::uint32_t parent = mount.parent;
    for (std::size_t steps = 0; steps < fMounts.size(); ++steps) {
      const auto found = fById.find(parent);
      if (found == fById.end() || fMounts[found->second].parent == parent) {
        break;
      }
      parent = fMounts[found->second].parent;
    }
    return parent;
  }

  // From `*current` into the mounts that lie at `path`, one upon another.
  void Enter(const std::string& path, std::uint32_t* current, bool* isHarmless) const {
    for (std::size_t steps = 0; steps <= fMounts.size(); ++steps) {
      const auto found = fByPlace.find(Place(*current, path));
      if (found == fByPlace.end()) {
        return;
      }
      const Mount& next = fMounts[found->second];
      *isHarmless = *isHarmless && IsHarmless(next);
      if (next.id == *current) {
        return;
      }
      *current = next.id;
    }
  }

  const std::vector<Mount>& fMounts;
  std::unordered_map<std::uint32_t, std::size_t> fById;
  std::map<Place, std::size_t> fByPlace;
};

LocalMount MakeLocal(const Mount& mount, bool mayBeAsked) {
  LocalMount local;
  local.mount = mount;
  local.isReadOnly = HasOption(mount.options, "ro") || HasOption(mount.superOptions, "ro");
  local.mayBeAsked = mayBeAsked;
  return local;
}

}  // namespace

std::string WithoutOctalEscapes(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\\' && text.size() - at > 3 && text[at + 1] >= '0' && text[at + 1] <= '3' &&
        IsOctal(text[at + 2]) && IsOctal(text[at + 3])) {
      plain += static_cast<char>((text[at + 1] - '0') << 6 | (text[at + 2] - '0') << 3 |
                                 (text[at + 3] - '0'));
      at += 3;
    } else {
      plain += text[at];
    }
  }
  return plain;
}

bool HasOption(std::string_view options, std::string_view option) {
  const std::vector<std::string_view> words = Split(options, ',');
  return std::find(words.begin(), words.end(), option) != words.end();
}

std::optional<Mount> ParseMount(std::string_view line) {
  const std::vector<std::string_view> fields = Split(line, ' ');
  // Six fields, optional ones, a hyphen, and three more.
  const std::size_t fixed = 6;
  if (fields.size() < fixed + 4) {
    return std::nullopt;
  }
  const auto hyphen = std::find(fields.begin() + fixed, fields.end(), "-");
  const std::optional<std::uint32_t> id = NumberIn(fields[0]);
  const std::optional<std::uint32_t> parent = NumberIn(fields[1]);
  Mount mount;
  if (fields.end() - hyphen != 4 || !id || !parent || !ParseDevice(fields[2], &mount)) {
    return std::nullopt;
  }
  mount.id = *id;
  mount.parent = *parent;
  mount.root = WithoutOctalEscapes(fields[3]);
  mount.point = WithoutOctalEscapes(fields[4]);
  mount.options = WithoutOctalEscapes(fields[5]);
  mount.type = WithoutOctalEscapes(hyphen[1]);
  mount.source = WithoutOctalEscapes(hyphen[2]);
  mount.superOptions = WithoutOctalEscapes(hyphen[3]);
  if (mount.point.empty() || mount.point[0] != '/' || mount.point.find('\0') != std::string::npos) {
    return std::nullopt;
  }
  return mount;
}

std::vector<LocalMount> FindLocalMounts(std::string_view text) {
  std::vector<Mount> mounts;
  std::string_view line;
  while (TakeLine(&text, &line)) {
    if (std::optional<Mount> mount = ParseMount(line)) {
      mounts.push_back(std::move(*mount));
    }
  }
  const Tree tree(mounts);
  std::vector<LocalMount> found;
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::size_t> byDevice;
  for (const Mount& mount : mounts) {
    bool mayBeAsked = false;
    if (!IsLocal(mount) || !tree.IsReached(mount, &mayBeAsked)) {
      continue;
    }
    const auto entry =
        byDevice.emplace(std::make_pair(mount.majorNumber, mount.minorNumber), found.size());
    if (entry.second) {
      found.push_back(MakeLocal(mount, mayBeAsked));
    } else if (mount.root == "/" && found[entry.first->second].mount.root != "/") {
      found[entry.first->second] = MakeLocal(mount, mayBeAsked);
    }
  }
  return found;
}

}  // namespace machine
