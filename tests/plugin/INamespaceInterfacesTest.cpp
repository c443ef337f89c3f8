#include <ostream>
#include <type_traits>

#include <gtest/gtest.h>

#include <qdacore/plugin/INamespaceConsumer.h>
#include <qdacore/plugin/INamespaceSource.h>
#include <qdacore/plugin/TNamespaceProviderManager.h>

namespace {

using namespace NZRVQDA20;

class Consumer : public INamespaceConsumer {
 public:
  const std::string& GetName(std::map<std::string, TCIMValue>) const override { return fName; }
  std::string GetDescription(std::map<std::string, TCIMValue>) const override { return fName; }
  void Consume(boost::shared_ptr<ICIMNamespace>, std::ostream&,
               std::map<std::string, TCIMValue>) override {}

  std::string fName = "one";
};

TEST(INamespaceConsumer, BaseIsMadeAndCopiedByItsImplementations) {
  Consumer one;
  one.fName = "two";
  Consumer copy(one);
  Consumer assigned;
  assigned = copy;
  EXPECT_EQ("two", assigned.GetName(std::map<std::string, TCIMValue>()));
}

TEST(INamespaceInterfaces, AreAbstractAndEndVirtually) {
  EXPECT_TRUE(std::is_abstract<INamespaceProvider>());
  EXPECT_TRUE(std::is_abstract<INamespaceSource>());
  EXPECT_TRUE(std::is_abstract<INamespaceConsumer>());
  EXPECT_TRUE(std::is_abstract<INamespaceProviderManager>());
  EXPECT_TRUE(std::has_virtual_destructor<INamespaceProvider>());
  EXPECT_TRUE(std::has_virtual_destructor<INamespaceConsumer>());
  EXPECT_TRUE(std::has_virtual_destructor<INamespaceProviderManager>());
  EXPECT_TRUE((std::is_base_of<INamespaceProvider, INamespaceSource>()));
}

TEST(TNamespaceProviderManager, IsCopiedByAnybodyAndMadeByItselfOnly) {
  EXPECT_FALSE(std::is_default_constructible<TNamespaceProviderManager>());
  EXPECT_TRUE(std::is_copy_constructible<TNamespaceProviderManager>());
  EXPECT_TRUE(std::is_copy_assignable<TNamespaceProviderManager>());
}

}  // namespace
