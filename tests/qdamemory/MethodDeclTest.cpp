// Methods and their parameters.

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

typedef boost::shared_ptr<ICIMMethodDecl> Method;

TEST(MemoryMethodDecl, GivesWhatItWasMadeWith) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  const Method start = cls->AddMethodDecl("StartService", Type::kCIMTypeUint32, None());
  const Method stop = cls->AddMethodDecl("StopService", Type::kCIMTypeBoolean, None());
  const boost::shared_ptr<ICIMParameterDecl> when =
      stop->AddParameterDecl("When", Type::kCIMTypeDateTime, None());
  const boost::shared_ptr<ICIMParameterDecl> why = stop->AddParameterDecl(
      "Why", static_cast<Type::ECIMType>(Type::kCIMTypeString | Type::kCIMTypeArrayFlag), None());
  when->Commit(None());
  EXPECT_EQ("StartService", start->GetName(None()));
  EXPECT_EQ(Type::kCIMTypeUint32, start->GetType(None()));
  EXPECT_EQ("When", when->GetName(None()));
  EXPECT_EQ(Type::kCIMTypeDateTime, when->GetType(None()));
  EXPECT_EQ(29, why->GetType(None()));
  EXPECT_THAT(MethodsOf(cls), ElementsAre("StartService", "StopService"));
  EXPECT_THAT(ParametersOf(*start), IsEmpty());
  EXPECT_THAT(ParametersOf(*stop), ElementsAre("When", "Why"));
}

TEST(MemoryMethodDecl, TakenNamesAlreadyExist) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  const Method method = cls->AddMethodDecl("Start", Type::kCIMTypeUint32, None());
  method->AddParameterDecl("When", Type::kCIMTypeUint32, None());
  EXPECT_STATUS(kQDAStatusAlreadyExists, cls->AddMethodDecl("START", Type::kCIMTypeUint32, None()));
  EXPECT_STATUS(kQDAStatusAlreadyExists,
                method->AddParameterDecl("when", Type::kCIMTypeString, None()));
  // Methods, properties and parameters have names of their own.
  Add(cls, "Start", TCIMValue(1));
  method->AddParameterDecl("Start", Type::kCIMTypeString, None());
  EXPECT_THAT(ParametersOf(*method), ElementsAre("When", "Start"));
}

TEST(MemoryMethodDecl, OverridingNeedsTheSameResult) {
  const Namespace ns = MakeNamespace();
  const Class base = Open(ns, "Base");
  base->AddMethodDecl("Start", Type::kCIMTypeUint32, None());
  base->Commit(None());
  const Class sub = Open(ns, "Sub", Make(ns, "Mid", base));
  EXPECT_STATUS(kQDAStatusTypeMismatch, sub->AddMethodDecl("start", Type::kCIMTypeSint32, None()));
  sub->AddMethodDecl("start", Type::kCIMTypeUint32, None());
  EXPECT_THAT(MethodsOf(base), ElementsAre("Start"));
  EXPECT_THAT(MethodsOf(sub), ElementsAre("start"));
}

TEST(MemoryMethodDecl, StaysAliveThroughAWeakPointerAsLongAsItsClass) {
  const Namespace ns = MakeNamespace();
  Class cls = Open(ns, "Cls");
  const boost::weak_ptr<ICIMMethodDecl> method =
      cls->AddMethodDecl("Start", Type::kCIMTypeUint32, None());
  ASSERT_TRUE(method.lock());
  EXPECT_EQ("Start", method.lock()->GetName(None()));
}

TEST(MemoryMethodDecl, ParameterIsClosedByItsOwnCommit) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  const Method method = cls->AddMethodDecl("Start", Type::kCIMTypeUint32, None());
  const boost::shared_ptr<ICIMParameterDecl> parameter =
      method->AddParameterDecl("When", Type::kCIMTypeUint32, None());
  Qualify(cls, *parameter, "In", TCIMValue(true));
  parameter->Commit(None());
  EXPECT_STATUS(kQDAStatusInvalidOpSequence, Qualify(cls, *parameter, "Out", TCIMValue(true)));
  EXPECT_THAT(QualifiersOf(*parameter), ElementsAre("In"));
}

TEST(MemoryMethodDecl, EnumerationsStopWhereTheyAreTold) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  const Method method = cls->AddMethodDecl("A", Type::kCIMTypeUint32, None());
  cls->AddMethodDecl("B", Type::kCIMTypeUint32, None());
  method->AddParameterDecl("X", Type::kCIMTypeUint32, None());
  method->AddParameterDecl("Y", Type::kCIMTypeUint32, None());
  int methods = 0;
  boost::function<bool(Method)> visitMethod = [&](Method) { return ++methods < 1; };
  cls->EnumerateMethodDecls(visitMethod, None());
  EXPECT_EQ(1, methods);
  int parameters = 0;
  boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)> visitParameter =
      [&](boost::shared_ptr<ICIMParameterDecl>) { return ++parameters < 1; };
  method->EnumerateParameterDecls(visitParameter, None());
  EXPECT_EQ(1, parameters);
}

}  // namespace
}  // namespace memory_test
