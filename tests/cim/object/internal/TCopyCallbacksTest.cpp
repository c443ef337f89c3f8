// The callbacks of a copy by themselves: what they hold, and what they meet when that has gone.

#include <qdacore/cim/object/internal/TCopySchemaCallbacks.h>
#include <qdacore/cim/object/internal/TCopyValueCallbacks.h>

#include <functional>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TBoostAssertException.h>
#include <tests/cim/object/ModelNamespace.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace cim_model;
using test_support::ScopedEnvironment;

typedef TCIMValue::TCIMType Type;

// Fields and nothing else: no table of virtual operations, no namespace held twice.
struct Flags {
  boost::weak_ptr<ICIMNamespace> target;
  bool pass;
  bool skip;
};
static_assert(sizeof(TCopyReferenceKeys) ==
                  sizeof(boost::weak_ptr<ICIMNamespace>) + sizeof(TCIMReference*),
              "target and reference");
static_assert(sizeof(TCopyInstanceProperty) ==
                  sizeof(boost::weak_ptr<ICIMNamespace>) + sizeof(boost::shared_ptr<ICIMInstance>),
              "target and instance");
static_assert(sizeof(TCopyQualifierDecls) == sizeof(boost::weak_ptr<ICIMNamespace>), "target");
static_assert(sizeof(TCopyClassTree) == sizeof(Flags), "target, pass, flag");
static_assert(sizeof(TCopyClass) == sizeof(Flags), "target, pass, flag");
static_assert(sizeof(TCopyQualifier) == 2 * sizeof(boost::weak_ptr<ICIMNamespace>),
              "element and target");
static_assert(sizeof(TCopyParameterDecl) == 2 * sizeof(boost::weak_ptr<ICIMNamespace>),
              "method and target");

struct TCopyCallbacks : testing::Test {
  TCopyCallbacks()
      : source(Namespace::Create(calls, "S")),
        other(Namespace::Create(calls, "O")),
        target(Namespace::Create(calls, "T")),
        weak(target) {
    for (const Pointer<Namespace>& ns : {source, other, target}) {
      TCIMValue toDisk(Type(Type::kCIMTypeReference), 0);
      toDisk.SetReferencedClass(ns->Declare("Disk").shared_from_this());
      ns->Find("Disk")->Declare("Next", toDisk);
    }
    TCIMReference disk(source);
    disk.SetClassName("Disk");
    reference = TCIMValue(disk);
  }

  // The target goes, and so does what else is to go; then `call` must fail for it.
  void ExpectFailureWithout(const std::function<bool()>& call) {
    ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
    target.reset();
    EXPECT_TRUE(weak.expired());
    EXPECT_THROW(call(), TBoostAssertException);
  }

  Calls calls;
  const Pointer<Namespace> source;
  // Holds what is under construction, so that the target can go.
  const Pointer<Namespace> other;
  Pointer<Namespace> target;
  const boost::weak_ptr<ICIMNamespace> weak;
  TCIMValue reference;
};

TEST_F(TCopyCallbacks, ReferenceKeysHoldTheTargetWeakly) {
  TCIMReference copy(other);
  copy.SetClassName("Disk");
  TCopyReferenceKeys callback(weak, &copy);
  EXPECT_TRUE(callback(std::make_pair(std::string("Next"), reference)));
  ExpectFailureWithout([&] { return callback(std::make_pair(std::string("Next"), reference)); });
}

TEST_F(TCopyCallbacks, InstancePropertiesHoldTheTargetWeaklyAndTheInstanceFast) {
  Instance& instance = source->Find("Disk")->PutInstance().Put("Next", reference);
  Pointer<ICIMInstance> copy = other->Find("Disk")->CreateInstance(Context());
  const boost::weak_ptr<ICIMInstance> held = copy;
  TCopyInstanceProperty callback(weak, copy);
  copy.reset();
  EXPECT_FALSE(held.expired());
  EXPECT_TRUE(callback(instance.properties[0]));
  ExpectFailureWithout([&] { return callback(instance.properties[0]); });
}

TEST_F(TCopyCallbacks, QualifierDeclsHoldTheTargetWeakly) {
  const Pointer<QualifierDecl> declaration = source->DeclareQualifier("Key", TCIMValue(false));
  TCopyQualifierDecls callback(weak);
  EXPECT_TRUE(callback(declaration));
  ExpectFailureWithout([&] { return callback(declaration); });
}

TEST_F(TCopyCallbacks, ClassesHoldTheTargetWeakly) {
  source->Declare("Tape");
  TCopyClass callback(weak, false, false);
  EXPECT_TRUE(callback(source->Find("Tape")));
  TCopyClassTree tree(weak, false, true);
  EXPECT_TRUE(tree(source->Find("Tape")));
  EXPECT_EQ(3u, target->classes.size());
  TCopyClassTree otherPass(weak, true, true);
  ExpectFailureWithout([&] { return callback(source->Find("Tape")); });
  EXPECT_THROW(
      {
        ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
        tree(source->Find("Tape"));
      },
      TBoostAssertException);
  // The pass comes before anything else.
  EXPECT_TRUE(otherPass(source->Find("Tape")));
}

TEST_F(TCopyCallbacks, QualifiersHoldTargetAndElementWeakly) {
  for (const Pointer<Namespace>& ns : {source, target}) {
    ns->DeclareQualifier("Key", TCIMValue(false));
  }
  source->Find("Disk")->Put(source->qualifierDecls[0], TCIMValue(true));
  const Pointer<ICIMQualifier> qualifier = source->Find("Disk")->qualifiers[0];
  ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
  Pointer<ICIMPropertyDecl> element(
      new PropertyDecl(calls, "new", "new", TCIMValue(Type(Type::kCIMTypeString), 0)));
  TCopyQualifier callback(element, weak);
  EXPECT_TRUE(callback(qualifier));
  element.reset();
  EXPECT_THROW(callback(qualifier), TBoostAssertException);
  ExpectFailureWithout([&] { return callback(qualifier); });
}

TEST_F(TCopyCallbacks, DeclarationsAndStaticValuesHoldTheTargetWeaklyAndTheClassFast) {
  source->Find("Disk")->Declare("Other", source->Find("Disk")->declarations[0]->value);
  source->Find("Disk")->PutStatic("Next", reference);
  const Pointer<ICIMPropertyDecl> declaration = source->Find("Disk")->declarations[1];
  const Pointer<ICIMProperty> value = source->Find("Disk")->statics[0];
  TCopyPropertyDecl copyDeclaration(other->Find("Disk"), weak);
  TCopyStaticProperty copyStatic(other->Find("Disk"), weak);
  EXPECT_LT(2, other->Find("Disk").use_count() - 1);
  EXPECT_TRUE(copyDeclaration(declaration));
  EXPECT_TRUE(copyStatic(value));
  other->Find("Disk")->declarations.pop_back();
  ExpectFailureWithout([&] { return copyDeclaration(declaration); });
  ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
  EXPECT_THROW(copyStatic(value), TBoostAssertException);
}

TEST_F(TCopyCallbacks, ParametersHoldTheMethodWeakly) {
  MethodDecl& method = source->Find("Disk")->DeclareMethod("Reset", Type(Type::kCIMTypeUint8));
  const Pointer<ICIMParameterDecl> parameter =
      method.AddParameterDecl("Mode", Type(Type::kCIMTypeUint8), Context());
  Pointer<ICIMMethodDecl> copy(new MethodDecl(calls, "new", "new", Type(Type::kCIMTypeUint8)));
  TCopyParameterDecl callback(copy, weak);
  EXPECT_TRUE(callback(parameter));
  copy.reset();
  ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
  EXPECT_THROW(callback(parameter), TBoostAssertException);
}

}  // namespace
