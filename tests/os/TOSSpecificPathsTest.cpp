// RelocateRelativePath: path text.

#include <random>
#include <string>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>

namespace {

using NZRVQDA20::TOSSpecific;

#if defined(_WIN32)
const bool kSlashCounts = false;
#else
const bool kSlashCounts = true;
#endif

struct Row {
  const char* name;
  const char* base;
  const char* path;
  const char* onWindows;
  const char* onLinux;
};

const Row kRows[] = {
    {"a plain path goes below", "C:\\a", "sub\\f", "C:\\a\\sub\\f", "C:\\a\\sub\\f"},
    {"the same drive goes below", "C:\\a", "C:sub", "C:\\a\\sub", "C:\\a\\sub"},
    {"case of the drive does not count", "c:\\a", "C:sub", "c:\\a\\sub", "c:\\a\\sub"},
    {"another drive stays", "C:\\a", "D:sub", "D:sub", "D:sub"},
    {"an absolute path stays", "C:\\a", "C:\\x", "C:\\x", "C:\\x"},
    {"another absolute path stays", "C:\\a", "D:\\x", "D:\\x", "D:\\x"},
    {"a rooted path stays", "C:\\a", "\\x", "\\x", "\\x"},
    {"a share stays", "C:\\a", "\\\\host\\s", "\\\\host\\s", "\\\\host\\s"},
    {"one backslash at the end goes", "C:\\a", "sub\\", "C:\\a\\sub", "C:\\a\\sub"},
    {"only one", "C:\\a", "sub\\\\", "C:\\a\\sub\\", "C:\\a\\sub\\"},
    {"one quote at the end goes", "C:\\a", "sub\"", "C:\\a\\sub", "C:\\a\\sub"},
    {"the backslash before the quote stays", "C:\\a", "sub\\\"", "C:\\a\\sub\\", "C:\\a\\sub\\"},
    {"only one quote", "C:\\a", "sub\"\"", "C:\\a\\sub\"", "C:\\a\\sub\""},
    {"a quote in front stays", "C:\\a", "\"sub\"", "C:\\a\\\"sub", "C:\\a\\\"sub"},
    {"also with an absolute path", "C:\\a", "D:\\x\\", "D:\\x", "D:\\x"},
    {"a root that is dropped to a drive is relative", "C:\\a", "C:\\", "C:\\a\\", "C:\\a\\"},
    {"a root alone is dropped first", "C:\\a", "\\", "C:\\a\\", "C:\\a\\"},
    {"no base changes nothing more", "", "sub\\", "sub", "sub"},
    {"no base, no path", "", "", "", ""},
    {"no path is the base", "C:\\a", "", "C:\\a\\", "C:\\a\\"},
    {"a drive alone is the base", "C:\\a", "C:", "C:\\a\\", "C:\\a\\"},
    {"a base that ends in a backslash gets no other", "C:\\a\\", "f", "C:\\a\\f", "C:\\a\\f"},
    {"a drive for a base", "C:", "f", "C:\\f", "C:\\f"},
    {"one character", "C:\\a", "f", "C:\\a\\f", "C:\\a\\f"},
    {"a relative base with backslashes", "a\\b", "f", "a\\b\\f", "a\\b\\f"},
    {"a base with slashes", "/a/b", "c", "/a/b\\c", "/a/b/c"},
    {"a base that is one name", "a", "c", "a\\c", "a/c"},
    {"a base that ends in a slash", "/a/", "c", "/a/\\c", "/a/c"},
    {"a path rooted by a slash", "/a", "/c", "/a\\/c", "/c"},
    {"a path rooted by a slash, the other base", "C:\\a", "/c", "C:\\a\\/c", "/c"},
    {"a drive and a slash", "C:\\a", "C:/c", "C:\\a\\/c", "C:/c"},
    {"a drive with slashes for a base", "C:/a", "c", "C:/a\\c", "C:/a\\c"},
    {"a slash at the end stays", "/a", "c/", "/a\\c/", "/a/c/"},
    {"the root stays the root", "/a", "/", "/a\\/", "/"},
    {"any first character counts as a drive", "/a", "b:c", "b:c", "b:c"},
    {"also one of two bytes", "\xC3\x84", "\xC3:c", "\xC3\x84\\c", "\xC3\x84/c"},
};

TEST(RelocateRelativePath, IsWhatTheTableSays) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(kSlashCounts ? row.onLinux : row.onWindows,
              TOSSpecific::RelocateRelativePath(row.base, row.path));
  }
}

// The same rules told another way: by the shape of the whole path.
std::string Modelled(const std::string& base, const std::string& given) {
  const std::string separators = kSlashCounts ? "\\/" : "\\";
  const std::size_t size = given.size();
  const bool isCut = size > 0 && (given[size - 1] == '\\' || given[size - 1] == '"');
  const std::string path = given.substr(0, isCut ? size - 1 : size);
  // Shapes: 'r' separator, ':' colon, 'x' all else; padded to three.
  std::string shape;
  for (const char character : path.substr(0, 3)) {
    shape += separators.find(character) != std::string::npos ? 'r' : character == ':' ? ':' : 'x';
  }
  shape.resize(3, '-');
  const bool drive = shape[1] == ':';
  const bool absolute = drive ? shape[2] == 'r' : shape[0] == 'r';
  if (base == "" || absolute) {
    return path;
  }
  const std::string lower = "abc";
  const std::string upper = "ABC";
  const auto same = [&](char one, char other) {
    const std::size_t at = upper.find(one);
    const std::size_t otherAt = upper.find(other);
    return (at == std::string::npos ? one : lower[at]) ==
           (otherAt == std::string::npos ? other : lower[otherAt]);
  };
  if (drive && !same(path[0], base[0])) {
    return path;
  }
  const std::string tail = drive ? path.substr(2) : path;
  if (base.find_last_of(separators) == base.size() - 1) {
    return base + tail;
  }
  const bool slashBase =
      kSlashCounts && base.find('\\') == std::string::npos && base.substr(1, 1) != ":";
  return base + (slashBase ? "/" : "\\") + tail;
}

TEST(RelocateRelativePath, AgreesWithTheModelOnRandomText) {
  std::mt19937 random(71);
  const std::string alphabet = "abcABC::\\\\//\". ";
  const auto text = [&] {
    std::string made;
    for (std::size_t left = random() % 7; left > 0; --left) {
      made += alphabet[random() % alphabet.size()];
    }
    return made;
  };
  for (int count = 0; count < 50000; ++count) {
    const std::string base = text();
    const std::string path = text();
    ASSERT_EQ(Modelled(base, path), TOSSpecific::RelocateRelativePath(base, path))
        << "<" << base << "> <" << path << ">";
  }
}

}  // namespace
