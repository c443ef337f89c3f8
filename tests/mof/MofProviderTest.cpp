// The provider itself: what it serves of the files that the variable names.

#include <plugins/mof/MofProvider.h>

#include <gtest/gtest.h>

#include <plugins/mof/host/PathSeparator.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace NZRVQDA20;
using mof_provider::MofProvider;
using test_support::LogCapture;
using test_support::ScopedEnvironment;
using test_support::TemporaryFolder;

typedef std::map<std::string, TCIMValue> Context;

const char kVariable[] = "QDA_MOF_PATH";
const char kSchema[] =
    "Qualifier Key : boolean = false, Scope(property), Flavor(DisableOverride);\n"
    "class A { [Key] string ID; };\n";

TEST(MofProvider, HasItsName) { EXPECT_EQ("mof", MofProvider().GetName(Context())); }

TEST(MofProvider, ServesAllFilesInOneNamespace) {
  const TemporaryFolder folder;
  const std::string list = folder.Write("a.mof", kSchema) + mof_provider::host::PathSeparator() +
                           folder.Write("b.mof", "instance of A { ID = \"1\"; };\n");
  const ScopedEnvironment variable(kVariable, list.c_str());
  MofProvider provider;
  const boost::shared_ptr<ICIMNamespace> ns = provider.GetNamespace(Context());
  EXPECT_TRUE(TCIMReference(ns, "A.ID=\"1\"", Context()).GetCIMElement(false) != nullptr);
  // Read once.
  EXPECT_EQ(ns, provider.GetNamespace(Context()));
}

TEST(MofProvider, WithoutTheVariableItServesAnEmptyNamespace) {
  const ScopedEnvironment variable(kVariable, nullptr);
  const LogCapture log;
  const boost::shared_ptr<ICIMNamespace> ns = MofProvider().GetNamespace(Context());
  bool hasClass = false;
  boost::function<bool(boost::shared_ptr<ICIMClass>)> visit =
      [&hasClass](boost::shared_ptr<ICIMClass>) { return !(hasClass = true); };
  ns->EnumerateClasses(visit, Context());
  EXPECT_FALSE(hasClass);
}

TEST(MofProvider, ProblemIsLoggedWithItsPlaceAndReadAnewLater) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("a.mof", "class A {\n  string S = 1;\n};\n");
  const ScopedEnvironment variable(kVariable, path.c_str());
  const LogCapture log;
  MofProvider provider;
  EXPECT_STATUS(kQDAStatusInvalidFormat, provider.GetNamespace(Context()));
  EXPECT_EQ((std::vector<std::string>{"[Error] mof: " + path +
                                      ":2:14: this is no value of the type string"}),
            log.Lines());
  folder.Write("a.mof", kSchema);
  EXPECT_TRUE(provider.GetNamespace(Context()) != nullptr);
}

TEST(MofProvider, FileThatIsNotThereIsToldByItsName) {
  const TemporaryFolder folder;
  const std::string path = folder.PathOf("none.mof");
  const ScopedEnvironment variable(kVariable, path.c_str());
  const LogCapture log;
  EXPECT_STATUS(kQDAStatusFileNotFound, MofProvider().GetNamespace(Context()));
  EXPECT_EQ((std::vector<std::string>{"[Error] mof: " + path + ": file \"" + path +
                                      "\" cannot be opened"}),
            log.Lines());
}

}  // namespace
