// The DMTF schema 2.49.0 itself, read, counted, copied, written and read again. It is no part of
// this project: the environment variable QDACORE_DMTF_SCHEMA names its folder.

#include <algorithm>

#include <qdacore/cim/object/TCIMCopy.h>
#include <tests/qdamemory/NamespaceContent.h>
#include <tests/qdamemory/mof/MofTestSupport.h>
#include <tests/support/DmtfSchema.h>

namespace {

using namespace memory_test;

struct Counts {
  std::size_t classes = 0;
  std::size_t associations = 0;
  std::size_t abstract = 0;
  std::size_t roots = 0;
  std::size_t depth = 0;
  std::size_t properties = 0;
  std::size_t redeclared = 0;
  std::size_t references = 0;
  std::size_t methods = 0;
};

void Count(const Class& cls, std::size_t depth, Counts& counts) {
  ++counts.classes;
  counts.associations += cls->IsAssociation(None()) ? 1 : 0;
  counts.abstract += cls->IsAbstract(None()) ? 1 : 0;
  counts.depth = std::max(counts.depth, depth);
  counts.methods += MethodsOf(cls).size();
  boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)> visit =
      [&](boost::shared_ptr<ICIMPropertyDecl> declaration) {
        ++counts.properties;
        counts.references += declaration->GetDefaultValue(None()).IsReference() ? 1 : 0;
        if (!cls->IsRootClass(None())) {
          try {
            cls->GetSuperClass(None())->GetPropertyDecl(declaration->GetName(None()), None());
            ++counts.redeclared;
          } catch (const TQDAException&) {
            // New here.
          }
        }
        return true;
      };
  cls->EnumeratePropertyDecls(visit, None());
  for (const std::string& name : SubClassesOf(cls, false)) {
    Count(cls->GetNamespace(None())->GetClass(name, None()), depth + 1, counts);
  }
}

struct MofDmtfSchema : testing::Test {
  void SetUp() override {
    const std::string path = test_support::DmtfSchemaFile();
    if (path.empty()) {
      GTEST_SKIP() << "no DMTF schema: QDACORE_DMTF_SCHEMA names no folder";
    }
    MofProblem problem;
    try {
      ReadMofFile(schema, path, &problem);
    } catch (const TQDAException&) {
      FAIL() << problem.file << ":" << problem.line << ":" << problem.column << ": "
             << problem.reason;
    }
  }

  const Namespace schema = CreateMemoryNamespace("dmtf");
};

TEST_F(MofDmtfSchema, HasAllThatItIsKnownToHave) {
  Counts counts;
  for (const std::string& root : RootsOf(schema)) {
    ++counts.roots;
    Count(ClassOf(schema, root), 1, counts);
  }
  EXPECT_EQ(1631u, counts.classes);
  EXPECT_EQ(643u, counts.associations);
  EXPECT_EQ(107u, counts.abstract);
  EXPECT_EQ(111u, counts.roots);
  EXPECT_EQ(10u, counts.depth);
  EXPECT_EQ(7154u, counts.properties);
  EXPECT_EQ(1424u, counts.redeclared);
  EXPECT_EQ(1257u, counts.references);
  EXPECT_EQ(428u, counts.methods);
  EXPECT_EQ(70u, QualifierDeclsOf(schema).size());
}

TEST_F(MofDmtfSchema, CopyIsTheSameElementByElement) {
  const Namespace copy = CreateMemoryNamespace("copy");
  TCIMCopy::CopyClasses(schema, copy, false);
  ExpectSameSchema(schema, copy);
}

TEST_F(MofDmtfSchema, WrittenReadsBackTheSame) {
  const Namespace again = CreateMemoryNamespace("again");
  ASSERT_TRUE(Read(again, Written(schema)));
  ExpectSameSchema(schema, again);
  ExpectSameOrder(schema, again);
}

}  // namespace
