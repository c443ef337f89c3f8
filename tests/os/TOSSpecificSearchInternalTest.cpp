// The search for plug-ins in a host that fails where the test wants it to.

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/host/HostFakes.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;

typedef std::vector<std::string> Names;

class FakeHost : public testing::Test {
 protected:
  FakeHost() : fHost({nullptr, nullptr, &fFiles, &fModules}) {
    fModules.SetProgram(HostPath({"root", "program"}));
  }

  // A failed opening for each situation but the one given.
  static std::vector<host::Outcome> FailuresBut(host::Situation situation) {
    std::vector<host::Outcome> failures;
    for (const host::Outcome& failure :
         {host::Outcome{host::Situation::kExists, 183}, host::Outcome{host::Situation::kDenied, 5},
          host::Outcome{host::Situation::kNotReady, 21}, host::Outcome{host::Situation::kNoFile, 2},
          host::Outcome{host::Situation::kNoPath, 3}, host::Outcome{host::Situation::kOther, 31}}) {
      if (failure.situation != situation) {
        failures.push_back(failure);
      }
    }
    return failures;
  }

  FakeFiles fFiles;
  FakeModules fModules;
  ScopedHost fHost;
};

TEST_F(FakeHost, RootPathIsUpToTheLastSeparator) {
  fModules.SetProgram(HostPath({"", "a b", "c", "program"}));
  EXPECT_EQ(HostPath({"", "a b", "c"}), TOSSpecific::GetQDARootPath());
  EXPECT_EQ(512u, fModules.bufferSize);
}

TEST_F(FakeHost, RootPathThatIsNotToBeHadIsAFileSystemError) {
  fModules.programPathLength = 0;
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::GetQDARootPath());
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindNSPs());
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindNSCs());
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::LoadNSPLibrary("a"));
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::LoadNSCLibrary("a"));
  EXPECT_EQ(Names(), fFiles.searches);
  EXPECT_EQ(Names(), fModules.calls);
}

TEST_F(FakeHost, RootPathOf512CharactersWasCut) {
  const std::string folder(509, 'f');
  fModules.SetProgram(folder + kSeparator + "p");
  ASSERT_EQ(511u, fModules.programPathLength);
  EXPECT_EQ(folder, TOSSpecific::GetQDARootPath());
  fModules.SetProgram(folder + kSeparator + "pp");
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::GetQDARootPath());
  fModules.SetProgram(folder + kSeparator + "ppp and more");
  fModules.programPathLength = 512;
  EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::GetQDARootPath());
}

TEST_F(FakeHost, ServicesComeInTheOrderOfTheHost) {
  fFiles.directories["root"] = {
      host::Success(),
      {{"z.nsp.dll", false}, {"a.nsp.dll", true}, {".nsp.dll", false}, {"z.nsp.dll", false}}};
  EXPECT_EQ((Names{"z", "a", "", "z"}), TOSSpecific::FindNSPs());
  EXPECT_EQ((Names{"root|*.nsp.dll"}), fFiles.searches);
  TOSSpecific::FindNSCs();
  EXPECT_EQ("root|*.nsc.dll", fFiles.searches.back());
  EXPECT_EQ(2, fFiles.opened);
  EXPECT_EQ(2, fFiles.closed);
}

// A host that matches short aliases can give a name that lacks the ending.
TEST_F(FakeHost, NameShorterThanTheEndingIsHarmless) {
  fFiles.directories["root"] = {host::Success(), {{"A~1.DLL", false}, {"", false}}};
  EXPECT_EQ((Names{"", ""}), TOSSpecific::FindNSPs());
}

TEST_F(FakeHost, NoServiceIsAnEmptyListAndOtherFailuresAreFileSystemErrors) {
  fFiles.directories["root"] = {{host::Situation::kNoFile, 2}, {}};
  EXPECT_EQ(Names(), TOSSpecific::FindNSPs());
  EXPECT_EQ(Names(), TOSSpecific::FindNSCs());
  for (const host::Outcome& failure : FailuresBut(host::Situation::kNoFile)) {
    SCOPED_TRACE(failure.number);
    fFiles.directories["root"].opening = failure;
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindNSPs());
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindNSCs());
  }
  EXPECT_EQ(0, fFiles.opened);
  EXPECT_EQ(0, fFiles.closed);
}

TEST_F(FakeHost, EveryFailureOfTheOuterSearchIsAFileSystemError) {
  for (const host::Outcome& failure : FailuresBut(host::Situation::kDone)) {
    SCOPED_TRACE(failure.number);
    fFiles.directories["plugins"].opening = failure;
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindPlugins("plugins"));
    EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindPlugins("plugins", "x"));
  }
  EXPECT_EQ(0, fFiles.opened);
  EXPECT_EQ(0, fFiles.closed);
}

class FakePlugins : public FakeHost {
 protected:
  FakePlugins() {
    fFiles.directories["plugins"] = {host::Success(),
                                     {{".", true},
                                      {"..", true},
                                      {"file.pi.dll", false},
                                      {"two", true},
                                      {".hidden", true},
                                      {"one", true},
                                      {"none", true}}};
    fFiles.directories[HostPath({"plugins", "two"})] = {host::Success(),
                                                        {{"b.pi.dll", false}, {"a.pi.dll", true}}};
    fFiles.directories[HostPath({"plugins", "one"})] = {host::Success(), {{"c.pi.dll", false}}};
    fFiles.directories[HostPath({"plugins", "none"})] = {{host::Situation::kNoFile, 2}, {}};
  }
};

TEST_F(FakePlugins, PathsComeInTheOrderOfTheSearches) {
  EXPECT_EQ(
      (Names{HostPath({"plugins", "two", "b.pi.dll"}), HostPath({"plugins", "two", "a.pi.dll"}),
             HostPath({"plugins", "one", "c.pi.dll"})}),
      TOSSpecific::FindPlugins("plugins"));
  EXPECT_EQ((Names{"plugins|*", HostPath({"plugins", "two"}) + "|*.pi.dll",
                   HostPath({"plugins", "one"}) + "|*.pi.dll",
                   HostPath({"plugins", "none"}) + "|*.pi.dll"}),
            fFiles.searches);
  EXPECT_EQ(3, fFiles.opened);
  EXPECT_EQ(3, fFiles.closed);
}

TEST_F(FakePlugins, FailureOfAnInnerSearchClosesTheOuterOne) {
  for (const char* folder : {"two", "one", "none"}) {
    for (const host::Outcome& failure : FailuresBut(host::Situation::kNoFile)) {
      SCOPED_TRACE(std::string(folder) + " " + std::to_string(failure.number));
      const FakeFiles::Directory before = fFiles.directories[HostPath({"plugins", folder})];
      fFiles.directories[HostPath({"plugins", folder})].opening = failure;
      EXPECT_STATUS(kQDAStatusFileSystemError, TOSSpecific::FindPlugins("plugins"));
      EXPECT_LT(0, fFiles.opened);
      EXPECT_EQ(fFiles.opened, fFiles.closed);
      fFiles.directories[HostPath({"plugins", folder})] = before;
    }
  }
}

TEST_F(FakePlugins, EverySearchIsClosedWhenMemoryRunsOut) {
  for (const std::size_t entry : {1, 2, 3, 7}) {
    SCOPED_TRACE(entry);
    fFiles.failAtEntry = entry;
    EXPECT_THROW(TOSSpecific::FindPlugins("plugins"), std::bad_alloc);
    EXPECT_LT(0, fFiles.opened);
    EXPECT_EQ(fFiles.opened, fFiles.closed);
  }
}

}  // namespace
