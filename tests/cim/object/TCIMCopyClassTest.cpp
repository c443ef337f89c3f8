// One class moved from one namespace to another: what is asked, in which order, and what comes
// out.

#include <algorithm>

#include <gtest/gtest.h>

#include <qdacore/cim/object/TCIMCopy.h>
#include <tests/cim/object/ModelNamespace.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using namespace cim_model;
using test_support::ThrownStatus;

typedef TCIMValue::TCIMType Type;
typedef std::vector<std::string> Lines;

TCIMValue Null(Type::ECIMType type) { return TCIMValue(Type(type), 0); }

// A subclass with everything that a class can have, and a target that has what it needs.
struct RichClass : testing::Test {
  RichClass() : source(Namespace::Create(calls, "S")), target(Namespace::Create(calls, "T")) {
    for (const Pointer<Namespace>& ns : {source, target}) {
      ns->DeclareQualifier("Key", TCIMValue(false));
      ns->DeclareQualifier("OVERRIDE", Null(Type::kCIMTypeString));
      ns->Declare("Device").Declare("ID", TCIMValue("none"));
      ns->Find("Device")->Declare("Size", TCIMValue(0u));
    }
    Class& disk = source->Declare("Disk", "Device");
    disk.Put(Decl("Key"), TCIMValue(true));
    disk.Declare("Size", TCIMValue(7u)).Put(Decl("OVERRIDE"), TCIMValue("Size"));
    disk.Declare("Bus", Null(Type::kCIMTypeString)).Put(Decl("Key"), TCIMValue(true));
    disk.PutStatic("Bus", Null(Type::kCIMTypeString)).PutStatic("Size", TCIMValue(9u));
    MethodDecl& reset = disk.DeclareMethod("Reset", Type(Type::kCIMTypeUint32));
    reset.parameters.push_back(Pointer<ParameterDecl>(
        new ParameterDecl(calls, "S/Disk.Reset(Mode)", "Mode", Type(Type::kCIMTypeUint8))));
    reset.parameters[0]->Put(Decl("Key"), TCIMValue(false));
    reset.Put(Decl("Key"), TCIMValue(true));
    source->showsInherited = true;
    calls.made.clear();
  }

  Pointer<QualifierDecl> Decl(const std::string& name) const {
    for (const Pointer<QualifierDecl>& declaration : source->qualifierDecls) {
      if (declaration->name == name) {
        return declaration;
      }
    }
    return Pointer<QualifierDecl>();
  }

  Calls calls;
  Pointer<Namespace> source;
  Pointer<Namespace> target;
};

// A qualifier of `element` goes to `copy`.
void Qualify(Lines& lines, const std::string& element, const std::string& copy,
             const std::string& name) {
  for (const std::string& call :
       {"S/" + element + "[" + name + "]: GetQualifierDecl", "S[" + name + "]: GetName",
        "T: GetQualifierDecl " + name, "S/" + element + "[" + name + "]: GetValue",
        "T/" + copy + ": AddQualifier T[" + name + "]", "T/" + copy + "[" + name + "]: Commit"}) {
    lines.push_back(call);
  }
}

void Append(Lines& lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

Lines CallsOfTheRichClass() {
  Lines calls = {
      "S/Disk: IsRootClass",        "S/Disk: GetSuperClass", "S/Device: GetName",
      "T: GetClass Device",         "S/Disk: GetName",       "T: CreateClass Disk under T/Device",
      "S/Disk: EnumerateQualifiers"};
  Qualify(calls, "Disk", "Disk", "Key");
  Append(calls, {"S/Disk: EnumeratePropertyDecls",
                 // Merely inherited.
                 "S/Device.ID: GetName", "T/Disk: GetPropertyDecl ID",
                 "S/Device.ID: GetQualifier OVERRIDE",
                 // Inherited, and made again.
                 "S/Disk.Size: GetName", "T/Disk: GetPropertyDecl Size",
                 "S/Disk.Size: GetQualifier OVERRIDE", "S/Disk.Size: GetDefaultValue",
                 "T/Disk: AddPropertyDecl Size", "S/Disk.Size: EnumerateQualifiers"});
  Qualify(calls, "Disk.Size", "Disk.Size", "OVERRIDE");
  Append(calls,
         {"T/Disk.Size: Commit",
          // Its own.
          "S/Disk.Bus: GetName", "T/Disk: GetPropertyDecl Bus", "S/Disk.Bus: GetDefaultValue",
          "T/Disk: AddPropertyDecl Bus", "S/Disk.Bus: EnumerateQualifiers"});
  Qualify(calls, "Disk.Bus", "Disk.Bus", "Key");
  Append(
      calls,
      {"T/Disk.Bus: Commit", "S/Disk: EnumerateStaticProperties", "S/Disk!Bus: GetValue",
       "S/Disk!Bus: GetPropertyDecl", "S/Disk.Bus: GetName", "T/Disk: SetStaticProperty Bus",
       "S/Disk!Size: GetValue", "S/Disk!Size: GetPropertyDecl", "S/Disk.Size: GetName",
       "T/Disk: SetStaticProperty Size", "S/Disk: EnumerateMethodDecls", "S/Disk.Reset(): GetName",
       "S/Disk.Reset(): GetType", "T/Disk: AddMethodDecl Reset uint32",
       "S/Disk.Reset(): EnumerateParameterDecls", "S/Disk.Reset(Mode): GetName",
       "S/Disk.Reset(Mode): GetType", "T/Disk.Reset(): AddParameterDecl Mode uint8",
       "S/Disk.Reset(Mode): EnumerateQualifiers"});
  Qualify(calls, "Disk.Reset(Mode)", "Disk.Reset(Mode)", "Key");
  Append(calls, {"T/Disk.Reset(Mode): Commit", "S/Disk.Reset(): EnumerateQualifiers"});
  Qualify(calls, "Disk.Reset()", "Disk.Reset()", "Key");
  // No Commit of the method.
  Append(calls, {"T/Disk: Commit"});
  return calls;
}

const Lines kCopiedClass = {
    "T/Disk under T/Device",    "T/Disk[Key] by T[Key] = boolean true",
    "T/Disk.Size = uint32 7",   "T/Disk.Size[OVERRIDE] by T[OVERRIDE] = string Size",
    "T/Disk.Bus = string null", "T/Disk.Bus[Key] by T[Key] = boolean true",
    "T/Disk!Bus = string null", "T/Disk!Size = uint32 9",
    "T/Disk.Reset() uint32",    "T/Disk.Reset()[Key] by T[Key] = boolean true",
    "T/Disk.Reset(Mode) uint8", "T/Disk.Reset(Mode)[Key] by T[Key] = boolean false",
};

typedef RichClass TCIMCopyClass;

TEST_F(TCIMCopyClass, AsksInThisOrder) {
  TCIMCopy::CopyClass(source->Find("Disk"), target);
  EXPECT_EQ(CallsOfTheRichClass(), calls.made);
}

TEST_F(TCIMCopyClass, MakesAllOfTheClass) {
  const std::size_t before = target->Content().size();
  TCIMCopy::CopyClass(source->Find("Disk"), target);
  const Lines content = target->Content();
  EXPECT_EQ(kCopiedClass, Lines(content.begin() + before, content.end()));
}

TEST_F(TCIMCopyClass, SourceThatHidesInheritedDeclarationsGivesTheSame) {
  source->showsInherited = false;
  const std::size_t before = target->Content().size();
  TCIMCopy::CopyClass(source->Find("Disk"), target);
  const Lines content = target->Content();
  EXPECT_EQ(kCopiedClass, Lines(content.begin() + before, content.end()));
}

TEST_F(TCIMCopyClass, RootClassIsNotAskedForASuperclass) {
  source->Declare("Lone");
  TCIMCopy::CopyClass(source->Find("Lone"), target);
  EXPECT_EQ((Lines{"S/Lone: IsRootClass", "S/Lone: GetName", "T: CreateClass Lone",
                   "S/Lone: EnumerateQualifiers", "S/Lone: EnumeratePropertyDecls",
                   "S/Lone: EnumerateStaticProperties", "S/Lone: EnumerateMethodDecls",
                   "T/Lone: Commit"}),
            calls.made);
}

TEST_F(TCIMCopyClass, MissingSuperclassIsNotFoundBeforeAnythingIsMade) {
  target->classes.clear();
  EXPECT_STATUS(kQDAStatusNotFound, TCIMCopy::CopyClass(source->Find("Disk"), target));
  EXPECT_EQ("T: GetClass Device", calls.made.back());
  EXPECT_TRUE(target->classes.empty());
}

TEST_F(TCIMCopyClass, MissingQualifierDeclarationIsNotFound) {
  target->qualifierDecls.clear();
  EXPECT_STATUS(kQDAStatusNotFound, TCIMCopy::CopyClass(source->Find("Disk"), target));
  EXPECT_EQ("T: GetQualifierDecl Key", calls.made.back());
  // It stays, unfinished.
  EXPECT_EQ("T/Disk under T/Device ?", target->Content().back());
}

// Where a failure is looked at: in the question for an inherited declaration only
// kQDAStatusNotFound means "new", in the one for OVERRIDE every failure means "inherited".
TEST_F(TCIMCopyClass, FailureAtAnyCallComesThroughButForTheQuestionForOverride) {
  const Lines clean = CallsOfTheRichClass();
  for (std::size_t n = 1; n <= clean.size(); ++n) {
    SCOPED_TRACE(clean[n - 1]);
    while (target->Find("Disk")) {
      target->classes.pop_back();
    }
    calls.made.clear();
    calls.failAt = n;
    const int alive = calls.alive;
    const bool ignored = clean[n - 1].find("GetQualifier OVERRIDE") != std::string::npos;
    const std::string status =
        ThrownStatus([&] { TCIMCopy::CopyClass(source->Find("Disk"), target); });
    calls.failAt = 0;
    if (ignored) {
      EXPECT_EQ("nothing", status);
      EXPECT_TRUE(target->Find("Disk")->committed);
    } else {
      EXPECT_EQ("kQDAStatusConnectionFailed", status);
      EXPECT_EQ(Lines(clean.begin(), clean.begin() + n), calls.made);
      EXPECT_FALSE(target->Find("Disk") && target->Find("Disk")->committed);
    }
    while (target->Find("Disk")) {
      target->classes.pop_back();
    }
    EXPECT_EQ(alive, calls.alive);
  }
}

TEST_F(TCIMCopyClass, OverrideThatCannotBeAskedForIsLeftToTheInheritedDeclaration) {
  const Lines clean = CallsOfTheRichClass();
  calls.failAt = 1 + std::find(clean.begin(), clean.end(), "S/Disk.Size: GetQualifier OVERRIDE") -
                 clean.begin();
  TCIMCopy::CopyClass(source->Find("Disk"), target);
  ASSERT_EQ(1u, target->Find("Disk")->declarations.size());
  EXPECT_EQ("Bus", target->Find("Disk")->declarations[0]->name);
}

}  // namespace
