#include <cstdio>
#include <stdexcept>

#include <gtest/gtest.h>
#include <boost/weak_ptr.hpp>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/TLogger.h>
#include <tests/plugin/NamedProvider.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

typedef boost::shared_ptr<INamespaceProvider> Provider;

TEST(TNamespaceProviderManager, IsOneObjectForTheProcess) {
  const boost::shared_ptr<TNamespaceProviderManager> one = TNamespaceProviderManager::GetInstance();
  const boost::shared_ptr<TNamespaceProviderManager> two = TNamespaceProviderManager::GetInstance();
  EXPECT_NE(nullptr, one.get());
  EXPECT_EQ(one.get(), two.get());
  const boost::shared_ptr<INamespaceProviderManager> three =
      TRootObject::GetNamespaceProviderManager();
  EXPECT_EQ(three.get(), TRootObject::GetNamespaceProviderManager().get());
  EXPECT_EQ(static_cast<INamespaceProviderManager*>(one.get()), three.get());
  // Ours are three; the library's own is the fourth.
  EXPECT_EQ(4, one.use_count());
  EXPECT_EQ(4, three.use_count());
}

TEST(TNamespaceProviderManager, ProviderComesBackUnderItsExactName) {
  TNamespaceProviderManager registry = EmptyRegistry();
  const boost::shared_ptr<NamedProvider> disk = MakeProvider("Disk");
  const boost::shared_ptr<NamedProvider> unnamed = MakeProvider("");
  const boost::shared_ptr<NamedProvider> withNul = MakeProvider(std::string("Disk\0x", 6));
  registry.RegisterNamespaceProvider(disk);
  registry.RegisterNamespaceProvider(unnamed);
  registry.RegisterNamespaceProvider(withNul);

  EXPECT_EQ(disk, registry.GetNamespaceProvider("Disk"));
  EXPECT_EQ(unnamed, registry.GetNamespaceProvider(""));
  EXPECT_EQ(withNul, registry.GetNamespaceProvider(std::string("Disk\0x", 6)));
  for (const char* name : {"disk", "DISK", "Dis", "Disk ", " Disk"}) {
    SCOPED_TRACE(name);
    EXPECT_STATUS(kQDAStatusNotFound, registry.GetNamespaceProvider(name));
  }
}

TEST(TNamespaceProviderManager, LookupSharesTheProvider) {
  TNamespaceProviderManager registry = EmptyRegistry();
  boost::shared_ptr<NamedProvider> disk = MakeProvider("disk");
  registry.RegisterNamespaceProvider(disk);
  EXPECT_EQ(2, disk.use_count());
  const Provider found = registry.GetNamespaceProvider("disk");
  EXPECT_EQ(3, disk.use_count());
}

TEST(TNamespaceProviderManager, ProviderIsAskedForItsNameOnceAndWithAnEmptyContext) {
  TNamespaceProviderManager registry = EmptyRegistry();
  const boost::shared_ptr<NamedProvider> disk = MakeProvider("disk");
  registry.RegisterNamespaceProvider(disk);
  registry.GetNamespaceProvider("disk");
  EXPECT_EQ(1, disk->TimesAsked());
  EXPECT_EQ(0u, disk->ContextSize());
}

TEST(TNamespaceProviderManager, FirstProviderUnderANameStaysAndNobodyIsTold) {
  LogCapture log;
  TNamespaceProviderManager registry = EmptyRegistry();
  const boost::shared_ptr<NamedProvider> first = MakeProvider("disk");
  boost::shared_ptr<NamedProvider> second = MakeProvider("disk");
  registry.RegisterNamespaceProvider(first);
  registry.RegisterNamespaceProvider(second);
  EXPECT_EQ(first, registry.GetNamespaceProvider("disk"));
  EXPECT_TRUE(log.Lines().empty());

  // The dropped one lives as long as its caller holds it.
  EXPECT_EQ(1, second.use_count());
  const boost::weak_ptr<NamedProvider> watch(second);
  second.reset();
  EXPECT_TRUE(watch.expired());
}

TEST(TNamespaceProviderManager, SameProviderTwiceIsKeptOnce) {
  TNamespaceProviderManager registry = EmptyRegistry();
  const boost::shared_ptr<NamedProvider> disk = MakeProvider("disk");
  registry.RegisterNamespaceProvider(disk);
  registry.RegisterNamespaceProvider(disk);
  EXPECT_EQ(2, disk.use_count());
}

TEST(TNamespaceProviderManager, ProviderLivesAsLongAsTheRegistry) {
  boost::weak_ptr<NamedProvider> watch;
  {
    TNamespaceProviderManager registry = EmptyRegistry();
    const boost::shared_ptr<NamedProvider> disk = MakeProvider("disk");
    watch = disk;
    registry.RegisterNamespaceProvider(disk);
  }
  EXPECT_TRUE(watch.expired());

  TNamespaceProviderManager registry = EmptyRegistry();
  registry.RegisterNamespaceProvider(MakeProvider("disk"));
  EXPECT_EQ(1, registry.GetNamespaceProvider("disk").use_count() - 1);
}

TEST(TNamespaceProviderManager, NullProviderIsAFailedAssertion) {
  ScopedEnvironment policy("QDA_BOOST_ASSERT", nullptr);
  TNamespaceProviderManager registry = EmptyRegistry();
  EXPECT_STATUS(kQDAStatusFail, registry.RegisterNamespaceProvider(Provider()));
}

TEST(TNamespaceProviderManager, UnknownNameLeavesALineAndThrowsNotFound) {
  LogCapture log;
  TNamespaceProviderManager registry = EmptyRegistry();
  registry.RegisterNamespaceProvider(MakeProvider("disk"));
  EXPECT_STATUS(kQDAStatusNotFound, registry.GetNamespaceProvider("some %s disk"));
  EXPECT_EQ(std::vector<std::string>{"[Error] Failed to find nsp named some %s disk"}, log.Lines());
  ASSERT_EQ(1u, TRootObject::GetCoreLogger()->GetLogEntries().size());
  EXPECT_EQ("Failed to find nsp named some %s disk",
            TRootObject::GetCoreLogger()->GetLogEntries().front().message);
}

QDACORE_CHILD(LooksUpWithoutALogger) {
  const std::string status = ThrownStatus(
      [] { TRootObject::GetNamespaceProviderManager()->GetNamespaceProvider("disk"); });
  std::printf("%s, %s\n", status.c_str(), TRootObject::GetCoreLogger() ? "a logger" : "no logger");
  return 0;
}

// A host that forgot the logger loses the line, not the process.
TEST(TNamespaceProviderManager, UnknownNameIsNotFoundWithoutALoggerToo) {
  const ChildResult result = RunChild("LooksUpWithoutALogger");
  EXPECT_EQ("kQDAStatusNotFound, no logger\n", result.output);
  EXPECT_EQ("", result.error);
}

TEST(TNamespaceProviderManager, CopyHasTheProvidersAndIsIndependent) {
  TNamespaceProviderManager registry = EmptyRegistry();
  const boost::shared_ptr<NamedProvider> disk = MakeProvider("disk");
  const boost::shared_ptr<NamedProvider> memory = MakeProvider("memory");
  registry.RegisterNamespaceProvider(disk);
  TNamespaceProviderManager copy(registry);
  EXPECT_EQ(disk, copy.GetNamespaceProvider("disk"));

  copy.RegisterNamespaceProvider(memory);
  EXPECT_EQ(memory, copy.GetNamespaceProvider("memory"));
  EXPECT_STATUS(kQDAStatusNotFound, registry.GetNamespaceProvider("memory"));

  copy = registry;
  EXPECT_STATUS(kQDAStatusNotFound, copy.GetNamespaceProvider("memory"));
  EXPECT_EQ(disk, copy.GetNamespaceProvider("disk"));
  EXPECT_EQ(1, memory.use_count());

  const TNamespaceProviderManager& self = copy;
  copy = self;
  EXPECT_EQ(disk, copy.GetNamespaceProvider("disk"));
}

class ProviderWithoutName : public INamespaceProvider {
 public:
  const std::string& GetName(std::map<std::string, TCIMValue>) const override {
    throw std::runtime_error("no name today");
  }
};

TEST(TNamespaceProviderManager, FailureOfAProvidersNamePassesAndEntersNothing) {
  TNamespaceProviderManager registry = EmptyRegistry();
  const Provider nameless(new ProviderWithoutName);
  EXPECT_THROW(registry.RegisterNamespaceProvider(nameless), std::runtime_error);
  EXPECT_EQ(1, nameless.use_count());
}

class FarewellProvider : public NamedProvider {
 public:
  FarewellProvider() : NamedProvider("farewell") {}
  ~FarewellProvider() override {
    std::puts("provider ended");
    std::fflush(stdout);
  }
};

boost::shared_ptr<INamespaceProviderManager>* heldRegistry = nullptr;

QDACORE_CHILD(EndsWithAProviderInTheRegistry) {
  TRootObject::GetNamespaceProviderManager()->RegisterNamespaceProvider(
      Provider(new FarewellProvider));
  if (!arguments.empty()) {
    // Never deleted, so still holding at the very end.
    heldRegistry = new boost::shared_ptr<INamespaceProviderManager>(
        TRootObject::GetNamespaceProviderManager());
  }
  std::puts("end of main");
  std::fflush(stdout);
  return 0;
}

TEST(TNamespaceProviderManager, RegistryEndsAtExitUnlessACallerHoldsIt) {
  EXPECT_EQ("end of main\nprovider ended\n", RunChild("EndsWithAProviderInTheRegistry").output);
  const ChildResult held = RunChild("EndsWithAProviderInTheRegistry", {}, {"hold"});
  EXPECT_EQ("end of main\n", held.output);
  EXPECT_EQ(0, held.exitCode);
}

}  // namespace
