// The host's own processes, pipes and files, through the seam.

#include <gtest/gtest.h>

#include <qdacore/host/HostServices.h>
#include <tests/support/OpenHandles.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20::host;
using test_support::CountOpenHandles;
using test_support::TemporaryFolder;

Outcome OpenAndClose(const std::string& path) {
  Processes::Handle handle = Processes::kNoHandle;
  const Outcome outcome = SystemProcesses().OpenFile(path, handle);
  if (outcome.Done()) {
    EXPECT_TRUE(SystemProcesses().Close(handle));
  } else {
    EXPECT_EQ(Processes::kNoHandle, handle);
  }
  return outcome;
}

TEST(SystemProcesses, OpeningTellsWhatIsMissing) {
  TemporaryFolder folder;
  folder.Write("file", "");
  EXPECT_EQ(Situation::kDone, OpenAndClose(folder.PathOf("file")).situation);
  EXPECT_EQ(Situation::kNoFile, OpenAndClose(folder.PathOf("missing")).situation);
  EXPECT_EQ(Situation::kDenied, OpenAndClose(folder.Path()).situation);
  EXPECT_FALSE(OpenAndClose("").Done());
}

TEST(SystemProcesses, OpeningThatFailsLeavesNothingOpen) {
  TemporaryFolder folder;
  OpenAndClose(folder.Path());
  const int before = CountOpenHandles();
  OpenAndClose(folder.Path());
  OpenAndClose(folder.PathOf("missing"));
  EXPECT_EQ(before, CountOpenHandles());
}

TEST(SystemProcesses, NoHandleIsAFailedReadOfNothingAndCannotBeClosed) {
  char buffer[16];
  const Processes::ReadResult read =
      SystemProcesses().Read(Processes::kNoHandle, buffer, sizeof buffer);
  EXPECT_FALSE(read.done);
  EXPECT_EQ(0u, read.count);
  EXPECT_NE("", SystemProcesses().ErrorText(read.error));
  EXPECT_EQ(0u, SystemProcesses().ExpectedSize(Processes::kNoHandle));
}

TEST(SystemProcesses, ErrorWithoutWordsIsHarmless) {
  EXPECT_NE("", SystemProcesses().ErrorText(2));
  SystemProcesses().ErrorText(0x7FFFFFFF);
}

TEST(SystemProcesses, PipeWithoutAWriterIsAtItsEnd) {
  Processes& processes = SystemProcesses();
  const int before = CountOpenHandles();
  Processes::Pipe pipe;
  ASSERT_TRUE(processes.MakePipe(pipe));
  EXPECT_EQ(before + 2, CountOpenHandles());
  ASSERT_TRUE(processes.MakePrivate(pipe.readEnd));
  ASSERT_TRUE(processes.MakePrivate(pipe.writeEnd));
  EXPECT_EQ(before + 2, CountOpenHandles());
  EXPECT_EQ(0u, processes.ExpectedSize(pipe.readEnd));
  EXPECT_TRUE(processes.Close(pipe.writeEnd));
  char buffer[16];
  EXPECT_EQ(0u, processes.Read(pipe.readEnd, buffer, sizeof buffer).count);
  EXPECT_TRUE(processes.Close(pipe.readEnd));
  EXPECT_EQ(before, CountOpenHandles());
  EXPECT_FALSE(processes.Close(pipe.readEnd));
}

// Tries programs that are none.
void ExpectNoChild(const Processes::Pipe& pipe) {
  for (const char* line : {"", " ", "no-such-program-anywhere", "/no/such/folder/program"}) {
    SCOPED_TRACE(line);
    Processes::Child child;
    EXPECT_FALSE(SystemProcesses().Start(line, Processes::Window::kAsItLikes,
                                         {pipe.readEnd, pipe.writeEnd}, child));
    EXPECT_EQ(Processes::kNoHandle, child.process);
  }
}

TEST(SystemProcesses, ProgramThatCannotBeStartedIsNoChild) {
  Processes& processes = SystemProcesses();
  Processes::Pipe pipe;
  ASSERT_TRUE(processes.MakePipe(pipe));
  // At the first start of all Wine opens something of its own, for the life of the process.
  ExpectNoChild(pipe);
  const int before = CountOpenHandles();
  ExpectNoChild(pipe);
  ExpectNoChild(pipe);
  EXPECT_EQ(before, CountOpenHandles());
  processes.Close(pipe.readEnd);
  processes.Close(pipe.writeEnd);
}

}  // namespace
