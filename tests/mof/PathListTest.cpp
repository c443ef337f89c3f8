#include <plugins/mof/PathList.h>

#include <gtest/gtest.h>

#include <plugins/mof/host/PathSeparator.h>

namespace {

using mof_provider::SplitPathList;

typedef std::vector<std::string> Paths;

TEST(PathList, HasWhatStandsBetweenTheSeparators) {
  EXPECT_EQ(Paths(), SplitPathList("", ':'));
  EXPECT_EQ((Paths{"/a b/c.mof"}), SplitPathList("/a b/c.mof", ':'));
  EXPECT_EQ((Paths{"a", "b", "c"}), SplitPathList("a:b:c", ':'));
  EXPECT_EQ((Paths{"C:\\a", "b"}), SplitPathList("C:\\a;b", ';'));
}

TEST(PathList, EmptyPartsDoNotCount) {
  EXPECT_EQ((Paths{"a", "b"}), SplitPathList("::a:::b:", ':'));
  EXPECT_EQ(Paths(), SplitPathList(":::", ':'));
}

TEST(PathList, SeparatorIsThatOfTheHost) {
#if defined(_WIN32)
  EXPECT_EQ(';', mof_provider::host::PathSeparator());
#else
  EXPECT_EQ(':', mof_provider::host::PathSeparator());
#endif
}

}  // namespace
