// Keys of every type: equal values are one key, different ones are not.

#include <limits>
#include <memory>

#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {
namespace {

struct KeyRow {
  const char* what;
  TCIMValue first;
  TCIMValue second;
  bool isSame;
};

TCIMValue Texts(const char* first, const char* second) {
  const std::vector<TCIMValue> elements = {TCIMValue(first), TCIMValue(second)};
  return TCIMValue(Type::kCIMTypeString, 0, elements);
}

TCIMValue Time(const char* text) { return TCIMValue(TCIMDateTime(text)); }

// An interval that was a timestamp before, and still has its year.
TCIMValue IntervalOverTimestamp() {
  TCIMDateTime time("20240102030405.000006+060");
  time.Set(1, 2, 3, 4, 5);
  return TCIMValue(time);
}

std::vector<KeyRow> Rows() {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  return {
      {"booleans", TCIMValue(true), TCIMValue(false), false},
      {"uint8", TCIMValue(static_cast<unsigned char>(1)), TCIMValue(static_cast<unsigned char>(2)),
       false},
      {"sint8", TCIMValue(static_cast<signed char>(-1)), TCIMValue(static_cast<signed char>(1)),
       false},
      {"uint16", TCIMValue(static_cast<unsigned short>(256)),
       TCIMValue(static_cast<unsigned short>(1)), false},
      {"sint16", TCIMValue(static_cast<short>(-256)), TCIMValue(static_cast<short>(-255)), false},
      {"uint32", TCIMValue(4000000000u), TCIMValue(4000000001u), false},
      {"sint32", TCIMValue(-1), TCIMValue(0), false},
      {"uint64", TCIMValue(1ull << 63), TCIMValue(1ull << 62), false},
      {"sint64", TCIMValue(-1ll), TCIMValue(-2ll), false},
      {"sint64, same", TCIMValue(-1ll), TCIMValue(-1ll), true},
      {"real32", TCIMValue(1.5f), TCIMValue(1.25f), false},
      {"real64 of the same text", TCIMValue(1.0000001), TCIMValue(1.0000002), false},
      {"real64, both zeros", TCIMValue(0.0), TCIMValue(-0.0), true},
      {"real64, not a number", TCIMValue(nan), TCIMValue(nan), true},
      {"char16 that compare equal", TCIMValue(TCIMChar16(65)), TCIMValue(TCIMChar16(66)), false},
      {"char16, same", TCIMValue(TCIMChar16(65)), TCIMValue(TCIMChar16(65)), true},
      {"char16, null and not", TCIMValue(TCIMChar16("x")), TCIMValue(TCIMChar16(0)), false},
      {"char16, null characters", TCIMValue(TCIMChar16("x")), TCIMValue(TCIMChar16("y")), true},
      {"strings with NUL", TCIMValue(std::string("a\0b", 3)), TCIMValue(std::string("a\0c", 3)),
       false},
      {"string and its beginning", TCIMValue("abc"), TCIMValue("ab"), false},
      {"empty strings", TCIMValue(""), TCIMValue(""), true},
      {"datetimes", Time("20240102030405.000006+060"), Time("20240102030405.000007+060"), false},
      {"datetime, one instant at two offsets", Time("20240102030405.000006+060"),
       Time("20240102020405.000006+000"), false},
      {"datetime, timestamp and interval", Time("20240102030405.000006+060"),
       Time("00000001020304.000005:000"), false},
      {"datetime, same interval", Time("00000001020304.000005:000"), IntervalOverTimestamp(), true},
      {"datetime, null datetimes", TCIMValue(TCIMDateTime()), TCIMValue(TCIMDateTime()), true},
      {"datetime, null and not", TCIMValue(TCIMDateTime()), Time("00000001020304.000005:000"),
       false},
      {"arrays", Texts("a", "b"), Texts("a", "c"), false},
      {"arrays that join to one text", Texts("a", "bc"), Texts("ab", "c"), false},
      {"arrays of texts that look like the bytes between them", Texts("a", "b\rsc"),
       Texts("a\rsb", "c"), false},
      {"arrays, same", Texts("a", "b"), Texts("a", "b"), true},
  };
}

TEST(MemoryKeyType, EqualValuesAreOneKeyAndOthersAreNot) {
  for (const KeyRow& row : Rows()) {
    const Namespace ns = MakeNamespace();
    const Class cls = Open(ns, "Cls");
    AddKey(cls, "ID", TCIMValue(row.first.GetType(), 0));
    cls->Commit(None());
    const Instance first = Publish(cls, "ID", row.first);
    const std::string expected = row.isSame ? "kQDAStatusAlreadyExists" : "nothing";
    EXPECT_EQ(expected, test_support::ThrownStatus([&] { Publish(cls, "ID", row.second); }))
        << row.what;

    TCIMReference reference(ns, None());
    reference.SetClass(cls);
    reference.AddKeyValue("ID", row.first);
    EXPECT_EQ(first, ns->GetInstance(reference, None())) << row.what;
  }
}

TEST(MemoryKeyType, NumbersInAPathMayBeWrittenInAnyBase) {
  const Namespace ns = MakeNamespace();
  const Class cls = Open(ns, "Cls");
  AddKey(cls, "ID", Null(Type::kCIMTypeUint32));
  cls->Commit(None());
  const Instance instance = Publish(cls, "ID", TCIMValue(16u));
  for (const char* text : {"16", "0x10", "020", " 16"}) {
    EXPECT_EQ(instance, Resolve(ns, std::string("Cls.ID=\"") + text + "\"")) << text;
  }
  EXPECT_FALSE(Resolve(ns, "Cls.ID=\"10\""));
}

TEST(MemoryKeyType, StringIsTakenAsItStands) {
  const Namespace ns = MakeNamespace();
  const Class cls = MakeKeyed(ns, "Cls");
  const Instance quoted = Publish(cls, "ID", TCIMValue("a\"b\\c"));
  const Instance dotted = Publish(cls, "ID", TCIMValue("x.y,z=1"));
  EXPECT_EQ(quoted, Resolve(ns, "Cls.ID=\"a\\\"b\\\\c\""));
  EXPECT_EQ(dotted, Resolve(ns, "Cls.ID=\"x.y,z=1\""));
}

}  // namespace
}  // namespace memory_test
