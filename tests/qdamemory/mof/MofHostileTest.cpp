// Texts that are cut, bent and glued together: reading ends, by itself or with a problem.

#include <random>

#include <tests/qdamemory/NamespaceContent.h>
#include <tests/qdamemory/mof/MofTestSupport.h>

namespace {

using namespace memory_test;

const char kText[] =
    "Qualifier Key : boolean = false, Scope(property), Flavor(DisableOverride);\n"
    "/* c */ [Key (true)] class A { [Key] string ID = \"a\\x41\" \"b\"; uint8 P[3] = {1, 0x2, "
    "11b};\n"
    "  real64 R = -1.5e3; char16 C = '\\n'; A REF Next; uint32 M([Key] uint8 X, string Y[]); };\n"
    "class B : A { datetime T = \"20261121120000.000000+000\"; };\n"
    "#pragma qda_static_value (\"A.P = {7}\")\n"
    "instance of B as $b { ID = \"1\"; Next = \"A.ID=\\\"2\\\"\"; };\n"
    "instance of A as $a { ID = \"2\"; Next = $b; };\n";

void ExpectAnEnd(const std::string& text) {
  const Namespace ns = CreateMemoryNamespace("x");
  MofProblem problem;
  try {
    ReadMofText(ns, text, "t", &problem);
  } catch (const TQDAException&) {
    EXPECT_EQ("t", problem.file) << text;
    EXPECT_NE(0u, problem.line) << text;
    EXPECT_NE(0u, problem.column) << text;
    EXPECT_FALSE(problem.reason.empty()) << text;
  }
  // What was made can be written.
  EXPECT_NO_THROW(Written(ns));
}

TEST(MofHostile, TextCutAtEveryByteEnds) {
  const std::string text = kText;
  // What is cut is sound.
  EXPECT_EQ(1u, ContentOf(ReadNew(text)).instances.at("B").size());
  for (std::size_t size = 0; size <= text.size(); ++size) {
    ExpectAnEnd(text.substr(0, size));
  }
}

TEST(MofHostile, MutatedTextEnds) {
  const std::string marks = std::string("{}()[];:,=\"'\\$#-.0x/*A \n\xFF", 26) + '\0';
  std::mt19937 random(20260101);
  for (int round = 0; round < 3000; ++round) {
    std::string text = kText;
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
      const std::size_t at = random() % text.size();
      switch (random() % 3) {
        case 0:
          text[at] = marks[random() % marks.size()];
          break;
        case 1:
          text.erase(at, 1 + random() % 20);
          break;
        default:
          text.insert(at, text.substr(random() % text.size(), random() % 60));
          break;
      }
    }
    ExpectAnEnd(text);
  }
}

TEST(MofHostile, LinesMayEndInAnyWay) {
  std::string text = kText;
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) {
    text.insert(at, 1, '\r');
  }
  const Namespace windows = ReadNew(text);
  EXPECT_EQ(Written(ReadNew(kText)), Written(windows));
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusInvalidFormat, ReadMofText(CreateMemoryNamespace("x"),
                                                     "// a\r\n/* b\r\n */\r\n  @", "t", &problem));
  EXPECT_EQ(4u, problem.line);
  EXPECT_EQ(3u, problem.column);
}

TEST(MofHostile, ByteOrderMarkCountsAtTheBeginningOnly) {
  const std::string mark = "\xEF\xBB\xBF";
  EXPECT_EQ("", Written(ReadNew(mark)));
  ExpectAnEnd(mark + kText);
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusInvalidFormat,
                ReadMofText(CreateMemoryNamespace("x"), mark + "@", "t", &problem));
  EXPECT_EQ(1u, problem.column);
  // Anywhere else it is a letter.
  for (const std::string& text : {mark + mark, " " + mark, mark.substr(0, 2), mark.substr(0, 1)}) {
    EXPECT_STATUS(kQDAStatusInvalidFormat,
                  ReadMofText(CreateMemoryNamespace("x"), text, "t", nullptr));
  }
  // UTF-16 is told, and not read as nothing.
  EXPECT_STATUS(kQDAStatusInvalidFormat, ReadMofText(CreateMemoryNamespace("x"),
                                                     std::string("\xFF\xFE"
                                                                 "c\0l\0",
                                                                 6),
                                                     "t", nullptr));
}

TEST(MofHostile, NulIsAByteLikeAnyOther) {
  const std::string nul(1, '\0');
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusInvalidFormat,
                ReadMofText(CreateMemoryNamespace("x"), "class A { };" + nul + "class B { };", "t",
                            &problem));
  EXPECT_EQ("the byte 0x00 has no meaning here", problem.reason);
  EXPECT_EQ(13u, problem.column);
  const Namespace ns = ReadNew("class A { string S = \"a" + nul + "b\"; }; // " + nul + "\n/* " +
                               nul + " */ class B { };");
  EXPECT_EQ(std::string("a\0b", 3),
            static_cast<std::string>(
                ClassOf(ns, "A")->GetPropertyDecl("S", None())->GetDefaultValue(None())));
  ExpectAnEnd(Written(ns));
}

TEST(MofHostile, WhatIsNotTerminatedIsToldWhereItBegins) {
  for (const char* text :
       {"class A { string S = \"x", "class A { string S = \"x\\", "class A { char16 C = 'x",
        "class A { char16 C = '\\", "/* x", "/* x *", "#pragma include (\"x",
        "class A { string S[] = {\"x\"", "[Key", "class A { string S[", "instance of A as $x {",
        "Qualifier Q : boolean"}) {
    ExpectAnEnd(text);
    EXPECT_STATUS(kQDAStatusInvalidFormat,
                  ReadMofText(CreateMemoryNamespace("x"), text, "t", nullptr));
  }
}

TEST(MofHostile, SizesAndDepthsBeyondAnySchemaEnd) {
  const std::string million(1000000, 'a');
  const Namespace ns =
      ReadNew("class A" + million + " { string S" + million + " = \"" + million + "\"; };\n");
  EXPECT_EQ(1u, RootsOf(ns).size());
  std::string list = "0";
  std::string parts = "\"a\"";
  std::string lines;
  for (int n = 0; n < 100000; ++n) {
    list += ",0";
    parts += "\"a\"";
    lines += "\n//";
  }
  ExpectAnEnd("class A { uint8 P[] = {" + list + "}; string S = " + parts + "; };" + lines);
  // Paths in paths, which the parser of the library counts.
  std::string path;
  for (int n = 0; n < 100000; ++n) {
    path += "A.R=\\\"";
  }
  const std::string schema =
      "Qualifier Key : boolean = false, Scope(property), Flavor(DisableOverride);\n"
      "class A { [Key] A REF R; };\n";
  ExpectAnEnd(schema + "instance of A { R = \"" + path + "\"; };");
  std::string tree = "class C0 { };\n";
  for (int n = 1; n <= 5000; ++n) {
    tree += "class C" + std::to_string(n) + " : C" + std::to_string(n - 1) + " { };\n";
  }
  ExpectAnEnd(tree);
  for (const char bracket : {'{', '[', '('}) {
    ExpectAnEnd("class A { uint8 P = " + std::string(100000, bracket));
    ExpectAnEnd(std::string(100000, bracket));
  }
}

}  // namespace
