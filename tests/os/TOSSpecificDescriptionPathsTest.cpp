// Paths of a plug-in's description files: text only.

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;

struct PathRow {
  const char* path;
  const char* extension;
  // Without the ending; null: there is none in the path.
  const char* expected;
};

const PathRow kPaths[] = {
    {"foo\\foo.pi.dll", "pi", "foo\\foo"},
    {"C:\\a b\\foo\\foo.pi.dll", "pi", "C:\\a b\\foo\\foo"},
    {"/a/foo/foo.pi.dll", "pi", "/a/foo/foo"},
    {"foo.pi.dll", "pi", "foo"},
    {".pi.dll", "pi", ""},
    {"foo.pi.dll.old", "pi", "foo"},
    // The first occurrence counts, wherever it stands.
    {"x.pi.dll\\foo.pi.dll", "pi", "x"},
    {"a\\.pi.dll\\foo.pi.dll", "pi", "a\\"},
    {"foo.pi.pi.dll", "pi", "foo.pi"},
    {"foo.bar.dll", "bar", "foo"},
    {"foo.b.r.dll", "b.r", "foo"},
    {"foo..dll", "", "foo"},
    {"x.dll", "pi", nullptr},
    {"foo.pi.dll", "foo", nullptr},
    {"foo.PI.dll", "pi", nullptr},
    {"foo.pi.DLL", "pi", nullptr},
    {"foopi.dll", "pi", nullptr},
    {"foo.pi", "pi", nullptr},
    {"foo.pi.dl", "pi", nullptr},
    // No pattern, only text.
    {"foo.pi.dll", "p?", nullptr},
    {"foo.pi.dll", "*", nullptr},
    {"", "pi", nullptr},
};

TEST(DescriptionPaths, ReplaceWhatFollowsTheFirstEnding) {
  for (const PathRow& row : kPaths) {
    SCOPED_TRACE(std::string(row.path) + " with " + row.extension);
    if (row.expected) {
      const std::string expected = row.expected;
      EXPECT_EQ(expected + ".properties.xml",
                TOSSpecific::BuildSpecificationPath(row.path, row.extension));
      EXPECT_EQ(expected + ".registration.xml",
                TOSSpecific::BuildRegistrationPath(row.path, row.extension));
    } else {
      EXPECT_STATUS(kQDAStatusFail, TOSSpecific::BuildSpecificationPath(row.path, row.extension));
      EXPECT_STATUS(kQDAStatusFail, TOSSpecific::BuildRegistrationPath(row.path, row.extension));
    }
  }
}

TEST(DescriptionPaths, ShortFormIsForPlainPlugins) {
  EXPECT_EQ("a\\foo.properties.xml", TOSSpecific::BuildSpecificationPath("a\\foo.pi.dll"));
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::BuildSpecificationPath("x.dll"));
  EXPECT_STATUS(kQDAStatusFail, TOSSpecific::BuildSpecificationPath("foo.bar.dll"));
}

}  // namespace
