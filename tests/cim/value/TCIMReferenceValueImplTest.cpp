// References inside values: how they enter, leave and compare.

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMReferenceValueImpl.h>
#include <tests/cim/value/SampleValues.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using cim_test::RecordingNamespace;
using cim_test::TypeFromNumber;
using cim_test::Word;

class ReferenceValue : public testing::Test {
 protected:
  ReferenceValue() : ns(RecordingNamespace::Create()) {
    ns->Declare("Disk").With("ID", TCIMValue::TCIMType::kCIMTypeString);
  }

  TCIMReference Disk(const char* id) {
    TCIMReference reference(ns);
    reference.SetClass(ns->Class("Disk"));
    reference.AddKeyValue("ID", TCIMValue(id));
    return reference;
  }

  const boost::shared_ptr<RecordingNamespace> ns;
};

TEST_F(ReferenceValue, HoldsTheReferenceAndItsClass) {
  TCIMReference disk = Disk("sda");
  const TCIMValue made(disk);
  TCIMValue set("text");
  set.Set(disk);
  for (const TCIMValue* value : {&made, static_cast<const TCIMValue*>(&set)}) {
    EXPECT_TRUE(value->IsReference());
    EXPECT_EQ(15, Word(*value));
    EXPECT_EQ(ns->Class("Disk"), value->GetReferencedClass());
    EXPECT_TRUE(disk == value->operator TCIMReference());
  }
}

TEST_F(ReferenceValue, SetReplacesTheReferencedClassAndKeepsTheMaximum) {
  ns->Declare("Fan");
  TCIMValue value(TypeFromNumber(15), 6);
  value.SetReferencedClass(ns->Class("Fan"));
  TCIMReference disk = Disk("sda");
  value.Set(disk);
  EXPECT_EQ(ns->Class("Disk"), value.GetReferencedClass());
  EXPECT_EQ(6u, value.GetMaxArraySize());
}

TEST_F(ReferenceValue, SourceAndResultAreCopies) {
  ns->Declare("Fan");
  TCIMReference source(ns);
  source.SetClass(ns->Class("Disk"));
  const TCIMValue value(source);
  source.AddKeyValue("ID", TCIMValue("sdb"));
  EXPECT_EQ("Disk", value.ToString());

  TCIMReference out = value;
  out.SetClass(ns->Class("Fan"));
  EXPECT_EQ("Disk", value.ToString());
  EXPECT_EQ(ns->Class("Disk"), value.operator TCIMReference().GetClass());
}

TEST_F(ReferenceValue, TextIsThePathInEveryBase) {
  TCIMReference disk = Disk("a\"b");
  const TCIMValue value(disk);
  for (const unsigned char base : {0, 2, 8, 10, 16}) {
    EXPECT_EQ("Disk.ID=\"a\\\"b\"", value.ToString(base));
  }
  EXPECT_EQ(disk.GetPath(), value.ToString());
}

TEST_F(ReferenceValue, StringOfTheSameTextIsNotEqual) {
  TCIMReference disk = Disk("sda");
  const TCIMValue value(disk);
  EXPECT_FALSE(value == TCIMValue("Disk.ID=\"sda\""));
  EXPECT_FALSE(TCIMValue("Disk.ID=\"sda\"") == value);
  EXPECT_TRUE(TCIMValue("Disk.ID=\"sda\"") < value);
}

TEST_F(ReferenceValue, ComparesAsItsMember) {
  TCIMReference a = Disk("a");
  TCIMReference b = Disk("b");
  TCIMReference labelled = Disk("a");
  labelled.SetNameSpaceName("elsewhere");
  EXPECT_TRUE(TCIMValue(a) == TCIMValue(a));
  EXPECT_FALSE(TCIMValue(a) == TCIMValue(b));
  EXPECT_TRUE(TCIMValue(a) < TCIMValue(b));
  EXPECT_FALSE(TCIMValue(b) < TCIMValue(a));
  EXPECT_FALSE(TCIMValue(a) == TCIMValue(labelled));
  EXPECT_FALSE(TCIMValue(a) < TCIMValue(labelled));
  EXPECT_FALSE(TCIMValue(labelled) < TCIMValue(a));
}

TEST_F(ReferenceValue, WithoutAClassCannotBeBuilt) {
  TCIMReference empty(ns);
  EXPECT_STATUS(kQDAStatusInvalidReference, TCIMValue(empty).IsNull());
}

TEST_F(ReferenceValue, WithoutAClassSetFailsWithTypeAndBodyInPlace) {
  ns->Declare("Fan");
  TCIMValue value(TypeFromNumber(15), 0);
  value.SetReferencedClass(ns->Class("Fan"));
  value.Set("text");
  TCIMReference empty(ns);
  empty.SetNameSpaceName("label");
  EXPECT_STATUS(kQDAStatusInvalidReference, value.Set(empty));
  EXPECT_EQ(15, Word(value));
  EXPECT_FALSE(value.IsNull());
  EXPECT_EQ("label", value.operator TCIMReference().GetNameSpaceName());
  EXPECT_EQ(ns->Class("Fan"), value.GetReferencedClass());
}

TEST_F(ReferenceValue, ConversionNeedsAScalarReference) {
  TCIMReference disk = Disk("sda");
  EXPECT_STATUS(kQDAStatusValueIsNULL, TCIMValue(TypeFromNumber(15), 0).operator TCIMReference());
  EXPECT_STATUS(kQDAStatusTypeMismatch, TCIMValue("Disk").operator TCIMReference());
  EXPECT_STATUS(kQDAStatusTypeMismatch,
                TCIMValue(TypeFromNumber(15), 0, {TCIMValue(disk)}).operator TCIMReference());
}

TEST_F(ReferenceValue, CopyOfTheHandleCarriesTheWholeReference) {
  TCIMReference disk = Disk("sda");
  disk.SetNameSpaceName("label");
  const TCIMValue value(disk);
  const TCIMValue copy(value);
  TCIMReference out = copy;
  EXPECT_EQ("label", out.GetNameSpaceName());
  EXPECT_EQ(ns, out.GetNamespace());
  EXPECT_TRUE(out == disk);
}

TEST_F(ReferenceValue, BodyServesAReferenceAndCopies) {
  const TCIMReferenceValueImpl body(Disk("sda"));
  EXPECT_TRUE(Disk("sda") == body.operator TCIMReference());
  const TCIMReferenceValueImpl copy(body);
  EXPECT_EQ("Disk.ID=\"sda\"", copy.ToString(16));
  TCIMReference same = Disk("sda");
  EXPECT_TRUE(copy == TCIMValue(same));
  EXPECT_FALSE(copy == TCIMValue("Disk.ID=\"sda\""));
  EXPECT_FALSE(copy < TCIMValue("Disk.ID=\"sda\""));
}

TEST_F(ReferenceValue, BodyOfAnEmptyReferenceFailsItsText) {
  const test_support::ScopedEnvironment policy("QDA_BOOST_ASSERT", nullptr);
  const TCIMReferenceValueImpl body{TCIMReference()};
  EXPECT_STATUS(kQDAStatusFail, body.ToString(10));
}

}  // namespace
