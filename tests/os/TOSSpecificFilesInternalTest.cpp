// Each operation on files and directories with each of its host calls failing in each way.

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/host/FaultyFiles.h>
#include <tests/host/HostFakes.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;
using namespace test_support;

typedef std::vector<std::string> Names;

const char kNothing[] = "nothing";
const char kFileSystemError[] = "kQDAStatusFileSystemError";
const char kAccessDenied[] = "kQDAStatusAccessDenied";
const char kNotFound[] = "kQDAStatusFileNotFound";
const char kAlreadyThere[] = "kQDAStatusDirectoryAlreadyExists";

bool IsMissing(const host::Outcome& failure) {
  return failure.number == kNoFile.number || failure.number == kNoPath.number;
}

bool IsDenied(const host::Outcome& failure) {
  return failure.number == kDenied.number || failure.number == kNotReady.number;
}

std::string StatusOfCreateDir(const host::Outcome& failure) {
  return failure.number == kExists.number ? kAlreadyThere
         : IsDenied(failure)              ? kAccessDenied
                                          : kFileSystemError;
}

std::string StatusOfFileCopy(const host::Outcome& failure) {
  return IsDenied(failure) ? kAccessDenied : kFileSystemError;
}

// Runs `operation` with each host call failing in each way; `expected` tells from the failed call
// and its failure which status has to come. Nothing may stay open, and nothing is logged.
template <class Operation, class Expected>
void FailEverything(int calls, Operation operation, Expected expected) {
  const LogCapture log;
  for (const host::Outcome& failure : AllFailures()) {
    EXPECT_EQ(calls, FailEachCall(failure, [&](FaultPlan& plan) {
                FaultyFiles files(plan);
                host::Replacements replacements;
                replacements.files = &files;
                const ScopedHost host(replacements);
                const std::string status = ThrownStatus(operation);
                EXPECT_EQ(plan.Reached() ? expected(plan.FailedCall(), failure) : kNothing, status);
                EXPECT_EQ(0u, files.OpenSearches());
              }));
  }
  EXPECT_EQ(Names(), log.Lines());
}

TEST(FailingHost, CreateDir) {
  TemporaryFolder folder;
  int made = 0;
  FailEverything(
      1, [&] { TOSSpecific::CreateDir(folder.PathOf("new" + std::to_string(++made))); },
      [](const std::string&, const host::Outcome& failure) { return StatusOfCreateDir(failure); });
}

TEST(FailingHost, DirExistsAndFileExistsAnswerNoOnlyWhenItIsMissing) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "");
  const auto expected = [](const std::string&, const host::Outcome& failure) {
    return std::string(IsMissing(failure) ? kNothing : kFileSystemError);
  };
  bool isThere = false;
  FailEverything(
      1, [&] { isThere = TOSSpecific::DirExists(folder.Path()); }, expected);
  EXPECT_TRUE(isThere);
  FailEverything(
      1, [&] { isThere = TOSSpecific::FileExists(file); }, expected);
  EXPECT_TRUE(isThere);
  for (const host::Outcome& missing : {kNoFile, kNoPath}) {
    FaultPlan plan(1, missing);
    FaultyFiles files(plan);
    host::Replacements replacements;
    replacements.files = &files;
    const ScopedHost host(replacements);
    EXPECT_FALSE(TOSSpecific::DirExists(folder.Path()));
  }
}

TEST(FailingHost, FileCopy) {
  TemporaryFolder folder;
  const std::string source = folder.Write("source", "text");
  FailEverything(
      1, [&] { TOSSpecific::FileCopy(source, folder.PathOf("target")); },
      [](const std::string&, const host::Outcome& failure) { return StatusOfFileCopy(failure); });
}

TEST(FailingHost, GetFileSize) {
  TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  FailEverything(
      2, [&] { EXPECT_EQ(4u, TOSSpecific::GetFileSize(file)); },
      [](const std::string&, const host::Outcome& failure) {
        return std::string(IsMissing(failure) ? kNotFound : kFileSystemError);
      });
}

TEST(FailingHost, GetCurrentDir) {
  FailEverything(
      1, [] { EXPECT_NE("", TOSSpecific::GetCurrentDir()); },
      [](const std::string&, const host::Outcome&) { return kFileSystemError; });
}

// Says that the directory has `length` characters, and leaves `left` in the buffer.
class LongDirectory final : public ForwardingFiles {
 public:
  explicit LongDirectory(const std::string& left) : fLeft(left) {}
  std::size_t CurrentDirectory(char* buffer, std::size_t size) override {
    EXPECT_EQ(261u, size);
    fLeft.copy(buffer, size);
    return 300;
  }

 private:
  const std::string fLeft;
};

TEST(GetCurrentDir, DirectoryThatIsTooLongIsWhatTheHostLeavesInTheBuffer) {
  for (const std::string& left : {std::string(), std::string("left"), std::string(260, 'x')}) {
    LongDirectory files(left);
    host::Replacements replacements;
    replacements.files = &files;
    const ScopedHost host(replacements);
    EXPECT_EQ(left, TOSSpecific::GetCurrentDir());
  }
  LongDirectory files(std::string(261, 'x'));
  host::Replacements replacements;
  replacements.files = &files;
  const ScopedHost host(replacements);
  EXPECT_EQ(std::string(260, 'x'), TOSSpecific::GetCurrentDir());
}

TEST(Searches, BeginWithThePathAndASeparator) {
  FakeFiles files;
  host::Replacements replacements;
  replacements.files = &files;
  const ScopedHost host(replacements);
  for (const char* const path : {"a", ""}) {
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::ListDir(path));
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::DirCopy(path, "target", true));
  }
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::DirCopy("a\\", "target", true));
  // Without a path that is the root directory.
  EXPECT_EQ((Names{"a|*", "a|*", "|*", "|*", "a|*"}), files.searches);
}

TEST(FailingHost, ListDir) {
  TemporaryFolder folder;
  folder.Write("a", "");
  folder.Write("b", "");
  // A search that says it is at its end is at its end.
  FailEverything(
      5, [&] { TOSSpecific::ListDir(folder.Path()); },
      [](const std::string& call, const host::Outcome& failure) {
        const bool isEnd = call == "FindNext" && failure.number == kNoFile.number;
        return std::string(isEnd ? kNothing : kFileSystemError);
      });
}

// Nothing is an error there: what cannot be searched stays as it is.
TEST(FailingHost, ExpandCommandLineWildcards) {
  TemporaryFolder folder;
  folder.Write("one.txt", "");
  std::string argument = folder.Path() + "/*.txt";
#if defined(_WIN32)
  argument = folder.Path() + "\\*.txt";
#endif
  char* argv[] = {&argument[0]};
  for (const host::Outcome& failure : AllFailures()) {
    EXPECT_EQ(2, FailEachCall(failure, [&](FaultPlan& plan) {
                FaultyFiles files(plan);
                host::Replacements replacements;
                replacements.files = &files;
                const ScopedHost host(replacements);
                int count = 0;
                char** strings = nullptr;
                TOSSpecific::ExpandCommandLineWildcards(1, argv, &count, &strings);
                const bool searched = !plan.Reached() || plan.FailedCall() == "FindNext";
                ASSERT_EQ(1, count);
                EXPECT_EQ(searched ? folder.PathOf("one.txt") : argument, strings[0]);
                std::free(strings[0]);
                std::free(strings);
                // The search is never closed.
                EXPECT_EQ(searched ? 1u : 0u, files.OpenSearches());
              }));
  }
}

// What DirCopy does for each of its calls that fails.
struct DirCopyRun {
  std::string status;
  std::size_t left;
};

DirCopyRun ExpectedOf(const std::string& call, const host::Outcome& failure, std::size_t openThen) {
  if (call == "FindFirst") {
    return {kFileSystemError, openThen};
  }
  // These two come before the loop of their own search, which is then closed.
  if (call == "ReadKind") {
    return IsMissing(failure) ? DirCopyRun{kNothing, 0}
                              : DirCopyRun{kFileSystemError, openThen - 1};
  }
  if (call == "MakeDirectory") {
    return {StatusOfCreateDir(failure), openThen - 1};
  }
  // A host that cannot tell directories apart copies all the same.
  if (call == "Identify") {
    return {kNothing, 0};
  }
  if (call == "FindNext" && failure.number == kNoFile.number) {
    return {kNothing, 0};
  }
  return {call == "Copy" ? StatusOfFileCopy(failure) : kFileSystemError, openThen};
}

TEST(FailingHost, DirCopyLeavesSearchesOpenOnlyFromInsideTheirLoops) {
  const LogCapture log;
  for (const host::Outcome& failure : AllFailures()) {
    Names calls;
    FailEachCall(failure, [&](FaultPlan& plan) {
      TemporaryFolder folder;
      folder.Write("source/sub/file", "text");
      FaultyFiles files(plan);
      host::Replacements replacements;
      replacements.files = &files;
      const ScopedHost host(replacements);
      const std::string status = ThrownStatus(
          [&] { TOSSpecific::DirCopy(folder.PathOf("source"), folder.PathOf("target"), true); });
      calls = plan.Calls();
      const DirCopyRun expected =
          plan.Reached() ? ExpectedOf(plan.FailedCall(), failure, files.OpenSearchesAtFailure())
                         : DirCopyRun{kNothing, 0};
      SCOPED_TRACE(plan.Reached() ? plan.FailedCall() : "none fails");
      EXPECT_EQ(expected.status, status);
      EXPECT_EQ(expected.left, files.OpenSearches());
      EXPECT_EQ(
          plan.Reached() && plan.FailedCall() == "FindFirst" && files.OpenSearchesAtFailure() == 0,
          !PathExists(folder.PathOf("target")) && status == kFileSystemError &&
              plan.Calls().size() == 1);
    });
    // The first directory, what is told of the two, and the second directory with its file.
    EXPECT_EQ(1, std::count(calls.begin(), calls.end(), "Copy"));
    EXPECT_EQ(2, std::count(calls.begin(), calls.end(), "FindFirst"));
    EXPECT_EQ(2, std::count(calls.begin(), calls.end(), "MakeDirectory"));
    EXPECT_EQ(3, std::count(calls.begin(), calls.end(), "Identify"));
    EXPECT_EQ(6, std::count(calls.begin(), calls.end(), "FindNext"));
  }
  EXPECT_EQ(Names(), log.Lines());
}

}  // namespace
