// What a MOF text makes of a namespace.

#include <algorithm>

#include <tests/qdamemory/NamespaceContent.h>
#include <tests/qdamemory/mof/MofTestSupport.h>

namespace {

using namespace memory_test;

TEST(MofRead, ClassHasWhatItsTextSays) {
  const Namespace ns =
      ReadNew(std::string(kQualifiers) +
              "// A line comment\n"
              "/* and a block of\n   two lines */\n"
              "[Description ( \"A \"\n   \"disk\" )]\n"
              "class My_Disk {\n"
              "  [KEY, Description (\"Its name\")] string ID;\n"
              "  [ValueMap {\"1\", \"2\"}] uint16 Kinds[4] = {1, 2};\n"
              "  real64 Load = 0.5;\n"
              "  [Description (\"Starts it\")]\n"
              "  uint32 Reset([Description(\"How\")] uint8 Mode, string Names[]);\n"
              "};\n");
  EXPECT_EQ(
      (Names{"root", "no association", "class [Description 13 A disk]", "property ID 13 null",
             "property ID [Key 1 true]", "property ID [Description 13 Its name]",
             "property Kinds 20[4] {4 1} {4 2}", "property Kinds [ValueMap 29[0] {13 1} {13 2}]",
             "property Load 11 0x1p-1", "method Reset 6", "method Reset [Description 13 Starts it]",
             "method Reset Mode 2", "method Reset Mode [Description 13 How]",
             "method Reset Names 29"}),
      ContentOf(ns).classes.at("My_Disk"));
}

TEST(MofRead, KeywordsCompareWithoutCase) {
  const Namespace ns = ReadNew(
      "QUALIFIER Key:BOOLEAN=FALSE,SCOPE(PROPERTY),FLAVOR(DISABLEOVERRIDE);"
      "CLASS A{[key]STRING ID;};INSTANCE OF a AS $x{id=\"1\";};");
  EXPECT_TRUE(Resolve(ns, "A.ID=\"1\"") != Instance());
}

TEST(MofRead, QualifierDeclarationsKeepScopeAndFlavor) {
  const Namespace ns = ReadNew(
      "Qualifier One : boolean = true, Scope(any);\n"
      "Qualifier Two : string[], Scope(class, association, indication, method, parameter), "
      "Flavor(Restricted, DisableOverride, Translatable);\n"
      "Qualifier Three : uint32 = 7, Scope(schema, reference), Flavor(EnableOverride, "
      "ToInstance);\n"
      "Qualifier Four : sint64 = -1, Scope(), Flavor();\n");
  EXPECT_EQ((Names{"One 127 3 1 true", "Two 103 4 29[0] null", "Three 16 3 6 7", "Four 0 3 9 -1"}),
            ContentOf(ns).qualifiers);
}

TEST(MofRead, QualifierWithoutAValueIsTrueOrNull) {
  const Namespace ns = ReadNew(std::string(kQualifiers) +
                               "[Abstract, Description, ValueMap, Max (NULL)] class A { };");
  EXPECT_EQ(
      (Names{"root", "no association, abstract", "class [Abstract 1 true]",
             "class [Description 13 null]", "class [ValueMap 29[0] null]", "class [Max 6 null]"}),
      ContentOf(ns).classes.at("A"));
}

// A flavor of its own, the alias of a class and qualifiers of an instance are read and dropped.
TEST(MofRead, WhatANamespaceHasNoPlaceForIsPassedOver) {
  const Namespace ns =
      ReadNew(std::string(kQualifiers) +
              "#pragma locale (\"en_US\")\n#pragma unheard_of (\"of\" \"it\")\n"
              "[Description (\"x\") : DisableOverride ToSubclass, Abstract] class A as $A { };\n"
              "class B : A { [Key] string ID; };\n"
              "[Description (\"y\")] instance of B { [Description (\"z\")] ID = \"1\"; };\n");
  EXPECT_EQ((Names{"A", "B"}), ContentOf(ns).classOrder);
  EXPECT_EQ(1u, ContentOf(ns).instances.at("B").size());
}

TEST(MofRead, DeclarationsMayStandBeforeWhatTheyNeed) {
  const Namespace ns = ReadNew(std::string(kQualifiers) +
                               "instance of My_Link { Disk = $sda; };\n"
                               "[Association] class My_Link { [Key] My_Disk REF Disk; };\n"
                               "class My_Disk : My_Device { };\n"
                               "#pragma qda_static_value (\"My_Disk.ID = \\\"all\\\"\")\n"
                               "instance of My_Disk as $SDA { ID = \"sda\"; };\n"
                               "class My_Device { [Key] string ID; My_Device REF Self; };\n");
  EXPECT_EQ((Names{"My_Device", "My_Disk", "My_Link"}), ContentOf(ns).classOrder);
  const TCIMReference link = ValueOf(Resolve(ns, "My_Link.Disk=\"My_Disk.ID=\"sda\"\""), "Disk");
  EXPECT_EQ("My_Disk.ID=\"sda\"", link.GetPath());
  EXPECT_EQ((Names{"ID"}), StaticPropertiesOf(ClassOf(ns, "My_Disk")));
}

// An alias that comes later and needs another one itself.
TEST(MofRead, AliasesResolveInAnyOrder) {
  const Namespace ns = ReadNew(std::string(kQualifiers) +
                               "class N { [Key] string ID; N REF Next; };\n"
                               "instance of N as $a { ID = \"a\"; Next = $b; };\n"
                               "instance of N as $b { ID = \"b\"; Next = $c; };\n"
                               "instance of N as $c { ID = \"c\"; };\n");
  for (const char* step : {"ab", "bc"}) {
    const std::string from(1, step[0]);
    const TCIMReference next = ValueOf(Resolve(ns, "N.ID=\"" + from + "\""), "Next");
    EXPECT_EQ(std::string("N.ID=\"") + step[1] + "\"", next.GetPath());
  }
  EXPECT_EQ(3u, ContentOf(ns).instances.at("N").size());
}

// Only the keys name an instance, so circles of other references are none.
TEST(MofRead, InstancesMayReferToEachOther) {
  const Namespace ns = ReadNew(std::string(kQualifiers) +
                               "class N { [Key] string ID = \"default\"; N REF Next; };\n"
                               "instance of N as $a { Next = $b; };\n"
                               "instance of N as $b { Next = $a; ID = \"old\"; ID = \"b\"; };\n"
                               "instance of N as $self { ID = \"self\"; Next = $self; };\n");
  const char* const steps[][2] = {{"default", "b"}, {"b", "default"}, {"self", "self"}};
  for (const auto& step : steps) {
    const Instance instance = Resolve(ns, std::string("N.ID=\"") + step[0] + "\"");
    ASSERT_TRUE(instance != Instance()) << step[0];
    const TCIMReference next = ValueOf(instance, "Next");
    EXPECT_EQ(std::string("N.ID=\"") + step[1] + "\"", next.GetPath());
  }
  EXPECT_EQ(3u, ContentOf(ns).instances.at("N").size());
}

TEST(MofRead, AliasesMayWaitForOneAnotherInAnyNumber) {
  std::string text = std::string(kQualifiers) + "class N { [Key] uint32 ID; N REF Next; };\n";
  for (int n = 0; n < 3000; ++n) {
    text += "instance of N as $n" + std::to_string(n) + " { ID = " + std::to_string(n) +
            "; Next = $n" + std::to_string((n + 1) % 3000) + "; };\n";
  }
  EXPECT_EQ(3000u, ContentOf(ReadNew(text)).instances.at("N").size());
}

// One that is open already may be referred to; a superclass must be whole.
TEST(MofRead, ClassesMayReferToEachOther) {
  const std::vector<std::string> declarations[] = {
      {"class A { B REF R; };", "class B { A REF R; };"},
      {"class A { B REF R; };", "class B { C REF R; };", "class C { A REF R; B REF S; };"},
      {"class S { D REF R; };", "class D { X REF R; };", "class X : S { };"},
      {"class S { D REF R; };", "class D { E REF R; };", "class E { X REF R; };",
       "class X : S { };"},
  };
  for (std::vector<std::string> texts : declarations) {
    std::sort(texts.begin(), texts.end());
    do {
      std::string text;
      for (const std::string& declaration : texts) {
        text += declaration + "\n";
      }
      SCOPED_TRACE(text);
      const Namespace ns = ReadNew(text);
      const NamespaceContent content = ContentOf(ns);
      EXPECT_EQ(texts.size(), content.classOrder.size());
      const Namespace again = ReadNew(Written(ns));
      EXPECT_EQ(content.classes, ContentOf(again).classes);
    } while (std::next_permutation(texts.begin(), texts.end()));
  }
}

struct PathRow {
  const char* name;
  const char* text;      // inside the quotes of a MOF string
  const char* expected;  // as DescribeValue has the keys
};

const PathRow kPaths[] = {
    {"string key in quotes", "D.ID=\\\"sda\\\",N=1", ":D <ID=13 sda> <N=2 1>"},
    {"quotes and backslashes in a key", "D.ID=\\\"a\\\\\\\"b\\\\\\\\\\\",N=0x1F",
     ":D <ID=13 a\"b\\> <N=2 31>"},
    {"a backslash before anything else", "D.ID=\\\"a\\\\qb\\\\\\\\c\\\",N=1",
     ":D <ID=13 a\\qb\\c> <N=2 1>"},
    {"the library's own form", "D.ID=\\\"sda\\\",N=\\\"7\\\"", ":D <ID=13 sda> <N=2 7>"},
    {"names in another case", "d.id=\\\"sda\\\",n=2", ":D <ID=13 sda> <N=2 2>"},
    {"a namespace in front", "root/cimv2:D.ID=\\\"a:b.c=d\\\",N=1",
     "root/cimv2:D <ID=13 a:b.c=d> <N=2 1>"},
    {"a namespace of odd characters", "x=y.z:a.b:D.ID=\\\"sda\\\",N=1",
     "x=y.z:a.b:D <ID=13 sda> <N=2 1>"},
    {"a namespace in front of a class", "root/a.b:D", "root/a.b:D"},
    {"a class alone", "D", ":D"},
    {"a key without a value", "D.ID=NULL,N=null", ":D <ID=13 null> <N=2 null>"},
    {"a reference in a reference", "L.D=\\\"D.ID=\\\\\\\"x\\\\\\\",N=3\\\",On=TRUE",
     ":L <D=15 to D :D <ID=13 x> <N=2 3>> <On=1 true>"},
    {"the same in the library's own form", "L.D=\\\"D.ID=\\\"x\\\",N=\\\"3\\\"\\\",On=\\\"true\\\"",
     ":L <D=15 to D :D <ID=13 x> <N=2 3>> <On=1 true>"},
    {"a character and a real", "C.Mark=',',Real=-1.5", ":C <Mark=12 44> <Real=11 -0x1.8p+0>"},
    {"a datetime", "T.At=\\\"20261121120000.000000+000\\\"",
     ":T <At=14 20261121120000.000000+000>"},
};

TEST(MofRead, ObjectPathsComeInBothForms) {
  for (const PathRow& row : kPaths) {
    SCOPED_TRACE(row.name);
    const Namespace ns = CreateMemoryNamespace("paths");
    ASSERT_TRUE(Read(ns, std::string(kQualifiers) +
                             "class D { [Key] string ID; [Key] uint8 N; };"
                             "class L { [Key] D REF D; [Key] boolean On; };"
                             "class C { [Key] char16 Mark; [Key] real64 Real; };"
                             "class T { [Key] datetime At; };"
                             "class R { Any REF To; };"));
    if (Read(ns, std::string("instance of R { To = \"") + row.text + "\"; };")) {
      const std::string text = ContentOf(ns).instances.at("R").at(0);
      EXPECT_NE(std::string::npos, text.find(std::string(" ") + row.expected + ";")) << text;
    }
  }
}

TEST(MofRead, ReadsIntoANamespaceThatHasSomething) {
  const Namespace ns = ReadNew(std::string(kQualifiers) + "class A { [Key] string ID; };");
  ASSERT_TRUE(Read(ns, "class B : A { }; instance of B { ID = \"1\"; };"));
  EXPECT_TRUE(Resolve(ns, "A.ID=\"1\"") != Instance());
}

TEST(MofRead, ByteOrderMarkIsNoPartOfTheText) {
  EXPECT_EQ((Names{"A"}), RootsOf(ReadNew("\xEF\xBB\xBF"
                                          "class A { };")));
}

}  // namespace
