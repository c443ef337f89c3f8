// Values and instances moved from one namespace to another: what is asked, in which order, and
// what comes out.

#include <algorithm>

#include <gtest/gtest.h>

#include <qdacore/cim/object/TCIMCopy.h>
#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TBoostAssertException.h>
#include <tests/cim/object/ModelNamespace.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>
#include <tests/support/ScopedEnvironment.h>

namespace {

using namespace NZRVQDA20;
using namespace cim_model;
using test_support::LogCapture;
using test_support::ScopedEnvironment;
using test_support::ThrownStatus;

typedef TCIMValue::TCIMType Type;
typedef std::vector<std::string> Lines;

const char kLogLine[] = "[Debug] TCIMCopy::CopyValue - Attempting to set referenced class: ";

TCIMValue Null(Type::ECIMType type) { return TCIMValue(Type(type), 0); }

TCIMValue NullReferenceTo(const Pointer<ICIMClass>& cls) {
  TCIMValue value = Null(Type::kCIMTypeReference);
  value.SetReferencedClass(cls);
  return value;
}

TCIMValue ValueOf(TCIMReference reference) { return TCIMValue(reference); }

// Two namespaces that both have Disk (DeviceID), Link (Disk, Slot; both keys) and Deep (Link).
struct TwoNamespaces : testing::Test {
  TwoNamespaces() : source(Namespace::Create(calls, "S")), target(Namespace::Create(calls, "T")) {
    for (const Pointer<Namespace>& ns : {source, target}) {
      ns->Declare("Disk").Declare("DeviceID", Null(Type::kCIMTypeString));
      ns->Declare("Link").Declare("Disk", NullReferenceTo(ns->Find("Disk")));
      ns->Find("Link")->Declare("Slot", Null(Type::kCIMTypeUint8));
      ns->Declare("Deep").Declare("Link", NullReferenceTo(ns->Find("Link")));
    }
  }

  // As the source has them.
  TCIMReference Disk(const char* id) {
    TCIMReference disk(source);
    disk.SetClassName("Disk");
    disk.AddKeyValue("DeviceID", TCIMValue(id));
    disk.SetNameSpaceName("root/source");
    return disk;
  }
  TCIMReference Link(const char* id, unsigned char slot) {
    TCIMReference link(source);
    link.SetClassName("Link");
    link.AddKeyValue("Disk", ValueOf(Disk(id)));
    link.AddKeyValue("Slot", TCIMValue(slot));
    return link;
  }

  TCIMValue Copy(const TCIMValue& value) {
    calls.made.clear();
    return TCIMCopy::CopyValue(value, target);
  }

  Calls calls;
  Pointer<Namespace> source;
  Pointer<Namespace> target;
};

typedef TwoNamespaces TCIMCopyValue;

TEST_F(TCIMCopyValue, AllButReferencesAreCopiedWithoutAskingAnybody) {
  const std::vector<TCIMValue> values = {
      TCIMValue(true),
      TCIMValue(static_cast<unsigned char>(1)),
      TCIMValue(static_cast<signed char>(-1)),
      TCIMValue(static_cast<unsigned short>(2)),
      TCIMValue(static_cast<short>(-2)),
      TCIMValue(3u),
      TCIMValue(-3),
      TCIMValue(4ull),
      TCIMValue(-4ll),
      TCIMValue(1.5f),
      TCIMValue(2.5),
      TCIMValue("text"),
      TCIMValue(TCIMDateTime("20261121120000.000000+000")),
      Null(Type::kCIMTypeString),
      TCIMValue(Type(Type::kCIMTypeUint32), 7),
      TCIMValue(Type(Type::kCIMTypeSint32), 3, {TCIMValue(1), TCIMValue(2)}),
      TCIMValue(Type(Type::kCIMTypeString), 0, {TCIMValue("a")}),
  };
  LogCapture log;
  for (const TCIMValue& value : values) {
    SCOPED_TRACE(value.GetType().ToString());
    const TCIMValue copy = Copy(value);
    EXPECT_EQ(value, copy);
    EXPECT_EQ(value.GetType(), copy.GetType());
    EXPECT_EQ(value.GetMaxArraySize(), copy.GetMaxArraySize());
    EXPECT_EQ(Lines(), calls.made);
    // The target is not needed at all.
    EXPECT_EQ(value, TCIMCopy::CopyValue(value, Pointer<ICIMNamespace>()));
  }
  EXPECT_EQ(Lines(), log.Lines());
}

TEST_F(TCIMCopyValue, Char16KeepsItsUnit) {
  const TCIMValue copy = Copy(TCIMValue(TCIMChar16(static_cast<unsigned short>(0x41))));
  EXPECT_EQ(Type::kCIMTypeChar16, copy.GetType());
  EXPECT_EQ("65", copy.ToString());
}

TEST_F(TCIMCopyValue, ReferenceIsRePointedKeyByKey) {
  const TCIMValue value = ValueOf(Disk("sda"));
  LogCapture log;
  const TCIMValue copy = Copy(value);
  EXPECT_EQ((Lines{"S/Disk: GetName", "T: GetClass Disk", "S/Disk: GetName", "T: GetClass Disk",
                   "T/Disk: GetPropertyDecl DeviceID", "T/Disk.DeviceID: GetType"}),
            calls.made);
  EXPECT_EQ(Lines{std::string(kLogLine) + "Disk"}, log.Lines());

  TCIMReference moved = copy;
  EXPECT_EQ(target->Find("Disk"), copy.GetReferencedClass());
  EXPECT_EQ(target->Find("Disk"), moved.GetClass());
  EXPECT_EQ(target, moved.GetNamespace());
  EXPECT_EQ("Disk.DeviceID=\"sda\"", moved.GetPath());
  // The label of the source's namespace is left behind.
  EXPECT_EQ("", moved.GetNameSpaceName());
  EXPECT_EQ(0u, copy.GetMaxArraySize());
}

TEST_F(TCIMCopyValue, SourceStaysAsItWas) {
  const TCIMValue value = ValueOf(Disk("sda"));
  Copy(value);
  TCIMReference reference = value;
  EXPECT_EQ(source, reference.GetNamespace());
  EXPECT_EQ(source->Find("Disk"), reference.GetClass());
  EXPECT_EQ("root/source", reference.GetNameSpaceName());
}

TEST_F(TCIMCopyValue, NullReferenceKeepsItsClassInTheTarget) {
  const TCIMValue value = NullReferenceTo(source->Find("Disk"));
  LogCapture log;
  const TCIMValue copy = Copy(value);
  EXPECT_TRUE(copy.IsNull());
  EXPECT_TRUE(copy.IsReference());
  EXPECT_EQ(target->Find("Disk"), copy.GetReferencedClass());
  EXPECT_EQ((Lines{"S/Disk: GetName", "T: GetClass Disk"}), calls.made);
  EXPECT_EQ(Lines{std::string(kLogLine) + "Disk"}, log.Lines());
}

TEST_F(TCIMCopyValue, ReferenceWithoutKeysIsClassAndNamespaceOnly) {
  TCIMReference disk(source);
  disk.SetClassName("Disk");
  const TCIMValue copy = Copy(ValueOf(disk));
  ASSERT_FALSE(copy.IsNull());
  TCIMReference moved = copy;
  EXPECT_EQ("Disk", moved.GetPath());
  EXPECT_EQ(target, moved.GetNamespace());
  EXPECT_EQ(target->Find("Disk"), moved.GetClass());
}

TEST_F(TCIMCopyValue, ReferenceKeysAreRePointedToAnyDepth) {
  TCIMReference deep(source);
  deep.SetClassName("Deep");
  deep.AddKeyValue("Link", ValueOf(Link("sdb", 3)));
  LogCapture log;
  TCIMReference moved = Copy(ValueOf(deep));
  EXPECT_EQ(target->Find("Deep"), moved.GetClass());
  EXPECT_EQ("Deep.Link=\"Link.Disk=\"Disk.DeviceID=\"sdb\"\",Slot=\"3\"\"", moved.GetPath());
  EXPECT_EQ((Lines{std::string(kLogLine) + "Deep", std::string(kLogLine) + "Link",
                   std::string(kLogLine) + "Disk"}),
            log.Lines());

  // What lies inside: the reference in the one key of each.
  std::vector<TCIMReference> inner;
  const auto collect = [&inner](std::pair<std::string, TCIMValue> key) {
    if (key.second.IsReference()) {
      inner.push_back(key.second);
    }
    return true;
  };
  moved.EnumerateKeyBindings(collect);
  ASSERT_EQ(1u, inner.size());
  EXPECT_EQ(target, inner[0].GetNamespace());
  EXPECT_EQ(target->Find("Link"), inner[0].GetClass());
  const TCIMReference link = inner[0];
  link.EnumerateKeyBindings(collect);
  ASSERT_EQ(2u, inner.size());
  EXPECT_EQ(target, inner[1].GetNamespace());
  EXPECT_EQ(target->Find("Disk"), inner[1].GetClass());
}

// At every depth.
TEST_F(TCIMCopyValue, FailureAtAnyCallComesThroughAndKeepsNothing) {
  TCIMReference deep(source);
  deep.SetClassName("Deep");
  deep.AddKeyValue("Link", ValueOf(Link("sdb", 3)));
  const TCIMValue value = ValueOf(deep);
  Copy(value);
  const Lines clean = calls.made;
  ASSERT_LT(15u, clean.size());
  const int alive = calls.alive;
  const auto held = target.use_count();
  for (calls.failAt = 1; calls.failAt <= clean.size(); ++calls.failAt) {
    SCOPED_TRACE(clean[calls.failAt - 1]);
    EXPECT_STATUS(kQDAStatusConnectionFailed, Copy(value));
    EXPECT_EQ(Lines(clean.begin(), clean.begin() + calls.failAt), calls.made);
    EXPECT_EQ(alive, calls.alive);
    EXPECT_EQ(held, target.use_count());
  }
}

TEST_F(TCIMCopyValue, ArrayOfReferencesKeepsPointingAtTheSource) {
  const TCIMValue array(Type(Type::kCIMTypeReference), 2,
                        {ValueOf(Disk("sda")), ValueOf(Disk("sdb"))});
  LogCapture log;
  const TCIMValue copy = Copy(array);
  const Lines asked = calls.made;
  EXPECT_EQ(0, std::count_if(asked.begin(), asked.end(), [](const std::string& call) {
              return call.find("GetClass") != std::string::npos;
            }));
  EXPECT_EQ(Lines(), log.Lines());
  EXPECT_EQ(2u, copy.GetMaxArraySize());
  for (const TCIMValue& element : static_cast<std::vector<TCIMValue>&>(copy)) {
    TCIMReference reference = element;
    EXPECT_EQ(source, reference.GetNamespace());
    EXPECT_EQ(source->Find("Disk"), reference.GetClass());
  }
}

TEST_F(TCIMCopyValue, ClassThatTheTargetLacksIsNotFound) {
  target->classes.erase(target->classes.begin());
  EXPECT_STATUS(kQDAStatusNotFound, Copy(ValueOf(Disk("sda"))));
  EXPECT_STATUS(kQDAStatusNotFound, Copy(NullReferenceTo(source->Find("Disk"))));
  EXPECT_STATUS(kQDAStatusNotFound, Copy(ValueOf(Link("sda", 1))));
}

TEST_F(TCIMCopyValue, ReferenceWithoutAClassIsAFailedAssertion) {
  ScopedEnvironment policy("QDA_BOOST_ASSERT", "throwboost");
  EXPECT_THROW(Copy(Null(Type::kCIMTypeReference)), TBoostAssertException);
}

TEST_F(TCIMCopyValue, NoLoggerIsNoFailure) {
  EXPECT_EQ("Disk.DeviceID=\"sda\"",
            static_cast<TCIMReference>(Copy(ValueOf(Disk("sda")))).GetPath());
}

typedef TwoNamespaces TCIMCopyInstance;

TEST_F(TCIMCopyInstance, AsksInThisOrder) {
  source->Find("Link")
      ->PutInstance()
      .Put("Disk", ValueOf(Disk("sda")))
      .Put("Slot", TCIMValue(static_cast<unsigned char>(4)));
  calls.made.clear();
  const Pointer<ICIMInstance> copy =
      TCIMCopy::CopyInstance(source->Find("Link")->instances[0], target);
  EXPECT_EQ((Lines{
                "S/Link#1: GetClass",
                "S/Link: GetName",
                "T: GetClass Link",
                "T/Link: CreateInstance",
                "S/Link#1: EnumerateProperties",
                "S/Link#1.Disk: GetValue",
                "S/Link#1.Disk: GetPropertyDecl",
                "S/Link.Disk: GetName",
                "S/Disk: GetName",
                "T: GetClass Disk",
                "S/Disk: GetName",
                "T: GetClass Disk",
                "T/Disk: GetPropertyDecl DeviceID",
                "T/Disk.DeviceID: GetType",
                "T/Link#1: SetProperty Disk",
                "S/Link#1.Slot: GetValue",
                "S/Link#1.Slot: GetPropertyDecl",
                "S/Link.Slot: GetName",
                "T/Link#1: SetProperty Slot",
                "T/Link: AddInstance",
            }),
            calls.made);
  ASSERT_EQ(1u, target->Find("Link")->instances.size());
  EXPECT_EQ(target->Find("Link")->instances[0], copy);
  const Lines content = target->Content();
  EXPECT_EQ((Lines{"T/Link#1", "T/Link#1.Disk = reference to T/Disk T:Disk.DeviceID=\"sda\"",
                   "T/Link#1.Slot = uint8 4"}),
            Lines(content.begin() + 5, content.begin() + 8));
}

TEST_F(TCIMCopyInstance, NullPropertiesAreNotSetAndTheInstanceIsStillPublished) {
  source->Find("Link")
      ->PutInstance()
      .Put("Disk", NullReferenceTo(source->Find("Disk")))
      .Put("Slot", Null(Type::kCIMTypeUint8));
  calls.made.clear();
  LogCapture log;
  TCIMCopy::CopyInstance(source->Find("Link")->instances[0], target);
  EXPECT_EQ((Lines{"S/Link#1: GetClass", "S/Link: GetName", "T: GetClass Link",
                   "T/Link: CreateInstance", "S/Link#1: EnumerateProperties",
                   "S/Link#1.Disk: GetValue", "S/Link#1.Slot: GetValue", "T/Link: AddInstance"}),
            calls.made);
  EXPECT_EQ(Lines(), log.Lines());
  ASSERT_EQ(1u, target->Find("Link")->instances.size());
  EXPECT_TRUE(target->Find("Link")->instances[0]->properties.empty());
}

TEST_F(TCIMCopyInstance, MissingClassIsNotFoundAndNothingIsMade) {
  source->Declare("Other").PutInstance();
  calls.made.clear();
  EXPECT_STATUS(kQDAStatusNotFound,
                TCIMCopy::CopyInstance(source->Find("Other")->instances[0], target));
  EXPECT_EQ((Lines{"S/Other#1: GetClass", "S/Other: GetName", "T: GetClass Other"}), calls.made);
}

// At whichever call it fails: nothing is published, the half-made instance goes, the status comes
// through.
TEST_F(TCIMCopyInstance, FailureAtAnyCallPublishesNothing) {
  source->Find("Link")
      ->PutInstance()
      .Put("Disk", ValueOf(Disk("sda")))
      .Put("Slot", TCIMValue(static_cast<unsigned char>(4)));
  const int aliveBefore = calls.alive;
  for (calls.failAt = 1; calls.failAt <= 20; ++calls.failAt) {
    SCOPED_TRACE(calls.failAt);
    calls.made.clear();
    EXPECT_STATUS(kQDAStatusConnectionFailed,
                  TCIMCopy::CopyInstance(source->Find("Link")->instances[0], target));
    EXPECT_EQ(calls.failAt, calls.made.size());
    EXPECT_TRUE(target->Find("Link")->instances.empty());
    EXPECT_EQ(aliveBefore, calls.alive);
  }
  calls.made.clear();
  TCIMCopy::CopyInstance(source->Find("Link")->instances[0], target);
  EXPECT_EQ(20u, calls.made.size());
}

}  // namespace
