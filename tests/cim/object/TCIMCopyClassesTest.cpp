// A whole schema moved from one namespace to another: which classes, in which order, and which
// instances go along.

#include <algorithm>

#include <gtest/gtest.h>

#include <qdacore/cim/object/TCIMCopy.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <tests/cim/object/ModelNamespace.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using namespace cim_model;
using test_support::ThrownStatus;

typedef TCIMValue::TCIMType Type;
typedef std::vector<std::string> Lines;

const char kProduct[] = "ZRVSG_QDAProduct";

TCIMValue Null(Type::ECIMType type) { return TCIMValue(Type(type), 0); }

Lines Only(const Lines& calls, const std::string& word) {
  Lines found;
  for (const std::string& call : calls) {
    if (call.find(word) != std::string::npos) {
      found.push_back(call);
    }
  }
  return found;
}

struct TCIMCopyClasses : testing::Test {
  TCIMCopyClasses()
      : source(Namespace::Create(calls, "S")), target(Namespace::Create(calls, "T")) {}

  void Copy(bool skipProductInstances = false) {
    calls.made.clear();
    TCIMCopy::CopyClasses(source, target, skipProductInstances);
  }

  Calls calls;
  Pointer<Namespace> source;
  Pointer<Namespace> target;
};

TEST_F(TCIMCopyClasses, EmptyNamespaceCreatesNothing) {
  Copy();
  EXPECT_EQ((Lines{"S: EnumerateQualifierDecls", "S: EnumerateClasses", "S: EnumerateClasses"}),
            calls.made);
}

TEST_F(TCIMCopyClasses, QualifierDeclarationsComeFirstWithTheirAttributesInPlace) {
  source->DeclareQualifier("Key", TCIMValue(false), 3, -4);
  source->DeclareQualifier("Values", TCIMValue(Type(Type::kCIMTypeString), 5), 0x7FFFFFFF, 1);
  source->Declare("Disk");
  Copy();
  EXPECT_EQ(
      (Lines{"S: EnumerateQualifierDecls", "S[Key]: GetSecondAttribute",
             "S[Key]: GetFirstAttribute", "S[Key]: GetValue", "S[Key]: GetName",
             "T: CreateQualifierDecl Key 3 -4", "T[Key]: Commit", "S[Values]: GetSecondAttribute",
             "S[Values]: GetFirstAttribute", "S[Values]: GetValue", "S[Values]: GetName",
             "T: CreateQualifierDecl Values 2147483647 1", "T[Values]: Commit",
             "S: EnumerateClasses"}),
      Lines(calls.made.begin(), calls.made.begin() + 14));
  ASSERT_EQ(2u, target->qualifierDecls.size());
  EXPECT_EQ(TCIMValue(false), target->qualifierDecls[0]->value);
  EXPECT_EQ(TCIMValue(Type(Type::kCIMTypeString), 5), target->qualifierDecls[1]->value);
}

// An array of references in a declaration is the one value that would show a copy.
TEST_F(TCIMCopyClasses, DeclarationsValueIsHandedOnAsItStands) {
  source->Declare("Disk");
  TCIMValue reference = Null(Type::kCIMTypeReference);
  reference.SetReferencedClass(source->Find("Disk"));
  source->DeclareQualifier("Odd", reference);
  Copy();
  ASSERT_EQ(1u, target->qualifierDecls.size());
  EXPECT_EQ(source->Find("Disk"), target->qualifierDecls[0]->value.GetReferencedClass());
}

TEST_F(TCIMCopyClasses, WalksTheTreeTwiceAssociationsLast) {
  // Uses stands before what it refers to, and has a subclass that is no association.
  source->Declare("Uses").association = true;
  source->Declare("UsesMuch", "Uses").association = true;
  source->Declare("Device");
  source->Declare("Disk", "Device");
  source->Declare("Tape", "Device");
  source->Declare("SolidDisk", "Disk");
  Copy();
  EXPECT_EQ((Lines{"T: CreateClass Device", "T: CreateClass Disk under T/Device",
                   "T: CreateClass SolidDisk under T/Disk", "T: CreateClass Tape under T/Device",
                   "T: CreateClass Uses", "T: CreateClass UsesMuch under T/Uses"}),
            Only(calls.made, "CreateClass"));
  EXPECT_EQ(
      (Lines{"S: EnumerateClasses", "S/Uses: IsAssociation", "S/Uses: EnumerateSubClasses deep",
             "S/UsesMuch: IsAssociation", "S/Device: IsAssociation"}),
      Lines(calls.made.begin() + 1, calls.made.begin() + 6));
}

TEST_F(TCIMCopyClasses, OneClassAsksInThisOrder) {
  source->Declare("Disk").PutInstance();
  Copy();
  EXPECT_EQ((Lines{
                "S: EnumerateQualifierDecls",
                "S: EnumerateClasses",
                "S/Disk: IsAssociation",
                "S/Disk: IsRootClass",
                "S/Disk: GetName",
                "T: CreateClass Disk",
                "S/Disk: EnumerateQualifiers",
                "S/Disk: EnumeratePropertyDecls",
                "S/Disk: EnumerateStaticProperties",
                "S/Disk: EnumerateMethodDecls",
                "T/Disk: Commit",
                "S/Disk: GetQualifier PLUGINNAME",
                "S/Disk: IsAbstract",
                "S/Disk: EnumerateInstances",
                "S/Disk#1: GetClass",
                "S/Disk: GetName",
                "S/Disk: EnumerateSubClasses deep",
                "S: EnumerateClasses",
                "S/Disk: IsAssociation",
                "S/Disk: EnumerateSubClasses deep",
            }),
            calls.made);
}

struct ProductSchema : TCIMCopyClasses {
  ProductSchema() {
    source->Declare(kProduct).Declare("Version", Null(Type::kCIMTypeString));
    source->Find(kProduct)->PutInstance().Put("Version", TCIMValue("1.0"));
    source->Find(kProduct)->PutInstance().Put("Version", TCIMValue("2.0"));
    source->Declare("ZRVSG_QDAProductPart", kProduct).PutInstance().Put("Version", TCIMValue("3"));
    source->Declare("Disk").PutInstance();
  }

  std::size_t CopiedInstances() const {
    std::size_t count = 0;
    for (const Pointer<Class>& cls : target->classes) {
      count += cls->instances.size();
    }
    return count;
  }
};

typedef ProductSchema TCIMCopyClassesProduct;

TEST_F(TCIMCopyClassesProduct, OnlyTheRecordsOfTheVeryClassGoAlong) {
  Copy();
  EXPECT_EQ(2u, CopiedInstances());
  ASSERT_EQ(2u, target->Find(kProduct)->instances.size());
  EXPECT_EQ("1.0", target->Find(kProduct)->instances[0]->properties[0]->value.ToString());
  EXPECT_EQ("2.0", target->Find(kProduct)->instances[1]->properties[0]->value.ToString());
}

TEST_F(TCIMCopyClassesProduct, SkippedOnRequestAfterTheSameQuestions) {
  Copy();
  Lines wanted = Only(calls.made, "S/");
  target = Namespace::Create(calls, "T");
  Copy(true);
  EXPECT_EQ(0u, CopiedInstances());
  EXPECT_EQ(4u, target->classes.size() + 1);
  EXPECT_EQ(Only(wanted, "EnumerateInstances"), Only(calls.made, "EnumerateInstances"));
}

TEST_F(TCIMCopyClassesProduct, AbstractClassKeepsItsInstances) {
  source->Find(kProduct)->abstract = true;
  Copy();
  EXPECT_EQ(0u, CopiedInstances());
  EXPECT_EQ(Lines(), Only(calls.made, "S/ZRVSG_QDAProduct: EnumerateInstances"));
}

TEST_F(TCIMCopyClassesProduct, PluginNameQualifierKeepsTheInstancesBack) {
  const Pointer<QualifierDecl> pluginName =
      source->DeclareQualifier("PLUGINNAME", Null(Type::kCIMTypeString));
  source->Find(kProduct)->Put(pluginName, TCIMValue("disk"));
  Copy();
  EXPECT_TRUE(target->Find(kProduct)->committed);
  EXPECT_EQ(0u, CopiedInstances());
  EXPECT_EQ(Lines(), Only(calls.made, "S/ZRVSG_QDAProduct: EnumerateInstances"));
}

TEST_F(TCIMCopyClassesProduct, AssociationIsNeitherCopiedNorReadInTheFirstWalk) {
  source->Find(kProduct)->association = true;
  source->Find("ZRVSG_QDAProductPart")->association = true;
  Copy();
  const Lines::const_iterator second =
      std::find(calls.made.begin() + 2, calls.made.end(), "S: EnumerateClasses");
  const Lines first(calls.made.cbegin(), second);
  EXPECT_EQ(Lines(), Only(first, "CreateClass ZRVSG"));
  EXPECT_EQ(Lines(), Only(first, "S/ZRVSG_QDAProduct: EnumerateInstances"));
  EXPECT_EQ(2u, CopiedInstances());
}

// An association under a class that is none still comes, in its own walk; the reverse cannot be.
TEST_F(TCIMCopyClasses, AssociationBelowAnOrdinaryClassComesInTheSecondWalk) {
  source->Declare("Plain");
  source->Declare("Uses", "Plain").association = true;
  Copy();
  EXPECT_EQ((Lines{"T: CreateClass Plain", "T: CreateClass Uses under T/Plain"}),
            Only(calls.made, "CreateClass"));
}

TEST_F(TCIMCopyClasses, OrdinaryClassBelowAnAssociationLacksItsSuperclass) {
  source->Declare("Uses").association = true;
  source->Declare("Plain", "Uses");
  EXPECT_STATUS(kQDAStatusNotFound, Copy());
  EXPECT_EQ("T: GetClass Uses", calls.made.back());
}

TEST_F(TCIMCopyClasses, ReferenceToAnAssociationThatIsNotThereYetIsNotFound) {
  source->Declare("Uses").association = true;
  TCIMValue reference = Null(Type::kCIMTypeReference);
  reference.SetReferencedClass(source->Find("Uses"));
  source->Declare("Disk").Declare("User", reference);
  EXPECT_STATUS(kQDAStatusNotFound, Copy());
}

TEST_F(TCIMCopyClasses, ReferencesPointAtTheTargetsClasses) {
  source->Declare("Disk");
  TCIMValue reference = Null(Type::kCIMTypeReference);
  reference.SetReferencedClass(source->Find("Disk"));
  source->Declare("Uses").Declare("Disk", reference);
  source->Find("Uses")->association = true;
  Copy();
  EXPECT_EQ("T/Uses.Disk = reference to T/Disk null", target->Content().back());
}

// What was committed stays, nothing is taken back, nothing is kept alive, and the status is the
// provider's: at every single call of a copy.
TEST_F(TCIMCopyClassesProduct, FailureAtAnyCallLeavesWhatWasDone) {
  const Pointer<QualifierDecl> key = source->DeclareQualifier("Key", TCIMValue(false));
  source->Find(kProduct)->declarations[0]->Put(key, TCIMValue(true));
  source->Find("Disk")->DeclareMethod("Reset", Type(Type::kCIMTypeUint32));
  TCIMValue toDisk = Null(Type::kCIMTypeReference);
  toDisk.SetReferencedClass(source->Find("Disk"));
  source->Declare("Uses").Declare("Disk", toDisk).Put(key, TCIMValue(true));
  source->Find("Uses")->association = true;
  TCIMReference disk(source);
  disk.SetClassName("Disk");
  source->Find("Uses")->PutStatic("Disk", TCIMValue(disk));
  Copy();
  const Lines clean = calls.made;
  ASSERT_LT(100u, clean.size());
  target.reset();
  const int alive = calls.alive;

  for (std::size_t n = 1; n <= clean.size(); ++n) {
    SCOPED_TRACE(clean[n - 1]);
    target = Namespace::Create(calls, "T");
    calls.failAt = n;
    const bool ignored = clean[n - 1].find("GetQualifier OVERRIDE") != std::string::npos;
    EXPECT_EQ(ignored ? "nothing" : "kQDAStatusConnectionFailed", ThrownStatus([&] { Copy(); }));
    calls.failAt = 0;
    if (!ignored) {
      EXPECT_EQ(Lines(clean.begin(), clean.begin() + n), calls.made);
      const Lines done(clean.begin(), clean.begin() + n - 1);
      for (const Pointer<Class>& cls : target->classes) {
        EXPECT_EQ(Only(done, cls->label + ": Commit").size(), cls->committed ? 1u : 0u);
      }
      EXPECT_EQ(Only(done, "CreateClass").size(), target->classes.size());
      EXPECT_EQ(Only(done, "CreateQualifierDecl").size(), target->qualifierDecls.size());
      EXPECT_EQ(Only(done, "AddInstance").size(), CopiedInstances());
    }
    target.reset();
    EXPECT_EQ(alive, calls.alive);
  }
}

}  // namespace
