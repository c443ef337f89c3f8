// The declarations of the qualifiers of DSP0004.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

struct Row {
  const char* name;
  TCIMValue value;
  std::int32_t scope;
  std::int32_t flavor;
};

// 1 class, 2 association, 4 indication, 8 property, 16 reference, 32 method, 64 parameter;
// 1 EnableOverride, 2 ToSubclass, 4 Translatable.
TEST(StandardQualifiers, AreDeclaredAsTheStandardHasThem) {
  const Namespace ns = MakeNamespace();
  const Row rows[] = {
      {"Key", TCIMValue(false), 8 | 16, 2},
      {"Abstract", TCIMValue(false), 1 | 2 | 4, 1},
      {"Association", TCIMValue(false), 2, 2},
      {"Override", Null(Type::kCIMTypeString), 8 | 16 | 32, 1},
      {"Description", Null(Type::kCIMTypeString), 127, 1 | 2 | 4},
      {"ValueMap", Null(Type::kCIMTypeString, true), 8 | 32 | 64, 1 | 2},
      {"Read", TCIMValue(true), 8, 1 | 2},
      {"Min", TCIMValue(0u), 16, 1 | 2},
      {"MaxLen", Null(Type::kCIMTypeUint32), 8 | 32 | 64, 1 | 2},
      {"MaxValue", Null(Type::kCIMTypeSint64), 8 | 32 | 64, 1 | 2},
      {"ArrayType", TCIMValue("Bag"), 8 | 64, 2},
      {"In", TCIMValue(true), 64, 2},
  };
  for (const Row& row : rows) {
    const boost::shared_ptr<ICIMQualifierDecl> decl = ns->GetQualifierDecl(row.name, None());
    EXPECT_EQ(row.name, decl->GetName(None()));
    EXPECT_EQ(row.value, decl->GetValue(None())) << row.name;
    EXPECT_EQ(row.scope, decl->GetFirstAttribute(None())) << row.name;
    EXPECT_EQ(row.flavor, decl->GetSecondAttribute(None())) << row.name;
  }
  EXPECT_EQ(38u, QualifierDeclsOf(ns).size());
}

TEST(StandardQualifiers, LeaveWhatIsDeclaredAlready) {
  const Namespace ns = CreateMemoryNamespace("n");
  ns->CreateQualifierDecl("KEY", TCIMValue(true), 5, 6, None());
  DeclareStandardQualifiers(ns);
  DeclareStandardQualifiers(ns);
  EXPECT_EQ("KEY", ns->GetQualifierDecl("Key", None())->GetName(None()));
  EXPECT_EQ(5, ns->GetQualifierDecl("Key", None())->GetFirstAttribute(None()));
  EXPECT_EQ(38u, QualifierDeclsOf(ns).size());
}

}  // namespace
}  // namespace memory_test
