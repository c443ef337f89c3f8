// Which of the modules beside qda are loaded for a provider.

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::Installation;
using qda_test::SampleFile;
using test_support::ChildResult;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::string DoesNotLoad(const std::string& module) {
  return "qda: provider module \"" + module + "\": Couldn't load NSP: " + module +
         " error: 193 (kQDAStatusFileSystemError)\n";
}

TEST(ModuleChoice, TheModuleNamedLikeTheProviderIsTheOnlyOneLoaded) {
  const Installation installation;
  installation.AddMachineModule();
  installation.AddFile("broken.nsp.dll", "this is no module\n");
  installation.AddMarkModule("ahead");
  installation.AddMarkModule("zlast");
  const ChildResult run = installation.Run({"identify", "--smbios-dump", SampleFile()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_THAT(run.output, StartsWith("Machine type and model    1234AC1\n"));
  EXPECT_THAT(run.output, Not(HasSubstr("mark starts")));
}

TEST(ModuleChoice, AllAreLoadedWhenNoneIsNamedLikeTheProvider) {
  const Installation installation;
  installation.AddOddModule();
  installation.AddFile("broken.nsp.dll", "this is no module\n");
  installation.AddMarkModule("zlast");
  const ChildResult run = installation.Run({"classes", "--provider", "mistyped"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(DoesNotLoad("broken"), run.error);
  EXPECT_THAT(run.output, StartsWith("mark starts\n"));
  EXPECT_THAT(run.output, HasSubstr("ZRVSG_ComputerSystem"));
}

TEST(ModuleChoice, AllAreLoadedWhenTheModuleNamedLikeTheProviderLacksIt) {
  const Installation installation;
  installation.AddOddModule();
  installation.AddMarkModule("mistyped");
  const ChildResult run = installation.Run({"classes", "--provider", "mistyped"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_THAT(run.output, StartsWith("mark starts\n"));
  EXPECT_THAT(run.output, HasSubstr("ZRVSG_ComputerSystem"));
}

TEST(ModuleChoice, AModuleNamedLikeTheProviderThatDoesNotLoadIsToldAndPassedOver) {
  const Installation installation;
  installation.AddOddModule();
  installation.AddFile("mistyped.nsp.dll", "this is no module\n");
  const ChildResult run = installation.Run({"classes", "--provider", "mistyped"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(DoesNotLoad("mistyped"), run.error);
  EXPECT_THAT(run.output, HasSubstr("ZRVSG_ComputerSystem"));
}

TEST(ModuleChoice, AProviderThatIsNowhereIsAnsweredWithThoseOfAllModules) {
  const Installation installation;
  installation.AddOddModule();
  installation.AddFile("machine.nsp.dll", "this is no module\n");
  const ChildResult run = installation.Run({"identify"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ(DoesNotLoad("machine") +
                "qda: provider \"machine\": none of that name is registered "
                "(kQDAStatusNotFound); registered: empty, mistyped, mute, null, refusing; see "
                "\"qda providers\"\n",
            run.error);
}

TEST(ModuleChoice, AProvidersNameIsNoPath) {
  const Installation installation;
  installation.AddMachineModule();
  installation.AddFile("below/file", "");
  installation.AddMarkModule("below/mark");
  const ChildResult run = installation.Run({"identify", "--provider", "below/mark"});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_THAT(run.error, HasSubstr("registered: machine; "));
}

TEST(ModuleChoice, ASnapshotOfOneProviderTakesItsModuleOnly) {
  const Installation installation;
  installation.AddMachineModule();
  installation.AddFile("broken.nsp.dll", "this is no module\n");
  const ChildResult run = installation.Run({"snapshot", "--provider", "machine", "-o", "-"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
}

TEST(ModuleChoice, ASnapshotOfAllProvidersTakesAllModules) {
  const Installation installation;
  installation.AddMachineModule();
  installation.AddFile("broken.nsp.dll", "this is no module\n");
  installation.AddMarkModule("zlast");
  const ChildResult run = installation.Run({"snapshot", "-o", "-"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(DoesNotLoad("broken"), run.error);
  EXPECT_THAT(run.output, StartsWith("mark starts\n"));
}

}  // namespace
