// Provider and consumer modules beside the program, and where that is.

#include <algorithm>
#include <cstdio>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/ProgramCopy.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

// The search gives the order of the file system, so names are sorted before they are compared.
void PrintSorted(const char* kind, std::vector<std::string> names) {
  std::sort(names.begin(), names.end());
  std::printf("%s:", kind);
  for (const std::string& name : names) {
    std::printf(" <%s>", name.c_str());
  }
  std::puts("");
}

QDACORE_CHILD(ListsServices) {
  PrintSorted("nsp", TOSSpecific::FindNSPs());
  PrintSorted("nsc", TOSSpecific::FindNSCs());
  return 0;
}

QDACORE_CHILD(TellsItsRoot) {
  std::printf("%s", TOSSpecific::GetQDARootPath().c_str());
  return 0;
}

TEST(GetQDARootPath, IsTheFolderOfTheProgramAndNotOfTheLibrary) {
  ProgramCopy program;
  EXPECT_EQ(program.Folder().Path(), program.Run("TellsItsRoot").output);
  EXPECT_EQ(OwnFolder(), TOSSpecific::GetQDARootPath());
}

TEST(FindServices, NoneIsAnEmptyList) {
  ProgramCopy program;
  const ChildResult result = program.Run("ListsServices");
  EXPECT_EQ("nsp:\nnsc:\n", result.output);
  EXPECT_EQ("", result.error);
  EXPECT_EQ(0, result.exitCode);
}

TEST(FindServices, NamesAreWithoutFolderAndEnding) {
  ProgramCopy program;
  for (const char* name : {"a.nsp.dll", "b.nsc.dll", "c.dll", "d.pi.dll", "e.nsp", "nsp.dll",
                           "f.nsp.dll.old", "g.h.nsp.dll", "i j.nsc.dll"}) {
    program.Folder().Write(name, "");
  }
  EXPECT_EQ("nsp: <a> <g.h>\nnsc: <b> <i j>\n", program.Run("ListsServices").output);
}

TEST(FindServices, SearchIsFlatButTakesFoldersToo) {
  ProgramCopy program;
  program.Folder().Write("sub/a.nsp.dll", "");
  program.Folder().Write("folder.nsp.dll/b.nsp.dll", "");
  EXPECT_EQ("nsp: <folder>\nnsc:\n", program.Run("ListsServices").output);
}

TEST(FindServices, NameMayBeNothingButTheEnding) {
  ProgramCopy program;
  program.Folder().Write(".nsp.dll", "");
  program.Folder().Write(".hidden.nsc.dll", "");
  EXPECT_EQ("nsp: <>\nnsc: <.hidden>\n", program.Run("ListsServices").output);
}

}  // namespace
