// What a namespace reads as in MOF, and that it reads back the same.

#include <limits>

#include <qdacore/cim/value/TCIMChar16.h>
#include <tests/qdamemory/NamespaceContent.h>
#include <tests/qdamemory/mof/MofTestSupport.h>

namespace {

using namespace memory_test;

// Reads back what is written and compares all that both have.
void ExpectRoundTrip(const Namespace& ns) {
  const std::string text = Written(ns);
  const Namespace again = CreateMemoryNamespace("again");
  ASSERT_TRUE(Read(again, text)) << text;
  ExpectSameSchema(ns, again);
  ExpectSameOrder(ns, again);
  ExpectSameInstances(ns, again);
  EXPECT_EQ(text, Written(again));
}

TEST(MofWrite, EmptyNamespaceIsAnEmptyText) { EXPECT_EQ("", Written(CreateMemoryNamespace("x"))); }

TEST(MofWrite, ReadsLikeThis) {
  const std::string text =
      "Qualifier Key : boolean = FALSE, Scope(property, reference), "
      "Flavor(DisableOverride, ToSubclass);\n"
      "Qualifier Values : string[], Scope(any), Flavor(EnableOverride, Restricted, "
      "Translatable);\n"
      "Qualifier Odd : sint8[4] = {-1, 2}, Scope(), Flavor(EnableOverride, ToSubclass);\n"
      "\n"
      "[Values {\"a\", \"b\"}, Odd (NULL)]\n"
      "class A {\n"
      "  [Key (TRUE)]\n"
      "  string ID = \"no \\\"name\\\"\\n\";\n"
      "  uint8 Codes[3] = {1, NULL, 3};\n"
      "  A REF Next;\n"
      "  char16 Mark = '\\x0041';\n"
      "  real64 Load = 2.0;\n"
      "};\n"
      "\n"
      "class B : A {\n"
      "  uint32 Reset([Key (FALSE)] uint8 Mode, Any REF Who[]);\n"
      "};\n"
      "#pragma qda_static_value (\"B.ID = \\\"all\\\"\")\n"
      "\n"
      "instance of B {\n"
      "  ID = \"1\";\n"
      "  Codes = NULL;\n"
      "  Next = \"A.ID=\\\"1\\\"\";\n"
      "};\n";
  EXPECT_EQ(text, Written(ReadNew(text)));
}

TEST(MofWrite, ClassesComeAfterWhatTheyNeedAndKeepTheirOrder) {
  // In the order of creation; the roots are P, X and Y.
  const Namespace ns = ReadNew(std::string(kQualifiers) +
                               "class P { }; class X { }; class Y { };"
                               "class Z : P { Y REF To; }; class W : Y { Z REF To; };");
  const std::string text = Written(ns);
  EXPECT_LT(text.find("class Y"), text.find("class Z"));
  EXPECT_LT(text.find("class X"), text.find("class Y"));
  ExpectRoundTrip(ns);
}

// Also those that stand in the keys of a default only. B was made before the class that names it,
// and is written before it although its superclass has other subclasses.
TEST(MofWrite, ClassesComeAfterWhatTheirDefaultsName) {
  const std::string text = std::string(kQualifiers) +
                           "class Base { [Key] uint8 K; };"
                           "class Link { [Key] Base REF To; };"
                           "class B : Base { };";
  for (const char* rest :
       {"class User { Link REF L = \"Link.To=\\\"B.K=1\\\"\"; };",
        "class User { Link REF L[] = {NULL, \"Link\", \"root/x:Link.To=\\\"root/y:B.K=1\\\"\"}; };",
        "class User { Any REF L = \"B\"; };"}) {
    SCOPED_TRACE(rest);
    ExpectRoundTrip(ReadNew(text + rest));
    // And read where it stands before them.
    const Namespace ns = ReadNew(rest + text);
    EXPECT_EQ(4u, ContentOf(ns).classOrder.size());
    ExpectRoundTrip(ns);
  }
}

TEST(MofWrite, InstancesShowWhatDiffersFromTheDefaults) {
  const Namespace ns = ReadNew(
      "class A { uint8 P = 1; uint8 Q = 2; char16 C = 'a'; string S; };"
      "instance of A { P = 1; Q = NULL; C = 'b'; };");
  EXPECT_NE(std::string::npos,
            Written(ns).find("instance of A {\n  Q = NULL;\n  C = '\\x0062';\n}"));
  ExpectRoundTrip(ns);
}

TEST(MofWrite, OddNumbersSurvive) {
  const Namespace ns = CreateMemoryNamespace("x");
  const Class cls = Open(ns, "A");
  Add(cls, "NaN", TCIMValue(std::numeric_limits<double>::quiet_NaN()));
  Add(cls, "Up", TCIMValue(std::numeric_limits<double>::infinity()));
  Add(cls, "Down", TCIMValue(-std::numeric_limits<float>::infinity()));
  Add(cls, "Least", TCIMValue(std::numeric_limits<double>::denorm_min()));
  Add(cls, "Most", TCIMValue(std::numeric_limits<double>::max()));
  Add(cls, "Third", TCIMValue(1.0f / 3));
  Add(cls, "Minus", TCIMValue(-0.0));
  Add(cls, "Lowest", TCIMValue(std::numeric_limits<long long>::min()));
  Add(cls, "Char", TCIMValue(TCIMChar16(static_cast<unsigned short>(0xD800))));
  cls->Commit(None());
  ExpectRoundTrip(ns);
}

TEST(MofWrite, AnyBytesOfAStringSurvive) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    bytes += static_cast<char>(byte);
  }
  const Namespace ns = CreateMemoryNamespace("x");
  const Class cls = Open(ns, "A");
  Add(cls, "S", TCIMValue(bytes + "//\"\\x41" + bytes));
  cls->Commit(None());
  ExpectRoundTrip(ns);
}

// Every level doubles the escapes, so deep ones come in a form without any.
TEST(MofWrite, ReferencesNestToAnyDepth) {
  std::string text = std::string(kQualifiers) + "class C0 { [Key] string K; };\n";
  std::string path = "C0.K=\"a\\\"b\"";
  for (int depth = 1; depth <= 40; ++depth) {
    const std::string name = "C" + std::to_string(depth);
    text += "class " + name + " { [Key] C" + std::to_string(depth - 1) + " REF R; };\n";
    path = name + ".R=\"" + path + "\"";
  }
  const Namespace ns = ReadNew(text + "class End { C0 REF Zero; C4 REF Four; C40 REF Forty; };");
  const Instance end = ClassOf(ns, "End")->CreateInstance(None());
  end->SetProperty("Forty", ReferenceValue(ns, path), None());
  std::string four = "C0.K=\"a\\\"b\"";
  for (int depth = 1; depth <= 4; ++depth) {
    four = "C" + std::to_string(depth) + ".R=\"" + four + "\"";
  }
  end->SetProperty("Four", ReferenceValue(ns, four), None());
  end->SetProperty("Zero", ReferenceValue(ns, "C0.K=\"a\\\"b\""), None());
  ClassOf(ns, "End")->AddInstance(end);
  EXPECT_GT(5000u, Written(ns).size() - text.size());
  ExpectRoundTrip(ns);
}

// What the library's own form of a path cannot hold keeps its escapes, as long as they are
// bearable.
TEST(MofWrite, DeepReferencesKeepWhatTheOwnFormLacks) {
  const struct {
    const char* type;
    TCIMValue value;
    const char* label;
  } rows[] = {
      {"char16", TCIMValue(TCIMChar16(static_cast<unsigned short>(0x22))), ""},
      {"real32", TCIMValue(1.0f / 3), ""},
      {"real64", TCIMValue(1.0 / 3), ""},
      {"string", Null(Type::kCIMTypeString), ""},
      {"string", TCIMValue("a\"b\\"), "root/x=y"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.type);
    std::string text = std::string(kQualifiers) + "class C0 { [Key] " + row.type + " K; };\n";
    for (int depth = 1; depth <= 13; ++depth) {
      text += "class C" + std::to_string(depth) + " { [Key] C" + std::to_string(depth - 1) +
              " REF R; };\n";
    }
    const Namespace ns = ReadNew(text + "class End { Any REF To; };");
    TCIMReference reference(ns);
    reference.SetClassName("C0");
    reference.AddKeyValue("K", row.value);
    reference.SetNameSpaceName(row.label);
    for (int depth = 1; depth <= 13; ++depth) {
      TCIMReference outer(ns);
      outer.SetClassName("C" + std::to_string(depth));
      outer.AddKeyValue("R", TCIMValue(reference));
      reference = outer;
      if (depth == 6 || depth == 12) {
        const Instance end = ClassOf(ns, "End")->CreateInstance(None());
        end->SetProperty("To", TCIMValue(reference), None());
        ClassOf(ns, "End")->AddInstance(end);
      }
    }
    ExpectRoundTrip(ns);
    const Instance end = ClassOf(ns, "End")->CreateInstance(None());
    end->SetProperty("To", TCIMValue(reference), None());
    ClassOf(ns, "End")->AddInstance(end);
    EXPECT_STATUS(kQDAStatusNotSupported, Written(ns));
  }
}

TEST(MofWrite, ReferencesBeyondWhatIsReadAreNotSupported) {
  const Namespace ns = ReadNew(std::string(kQualifiers) +
                               "class L { [Key] string K; }; class R { [Key] Any REF R; };");
  TCIMReference reference(ns);
  reference.SetClassName("L");
  reference.AddKeyValue("K", TCIMValue("a"));
  const auto publish = [&] {
    const Instance instance = ClassOf(ns, "R")->CreateInstance(None());
    instance->SetProperty("R", TCIMValue(reference), None());
    ClassOf(ns, "R")->AddInstance(instance);
  };
  for (int depth = 1; depth <= 257; ++depth) {
    TCIMReference outer(ns);
    outer.SetClassName("R");
    outer.AddKeyValue("R", TCIMValue(reference));
    reference = outer;
    if (depth == 256) {
      publish();
      ExpectRoundTrip(ns);
    }
  }
  publish();
  EXPECT_STATUS(kQDAStatusNotSupported, Written(ns));
}

TEST(MofWrite, KeysWithoutValuesAndLabelsSurvive) {
  const Namespace ns = ReadNew(std::string(kQualifiers) +
                               "class A { [Key] string K; [Key] uint8 N; A REF To; };"
                               "instance of A { To = \"root/x:A.K=NULL,N=3\"; };");
  EXPECT_NE(std::string::npos, Written(ns).find("To = \"root/x:A.K=NULL,N=3\";"));
  ExpectRoundTrip(ns);
}

TEST(MofWrite, RealKeysThatAreNoNumbersSurvive) {
  const Namespace ns = ReadNew(std::string(kQualifiers) +
                               "class A { [Key] real64 K; [Key] real32 L; A REF To; };"
                               "instance of A { To = \"A.K=\\\"-INF\\\",L=\\\"NaN\\\"\"; };"
                               "instance of A { To = \"A.K=\\\"INF\\\",L=1.5\"; };");
  EXPECT_NE(std::string::npos, Written(ns).find("To = \"A.K=\\\"-INF\\\",L=\\\"NaN\\\"\";"));
  ExpectRoundTrip(ns);
}

TEST(MofWrite, StaticValuesOfEveryKindSurvive) {
  const Namespace ns =
      ReadNew(std::string(kQualifiers) + "class A { [Key] string K; A REF To; uint8 L[]; };");
  const Class cls = ClassOf(ns, "A");
  cls->SetStaticProperty("K", TCIMValue("quote \" and \\"), None());
  cls->SetStaticProperty("To", ReferenceValue(ns, "A.K=\"x\\\"y\""), None());
  cls->SetStaticProperty("L", Null(Type::kCIMTypeUint8, true), None());
  ExpectRoundTrip(ns);
}

TEST(MofWrite, WhatNoTextCanSayIsNotSupported) {
  const Namespace untyped = CreateMemoryNamespace("x");
  untyped->CreateQualifierDecl("Q", TCIMValue(), 0, 0, None());
  EXPECT_STATUS(kQDAStatusNotSupported, Written(untyped));
  const auto arrayType = static_cast<Type::ECIMType>(Type::kCIMTypeUint8 | Type::kCIMTypeArrayFlag);
  for (const Type::ECIMType type : {Type::kCIMTypeNone, arrayType}) {
    const Namespace ns = CreateMemoryNamespace("x");
    Open(ns, "A")->AddMethodDecl("M", type, None());
    EXPECT_STATUS(kQDAStatusNotSupported, Written(ns));
  }
  const Namespace parameter = CreateMemoryNamespace("x");
  Open(parameter, "A")
      ->AddMethodDecl("M", Type::kCIMTypeUint8, None())
      ->AddParameterDecl("P", Type::kCIMTypeNone, None());
  EXPECT_STATUS(kQDAStatusNotSupported, Written(parameter));
  const Namespace mixed = CreateMemoryNamespace("x");
  TCIMValue array(Type(Type::kCIMTypeString), 0, {TCIMValue("a")});
  static_cast<std::vector<TCIMValue>&>(array)[0] = TCIMValue(1u);
  Add(Open(mixed, "A"), "P", array);
  EXPECT_STATUS(kQDAStatusNotSupported, Written(mixed));
}

TEST(MofWrite, AttributesThatHaveNoWordAreNotSupported) {
  for (const std::pair<std::int32_t, std::int32_t>& odd :
       {std::make_pair(128, 0), std::make_pair(0, 8), std::make_pair(-1, 0)}) {
    const Namespace ns = CreateMemoryNamespace("x");
    ns->CreateQualifierDecl("Q", TCIMValue(true), odd.first, odd.second, None());
    EXPECT_STATUS(kQDAStatusNotSupported, Written(ns));
  }
}

}  // namespace
