// Loading of modules: real ones, each in a process of its own.

#include <cstdio>
#include <memory>
#include <sstream>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/plugin/INamespaceConsumer.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <tests/os/ProgramCopy.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

void Say(const std::string& text) {
  std::puts(text.c_str());
  std::fflush(stdout);
}

void SayLog(const LogCapture& log) {
  for (const std::string& line : log.Lines()) {
    Say(line);
  }
}

QDACORE_CHILD(LoadsProviders) {
  LogCapture log;
  for (const std::string& name : arguments) {
    Say(name + ": " + ThrownStatus([&] { TOSSpecific::LoadNSPLibrary(name); }));
  }
  SayLog(log);
  Say("lookup: " + ThrownStatus([] {
        TRootObject::GetNamespaceProviderManager()->GetNamespaceProvider("test.disk");
      }));
  return 0;
}

TEST(LoadNSPLibrary, StartUpOfTheModuleRegistersItsProvider) {
  ProgramCopy program;
  program.AddModule("registers.nsp.dll");
  const ChildResult result = program.Run("LoadsProviders", {"registers"});
  EXPECT_EQ("registers: nothing\nlookup: nothing\nprovider of registers ends\n", result.output);
  EXPECT_EQ("", result.error);
  EXPECT_EQ(0, result.exitCode);
}

TEST(LoadNSPLibrary, LoadingTwiceStartsOnce) {
  ProgramCopy program;
  program.AddModule("registers.nsp.dll");
  EXPECT_EQ("registers: nothing\nregisters: nothing\nlookup: nothing\nprovider of registers ends\n",
            program.Run("LoadsProviders", {"registers", "registers"}).output);
}

TEST(LoadNSPLibrary, ProviderWhoseNameIsTakenIsDroppedSilently) {
  ProgramCopy program;
  program.AddModule("registers.nsp.dll");
  program.AddModule("taken.nsp.dll");
  EXPECT_EQ(
      "registers: nothing\nprovider of taken ends\ntaken: nothing\nlookup: nothing\n"
      "provider of registers ends\n",
      program.Run("LoadsProviders", {"registers", "taken"}).output);
}

TEST(LoadNSPLibrary, NothingIsAskedOfTheModule) {
  ProgramCopy program;
  program.AddModule("mark.pi.dll", "plain.nsp.dll");
  EXPECT_EQ("mark starts\nplain: nothing\nlookup: kQDAStatusNotFound\nmark ends\n",
            program.Run("LoadsProviders", {"plain"}).output);
}

TEST(LoadNSPLibrary, FailureIsLoggedWithItsNumber) {
  ProgramCopy program;
  program.Folder().Write("text.nsp.dll", "This is no module, whatever its name says.\n");
  program.Folder().Write("empty.nsp.dll", "");
  program.AddModule("needy.nsp.dll");
  const ChildResult result = program.Run("LoadsProviders", {"missing", "text", "empty", "needy"});
  EXPECT_EQ(
      "missing: kQDAStatusFileSystemError\n"
      "text: kQDAStatusFileSystemError\n"
      "empty: kQDAStatusFileSystemError\n"
      "needy: kQDAStatusFileSystemError\n"
      "[Error] Couldn't load NSP: missing error: 126\n"
      "[Error] Couldn't load NSP: text error: 193\n"
      "[Error] Couldn't load NSP: empty error: 193\n"
      "[Error] Couldn't load NSP: needy error: 126\n"
      "lookup: kQDAStatusNotFound\n",
      result.output);
  EXPECT_EQ("", result.error);
}

QDACORE_CHILD(LoadsAConsumer) {
  LogCapture log;
  INamespaceConsumer* made = nullptr;
  Say(ThrownStatus([&] { made = TOSSpecific::LoadNSCLibrary(arguments.at(0)); }));
  const std::unique_ptr<INamespaceConsumer> consumer(made);
  if (consumer) {
    std::ostringstream output;
    consumer->Consume(boost::shared_ptr<ICIMNamespace>(), output, {});
    Say(consumer->GetName({}) + ", " + consumer->GetDescription({}) + ", " + output.str());
  } else {
    Say("no consumer");
  }
  SayLog(log);
  return 0;
}

TEST(LoadNSCLibrary, FactoryNamedAfterTheModuleMakesTheConsumer) {
  ProgramCopy program;
  program.AddModule("disk.nsc.dll");
  const ChildResult result = program.Run("LoadsAConsumer", {"disk"});
  EXPECT_EQ("nothing\ndisk consumer, a consumer for tests, consumed\n", result.output);
  EXPECT_EQ("", result.error);
  EXPECT_EQ(0, result.exitCode);
}

TEST(LoadNSCLibrary, FactoryMayMakeNothing) {
  ProgramCopy program;
  program.AddModule("null.nsc.dll");
  EXPECT_EQ("nothing\nno consumer\n", program.Run("LoadsAConsumer", {"null"}).output);
}

// It ends only with the process, after the last word of the program.
TEST(LoadNSCLibrary, ModuleWithoutFactoryIsNotFoundAndStaysLoaded) {
  ProgramCopy program;
  program.AddModule("nofactory.nsc.dll");
  EXPECT_EQ(
      "nofactory starts\nkQDAStatusNotFound\nno consumer\n"
      "[Error] Couldn't find 'nofactory_CreateINamespaceConsumer' in " +
          program.Folder().PathOf("nofactory.nsc.dll") + "\nnofactory ends\n",
      program.Run("LoadsAConsumer", {"nofactory"}).output);
}

TEST(LoadNSCLibrary, FactoryOfAnotherNameDoesNotCount) {
  ProgramCopy program;
  program.AddModule("disk.nsc.dll", "Disk2.nsc.dll");
  EXPECT_EQ(
      "kQDAStatusNotFound\nno consumer\n"
      "[Error] Couldn't find 'Disk2_CreateINamespaceConsumer' in " +
          program.Folder().PathOf("Disk2.nsc.dll") + "\n",
      program.Run("LoadsAConsumer", {"Disk2"}).output);
}

TEST(LoadNSCLibrary, ModuleThatDoesNotLoadIsLoggedWithoutANumber) {
  ProgramCopy program;
  program.Folder().Write("text.nsc.dll", "This is no module, whatever its name says.\n");
  EXPECT_EQ("kQDAStatusFileSystemError\nno consumer\n[Error] Couldn't load NSC: missing\n",
            program.Run("LoadsAConsumer", {"missing"}).output);
  EXPECT_EQ("kQDAStatusFileSystemError\nno consumer\n[Error] Couldn't load NSC: text\n",
            program.Run("LoadsAConsumer", {"text"}).output);
}

QDACORE_CHILD(LoadsPlainPlugins) {
  LogCapture log;
  for (const std::string& path : arguments) {
    Say(ThrownStatus([&] { TOSSpecific::LoadPluginLibrary(path); }));
  }
  SayLog(log);
  Say("end of main");
  return 0;
}

TEST(LoadPluginLibrary, StartUpRunsOnceAndTheModuleStays) {
  TemporaryFolder folder;
  const std::string path = folder.Copy(ProgramCopy::ModulePath("mark.pi.dll"), "sub/mark.pi.dll");
  EXPECT_EQ("mark starts\nnothing\nnothing\nend of main\nmark ends\n",
            RunChild("LoadsPlainPlugins", {}, {path, path}).output);
}

TEST(LoadPluginLibrary, BothSeparatorsAreAccepted) {
  TemporaryFolder folder;
  folder.Copy(ProgramCopy::ModulePath("mark.pi.dll"), "sub/mark.pi.dll");
  for (const char* path : {"\\sub\\mark.pi.dll", "/sub/mark.pi.dll"}) {
    EXPECT_EQ("mark starts\nnothing\nend of main\nmark ends\n",
              RunChild("LoadsPlainPlugins", {}, {folder.Path() + path}).output);
  }
}

TEST(LoadPluginLibrary, FailureIsAFileSystemErrorAndNotLogged) {
  TemporaryFolder folder;
  const std::string text = folder.Write("text.pi.dll", "no module");
  const std::string needy = folder.Copy(ProgramCopy::ModulePath("needy.nsp.dll"), "needy.pi.dll");
  const std::string inner = folder.MakeFolder("folder.pi.dll");
  const ChildResult result =
      RunChild("LoadsPlainPlugins", {}, {text, needy, inner, folder.PathOf("missing.pi.dll"), ""});
  EXPECT_EQ(
      "kQDAStatusFileSystemError\nkQDAStatusFileSystemError\nkQDAStatusFileSystemError\n"
      "kQDAStatusFileSystemError\nkQDAStatusFileSystemError\nend of main\n",
      result.output);
  EXPECT_EQ("", result.error);
}

QDACORE_CHILD(FailsToLoadWithoutALogger) {
  Say(ThrownStatus([] { TOSSpecific::LoadNSPLibrary("missing"); }));
  Say(ThrownStatus([] { TOSSpecific::LoadNSCLibrary("missing"); }));
  Say(TRootObject::GetCoreLogger() ? "a logger" : "no logger");
  return 0;
}

// A host that forgot the logger loses the lines, not the process.
TEST(LoadLibraries, StatusIsThrownWithoutALoggerToo) {
  EXPECT_EQ("kQDAStatusFileSystemError\nkQDAStatusFileSystemError\nno logger\n",
            RunChild("FailsToLoadWithoutALogger").output);
}

}  // namespace
