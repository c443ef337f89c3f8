// Equal qualifier values stand once in a process, and that is not to be seen in any other way.

#include <limits>
#include <memory>
#include <thread>

#include <qdacore/cim/value/TCIMChar16.h>
#include <tests/qdamemory/MemoryTestSupport.h>

namespace {

using namespace memory_test;

// A class of its own namespace with one qualifier of that value.
struct Qualified {
  explicit Qualified(const TCIMValue& value)
      : ns(CreateMemoryNamespace("x")),
        declaration(ns->CreateQualifierDecl("Q", Typed(value), 127, 3, None())) {
    cls = Open(ns, "A");
    cls->AddQualifier(declaration, value, None());
  }

  static TCIMValue Typed(const TCIMValue& value) { return TCIMValue(value.GetType(), 0); }

  const TCIMValue& Value() const { return cls->GetQualifier("Q", None())->GetValue(None()); }

  Namespace ns;
  boost::shared_ptr<ICIMQualifierDecl> declaration;
  Class cls;
};

std::vector<TCIMValue> ExactValues() {
  return {
      TCIMValue(true),
      TCIMValue(false),
      TCIMValue(static_cast<unsigned char>(1)),
      TCIMValue(static_cast<signed char>(1)),
      TCIMValue(static_cast<unsigned short>(1)),
      TCIMValue(static_cast<short>(1)),
      TCIMValue(1u),
      TCIMValue(1),
      TCIMValue(1ull),
      TCIMValue(1ll),
      TCIMValue(-1ll),
      TCIMValue(""),
      TCIMValue("a text that is too long to stand in the string itself"),
      TCIMValue(std::string("with\0NUL", 8)),
      TCIMValue(std::string("with\0nul", 8)),
      Null(Type::kCIMTypeString),
      Null(Type::kCIMTypeUint8),
      Null(Type::kCIMTypeString, true),
      TCIMValue(Type(Type::kCIMTypeString), 0, {}),
      TCIMValue(Type(Type::kCIMTypeString), 3, {}),
      TCIMValue(Type(Type::kCIMTypeString), 0, {TCIMValue("a")}),
      TCIMValue(Type(Type::kCIMTypeString), 0, {TCIMValue("a"), TCIMValue("")}),
      TCIMValue(Type(Type::kCIMTypeString), 0, {TCIMValue(""), TCIMValue("a")}),
      TCIMValue(Type(Type::kCIMTypeString), 0, {Null(Type::kCIMTypeString)}),
      TCIMValue(Type(Type::kCIMTypeUint8), 0, {TCIMValue(static_cast<unsigned char>(1))}),
  };
}

TEST(SharedQualifierValue, EqualOnesStandInOnePlace) {
  for (const TCIMValue& value : ExactValues()) {
    SCOPED_TRACE(value.GetType().ToString());
    const Qualified one(value);
    const Qualified two(value);
    EXPECT_EQ(&one.Value(), &two.Value());
  }
}

TEST(SharedQualifierValue, DifferentOnesDoNot) {
  const std::vector<TCIMValue> values = ExactValues();
  std::vector<Qualified> holders;
  for (const TCIMValue& value : values) {
    holders.emplace_back(value);
  }
  for (std::size_t left = 0; left < values.size(); ++left) {
    EXPECT_EQ(values[left].GetType(), holders[left].Value().GetType());
    EXPECT_EQ(values[left].IsNull(), holders[left].Value().IsNull());
    EXPECT_EQ(values[left].GetMaxArraySize(), holders[left].Value().GetMaxArraySize());
    for (std::size_t right = 0; right < left; ++right) {
      EXPECT_NE(&holders[left].Value(), &holders[right].Value()) << left << " and " << right;
    }
  }
}

// Two characters are equal to TCIMValue whatever they are, and minus zero is zero.
TEST(SharedQualifierValue, ValuesWithoutExactComparisonAreKeptApart) {
  const Qualified a(TCIMValue(TCIMChar16(static_cast<unsigned short>('a'))));
  const Qualified b(TCIMValue(TCIMChar16(static_cast<unsigned short>('b'))));
  EXPECT_EQ("97", a.Value().ToString());
  EXPECT_EQ("98", b.Value().ToString());
  const Qualified zero(TCIMValue(0.0));
  const Qualified minus(TCIMValue(-0.0));
  EXPECT_EQ("-0", minus.Value().ToString().substr(0, 2));
  EXPECT_NE("-0", zero.Value().ToString().substr(0, 2));
  // An array with an element of another type, which the array's own Set leaves in place.
  TCIMValue odd(Type(Type::kCIMTypeUint8), 0, {});
  EXPECT_STATUS(kQDAStatusInvalidProperty, odd.Set(Type(Type::kCIMTypeUint8), 0, {TCIMValue("x")}));
  const Qualified strange(odd);
  EXPECT_EQ("{ x }", strange.Value().ToString());
}

TEST(SharedQualifierValue, OutlivesTheNamespaceThatHadItFirst) {
  const TCIMValue value("a text that is too long to stand in the string itself");
  boost::shared_ptr<ICIMQualifier> kept;
  {
    const Qualified first(value);
    const Qualified second(value);
    kept = second.cls->GetQualifier("Q", None());
  }
  EXPECT_EQ(value, kept->GetValue(None()));
}

// A copy is made from the value that the other namespace gives out.
TEST(SharedQualifierValue, GivenOnFromNamespaceToNamespaceStaysInOnePlace) {
  for (const TCIMValue& value : ExactValues()) {
    SCOPED_TRACE(value.GetType().ToString());
    std::unique_ptr<Qualified> last(new Qualified(value));
    for (int copies = 0; copies < 3; ++copies) {
      std::unique_ptr<Qualified> next(new Qualified(last->Value()));
      EXPECT_EQ(&last->Value(), &next->Value());
      last.swap(next);
    }
    EXPECT_EQ(value, last->Value());
  }
}

// Many more than the places that there are at first.
TEST(SharedQualifierValue, AnyNumberOfThemComesAndGoes) {
  const int count = 3000;
  const auto text = [](int n) {
    return TCIMValue("one of many texts, number " + std::to_string(n));
  };
  std::vector<std::unique_ptr<Qualified>> first;
  std::vector<std::unique_ptr<Qualified>> second;
  for (int n = 0; n < count; ++n) {
    first.emplace_back(new Qualified(text(n)));
    second.emplace_back(new Qualified(first.back()->Value()));
  }
  for (int n = 0; n < count; ++n) {
    ASSERT_EQ(&first[n]->Value(), &second[n]->Value());
    (n % 2 ? first : second)[n].reset();
  }
  for (int n = 0; n < count; ++n) {
    ASSERT_EQ(text(n), (n % 2 ? second : first)[n]->Value());
    ASSERT_EQ(&(n % 2 ? second : first)[n]->Value(), &Qualified(text(n)).Value());
  }
}

TEST(SharedQualifierValue, ThreadsFillNamespacesOfTheirOwn) {
  const auto fill = [] {
    for (int round = 0; round < 50; ++round) {
      std::vector<Qualified> holders;
      for (int n = 0; n < 40; ++n) {
        holders.emplace_back(TCIMValue("text " + std::to_string(n)));
      }
      for (int n = 0; n < 40; ++n) {
        ASSERT_EQ(TCIMValue("text " + std::to_string(n)), holders[n].Value());
      }
    }
  };
  std::thread other(fill);
  fill();
  other.join();
}

}  // namespace
