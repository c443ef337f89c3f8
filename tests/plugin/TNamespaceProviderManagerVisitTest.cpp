// The walk over all providers.

#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>
#include <boost/function.hpp>

#include <tests/plugin/NamedProvider.h>

namespace {

using namespace NZRVQDA20;

typedef boost::function<bool(boost::shared_ptr<INamespaceProvider>)> Visitor;
typedef std::vector<std::string> Names;

TNamespaceProviderManager RegistryOf(const Names& names) {
  TNamespaceProviderManager registry = EmptyRegistry();
  for (const std::string& name : names) {
    registry.RegisterNamespaceProvider(MakeProvider(name));
  }
  return registry;
}

// The names visited; the visitor stops after `limit`.
Names Visit(const TNamespaceProviderManager& registry, std::size_t limit = 1000) {
  Names names;
  Visitor visitor = [&](boost::shared_ptr<INamespaceProvider> provider) {
    names.push_back(provider->GetName(std::map<std::string, TCIMValue>()));
    return names.size() < limit;
  };
  registry.EnumerateNamespaceProviders(visitor);
  return names;
}

TEST(EnumerateNamespaceProviders, OrderIsThatOfTheBytesOfTheNames) {
  EXPECT_EQ((Names{"B", "a", "b"}), Visit(RegistryOf({"b", "a", "B"})));
  // A byte above 0x7F comes after the letters, not before.
  EXPECT_EQ((Names{"", "a", "a ", "aa", "z", "\xE4"}),
            Visit(RegistryOf({"\xE4", "z", "aa", "a ", "a", ""})));
}

TEST(EnumerateNamespaceProviders, FalseStopsAtOnce) {
  const TNamespaceProviderManager registry = RegistryOf({"a", "b", "c"});
  EXPECT_EQ((Names{"a"}), Visit(registry, 1));
  EXPECT_EQ((Names{"a", "b"}), Visit(registry, 2));
  EXPECT_EQ((Names{"a", "b", "c"}), Visit(registry, 3));
}

TEST(EnumerateNamespaceProviders, EmptyRegistryCallsNothingEvenIfThereIsNothingToCall) {
  EXPECT_EQ(Names(), Visit(EmptyRegistry()));
  Visitor nothing;
  EXPECT_NO_THROW(EmptyRegistry().EnumerateNamespaceProviders(nothing));
}

TEST(EnumerateNamespaceProviders, EmptyVisitorIsABadFunctionCallAtTheFirstProvider) {
  Visitor nothing;
  EXPECT_THROW(RegistryOf({"a"}).EnumerateNamespaceProviders(nothing), boost::bad_function_call);
}

TEST(EnumerateNamespaceProviders, FailureOfTheVisitorPassesAndChangesNothing) {
  const TNamespaceProviderManager registry = RegistryOf({"a", "b"});
  int calls = 0;
  Visitor visitor = [&](boost::shared_ptr<INamespaceProvider>) -> bool {
    ++calls;
    throw std::runtime_error("enough");
  };
  EXPECT_THROW(registry.EnumerateNamespaceProviders(visitor), std::runtime_error);
  EXPECT_EQ(1, calls);
  EXPECT_EQ((Names{"a", "b"}), Visit(registry));
}

struct CountingVisitor {
  int calls = 0;
  bool operator()(boost::shared_ptr<INamespaceProvider>) {
    ++calls;
    return true;
  }
};

TEST(EnumerateNamespaceProviders, VisitorIsNotCopied) {
  Visitor visitor = CountingVisitor();
  RegistryOf({"a", "b", "c"}).EnumerateNamespaceProviders(visitor);
  EXPECT_EQ(3, visitor.target<CountingVisitor>()->calls);
}

TEST(EnumerateNamespaceProviders, VisitorIsGivenASharedPointer) {
  const TNamespaceProviderManager registry = RegistryOf({"a"});
  boost::shared_ptr<INamespaceProvider> kept;
  Visitor visitor = [&](boost::shared_ptr<INamespaceProvider> provider) {
    kept = provider;
    return true;
  };
  registry.EnumerateNamespaceProviders(visitor);
  EXPECT_EQ(registry.GetNamespaceProvider("a"), kept);
}

}  // namespace
