// What is wrong with a MOF text is told with its place, and a status that fits.

#include <tests/qdamemory/mof/MofTestSupport.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using namespace memory_test;
using test_support::TemporaryFolder;

struct ProblemRow {
  const char* text;
  unsigned int line;
  unsigned int column;
  const char* reason;
  const char* status = "kQDAStatusInvalidFormat";
};

// Behind the declarations of qualifiers, which have seven lines.
const ProblemRow kProblems[] = {
    {"clas A { };", 8, 1,
     "expected a class, an instance, a qualifier's declaration or a #pragma, found \"clas\""},
    {"class { };", 8, 7, "expected the name of the class, found \"{\""},
    {"class A { }", 8, 12, "expected \";\" at the end of the class, found the end of the text"},
    {"class A : { };", 8, 11, "expected the name of the superclass, found \"{\""},
    {"class A {\n  string;\n};", 9, 9, "expected the name of the property or method, found \";\""},
    {"class A {\n\tstrng ID;\n};", 9, 2,
     "\"strng\" is no type; a reference to a class reads \"strng REF\" in front of its name"},
    {"class A { uint8 P = 1 };", 8, 23, "expected \";\" at the end of the property, found \"}\""},
    {"class A { uint8 M(uint8 A uint8 B); };", 8, 27,
     "expected \",\" between parameters, found \"uint8\""},
    {"class A { uint8 P = 300; };", 8, 21, "this number is beyond the range of uint8"},
    {"class A { uint8 P = ; };", 8, 21, "expected a value, found \";\""},
    {"class A { uint8 P[ = 1; };", 8, 20,
     "expected the size of the array, from 1 to 4294967295, or \"]\", found \"=\""},
    {"[Key class A { };", 8, 6, "expected \"]\" behind the qualifiers, found \"class\""},
    {"[] class A { };", 8, 2, "expected the name of a qualifier, found \"]\""},
    {"[Wrong] class A { };", 8, 2, "qualifier \"Wrong\" is not declared above",
     "kQDAStatusNotFound"},
    {"[Max (\"x\")] class A { };", 8, 7, "this is no value of the type uint32"},
    {"[Max {1}] class A { };", 8, 6, "one value is needed here, and no array"},
    {"[Abstract, Abstract] class A { };", 8, 12,
     "qualifier \"Abstract\" cannot be made: kQDAStatusAlreadyExists", "kQDAStatusAlreadyExists"},
    {"class A : Missing { };", 8, 11, "class \"Missing\" is declared nowhere",
     "kQDAStatusNotFound"},
    {"class A { Missing REF R; };", 8, 11, "class \"Missing\" is declared nowhere",
     "kQDAStatusNotFound"},
    {"class A { };\nclass a { };", 9, 7, "class \"a\" cannot be made: kQDAStatusAlreadyExists",
     "kQDAStatusAlreadyExists"},
    {"class B : A { };\nclass b : A { };\nclass A { };", 9, 7,
     "class \"b\" is declared a second time", "kQDAStatusAlreadyExists"},
    {"class A : B { };\nclass B : A { };", 9, 11, "class \"A\" and what it needs need each other",
     "kQDAStatusInvalidClass"},
    {"class A { B REF R; };\nclass B : A { };", 9, 11,
     "class \"A\" and what it needs need each other", "kQDAStatusInvalidClass"},
    {"class A { uint8 P; string p; };", 8, 27,
     "property \"p\" cannot be made: kQDAStatusAlreadyExists", "kQDAStatusAlreadyExists"},
    {"class A { uint8 M(); uint8 M(); };", 8, 28,
     "method \"M\" cannot be made: kQDAStatusAlreadyExists", "kQDAStatusAlreadyExists"},
    {"class A { uint8 M(uint8 A, uint8 a); };", 8, 34,
     "parameter \"a\" cannot be made: kQDAStatusAlreadyExists", "kQDAStatusAlreadyExists"},
    {"Qualifier Key : boolean, Scope(any);", 8, 11,
     "the declaration of qualifier \"Key\" cannot be made: kQDAStatusAlreadyExists",
     "kQDAStatusAlreadyExists"},
    {"Qualifier Q boolean, Scope(any);", 8, 13, "expected \":\" and its type, found \"boolean\""},
    {"Qualifier Q : boolean;", 8, 22, "expected \",\" and the scope, found \";\""},
    {"Qualifier Q : boolean, Scope(every);", 8, 30,
     "expected class, association, indication, property, reference, method, parameter or any, "
     "found \"every\""},
    {"Qualifier Q : boolean, Scope(any), Flavor(Sweet);", 8, 43,
     "expected EnableOverride, DisableOverride, ToSubclass, Restricted or Translatable, found "
     "\"Sweet\""},
    {"instance A { };", 8, 10, "expected the word \"of\" behind \"instance\", found \"A\""},
    {"instance of A { };", 8, 1, "class \"A\" is declared nowhere", "kQDAStatusNotFound"},
    {"class A { };\ninstance of A { P = 1; };", 9, 17, "class \"A\" has no property \"P\"",
     "kQDAStatusNotFound"},
    {"class A { };\ninstance of A as A { };", 9, 18,
     "expected the alias of the instance, such as $Disk, found \"A\""},
    {"[Abstract] class A { };\ninstance of A { };", 9, 1,
     "an instance of class \"A\" cannot be made: kQDAStatusInvalidClass", "kQDAStatusInvalidClass"},
    {"class A { [Key] uint8 K; };\ninstance of A { K = 1; };\ninstance of A { K = 1; };", 10, 1,
     "an instance of class \"A\" cannot be made: kQDAStatusAlreadyExists",
     "kQDAStatusAlreadyExists"},
    {"class A { A REF R; };\ninstance of A { R = $none; };", 9, 21,
     "no instance has the alias \"$none\"", "kQDAStatusNotFound"},
    {"class A { [Key] A REF R; };\ninstance of A as $x { R = $y; };\n"
     "instance of A as $y { R = $x; };",
     9, 27, "the key of \"$y\" needs itself", "kQDAStatusInvalidReference"},
    {"class A { A REF R; };\ninstance of A as $x { R = $x; };", 9, 27,
     "the instance of alias \"$x\" has no key, and nothing can refer to it",
     "kQDAStatusInvalidReference"},
    {"class A { };\ninstance of A as $x { };\ninstance of A as $X { };", 10, 1,
     "alias \"$X\" is taken", "kQDAStatusAlreadyExists"},
    {"class A { string S; };\ninstance of A { S = $x; };", 9, 21,
     "this is no value of the type string"},
    {"class A { A REF R; };\ninstance of A { R = \"B.K=1\"; };", 9, 21,
     "\"B.K=1\" is no object path of a class that is declared here, with its keys",
     "kQDAStatusNotFound"},
    {"class A { [Key] uint8 K; A REF R; };\ninstance of A { R = \"A.K=999\"; K = 1; };", 9, 21,
     "this number is beyond the range of uint8"},
    {"class A { uint8 P; };\n#pragma qda_static_value (\"A P\")", 9, 27,
     "a static value reads \"CLASS.PROPERTY = VALUE\""},
    {"class A { uint8 P; };\n#pragma qda_static_value (\"A.P = x\")", 9, 27,
     "expected a value, found \"x\""},
    {"class A { uint8 P; };\n#pragma qda_static_value (\"A.P = 256\")", 9, 27,
     "this number is beyond the range of uint8"},
    {"class A { uint8 P; };\n#pragma qda_static_value (\"A.Q = 2\")", 9, 27,
     "class \"A\" has no property \"Q\"", "kQDAStatusNotFound"},
    {"class A { uint8 P; };\n#pragma qda_static_value (\"A.P = 2; x\")", 9, 27,
     "expected the end of the static value, found \"x\""},
    {"#pragma include (\"missing.mof\")", 8, 18, "file \"missing.mof\" cannot be opened",
     "kQDAStatusFileNotFound"},
    {"#pragma include (\"\")", 8, 18, "the name of the file to include is missing"},
    {"#pragma include (\"\xe4\xff.mof\")", 8, 18, "file \"\xe4\xff.mof\" cannot be opened",
     "kQDAStatusFileNotFound"},
    {"#pragma", 8, 8, "expected the name of the pragma, found the end of the text"},
    {"/* no end", 8, 1, "this comment has no end"},
    {"class A { string S = \"no end\n\"; };", 8, 22,
     "this string has no closing quote on its line"},
    {"@", 8, 1, "\"@\" has no meaning here"},
    {"\x01", 8, 1, "the byte 0x01 has no meaning here"},
    {"$", 8, 1, "a \"$\" begins the name of an alias, and no name follows"},
};

TEST(MofProblem, IsToldWithItsPlaceAndStatus) {
  for (const ProblemRow& row : kProblems) {
    SCOPED_TRACE(row.text);
    MofProblem problem;
    const Namespace ns = CreateMemoryNamespace("problems");
    EXPECT_EQ(row.status, test_support::ThrownStatus([&] {
                ReadMofText(ns, std::string(kQualifiers) + row.text, "some.mof", &problem);
              }));
    EXPECT_EQ("some.mof", problem.file);
    EXPECT_EQ(row.line, problem.line);
    EXPECT_EQ(row.column, problem.column);
    EXPECT_EQ(row.reason, problem.reason);
  }
}

TEST(MofProblem, NeedNotBeAskedFor) {
  EXPECT_STATUS(kQDAStatusInvalidFormat,
                ReadMofText(CreateMemoryNamespace("x"), "class", "t", nullptr));
}

TEST(MofProblem, WhatStoodBeforeItStays) {
  const Namespace ns = CreateMemoryNamespace("x");
  EXPECT_STATUS(kQDAStatusInvalidFormat,
                ReadMofText(ns, "class A { }; class B { uint8 P; uint8 Q = x; }; class C { };", "t",
                            nullptr));
  EXPECT_EQ((Names{"A"}), RootsOf(ns));
}

TEST(MofProblem, ChainsThatAreNoSchemaEndInsteadOfTheStack) {
  std::string text;
  for (int n = 0; n < 3000; ++n) {
    text += "class C" + std::to_string(n) + " : C" + std::to_string(n + 1) + " { };\n";
  }
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusInvalidClass,
                ReadMofText(CreateMemoryNamespace("x"), text + "class C3000 { };", "t", &problem));
  EXPECT_EQ("classes need one another in a chain of more than 1000", problem.reason);

  text = std::string(kQualifiers) + "class N { [Key] N REF Next; };\n";
  for (int n = 0; n < 3000; ++n) {
    text += "instance of N as $n" + std::to_string(n) + " { Next = $n" + std::to_string(n + 1) +
            "; };\n";
  }
  EXPECT_STATUS(kQDAStatusInvalidReference,
                ReadMofText(CreateMemoryNamespace("x"), text + "instance of N as $n3000 { };", "t",
                            &problem));
  EXPECT_EQ("keys of instances need one another in a chain of more than 1000", problem.reason);
}

// In a circle each class in work may be asked for twice.
TEST(MofProblem, LongestCircleOfClassesEnds) {
  std::string text;
  for (int n = 0; n < 1000; ++n) {
    text += "class C" + std::to_string(n) + " : C" + std::to_string((n + 1) % 1000) + " { };\n";
  }
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusInvalidClass,
                ReadMofText(CreateMemoryNamespace("x"), text, "t", &problem));
  EXPECT_EQ("class \"C0\" and what it needs need each other", problem.reason);
  const Namespace ns = CreateMemoryNamespace("x");
  text.clear();
  for (int n = 0; n < 1000; ++n) {
    text +=
        "class C" + std::to_string(n) + " { C" + std::to_string((n + 1) % 1000) + " REF R; };\n";
  }
  EXPECT_TRUE(Read(ns, text));
  EXPECT_EQ(1000u, RootsOf(ns).size());
}

TEST(MofProblem, QuotesOnlyTheBeginningOfWhatIsLong) {
  const std::string huge(1000000, '9');
  for (const std::string& text :
       {"class A { uint8 P = " + huge + "; };",
        "class A { real64 P = " + huge + "." + huge + "x; };", "class A { a" + huge + " P; };",
        "a" + huge + " A;", "class A { datetime P = \"" + huge + "\"; };",
        "class A { A REF P = \"" + huge + "\"; };",
        "instance of A as $a" + huge + " { P = $b" + huge + "; };",
        "class A { [a" + huge + "] uint8 P; };"}) {
    MofProblem problem;
    EXPECT_NE("nothing", test_support::ThrownStatus([&] {
                ReadMofText(CreateMemoryNamespace("x"), text, "t", &problem);
              }));
    EXPECT_GT(500u, problem.reason.size()) << problem.reason.substr(0, 100);
    EXPECT_FALSE(problem.reason.empty());
  }
}

TEST(MofInclude, IsRelativeToTheFileThatNamesIt) {
  const TemporaryFolder folder;
  folder.Write("a/base.mof", "class Base { };\n");
  folder.Write("a/b/deep.mof", "#pragma include (\"..\\\\base.mof\")\nclass Deep : Base { };\n");
  const std::string top =
      folder.Write("top.mof", "#pragma include (\"a/b/deep.mof\")\nclass Top : Deep { };\n");
  const Namespace ns = CreateMemoryNamespace("x");
  ReadMofFile(ns, top, nullptr);
  EXPECT_EQ((Names{"Base"}), RootsOf(ns));
  EXPECT_EQ((Names{"Deep", "Top"}), SubClassesOf(ClassOf(ns, "Base"), true));
}

TEST(MofInclude, ProblemNamesTheFileThatHasIt) {
  const TemporaryFolder folder;
  folder.Write("inner.mof", "\n\nclass A { uint8 P = x; };\n");
  const std::string top = folder.Write("top.mof", "#pragma include (\"inner.mof\")\n");
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusInvalidFormat, ReadMofFile(CreateMemoryNamespace("x"), top, &problem));
  EXPECT_EQ("inner.mof", problem.file.substr(problem.file.size() - 9));
  EXPECT_EQ(3u, problem.line);
  EXPECT_EQ(21u, problem.column);
}

TEST(MofInclude, CircleEnds) {
  const TemporaryFolder folder;
  const std::string top = folder.Write("top.mof", "#pragma include (\"top.mof\")\n");
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusInvalidFormat, ReadMofFile(CreateMemoryNamespace("x"), top, &problem));
  EXPECT_EQ("files include one another more than 64 levels deep", problem.reason);
}

// Each of twenty files includes the next one ten times.
TEST(MofInclude, FilesThatMultiplyEnd) {
  const TemporaryFolder folder;
  for (int level = 0; level < 20; ++level) {
    std::string text;
    for (int times = 0; times < 10; ++times) {
      text += "#pragma include (\"" + std::to_string(level + 1) + ".mof\")\n";
    }
    folder.Write(std::to_string(level) + ".mof", text);
  }
  folder.Write("20.mof", "");
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusInvalidFormat,
                ReadMofFile(CreateMemoryNamespace("x"), folder.PathOf("0.mof"), &problem));
  EXPECT_EQ("more than 10000 files are included", problem.reason);
}

TEST(MofInclude, FolderIsNoFile) {
  const TemporaryFolder folder;
  folder.Write("a/b.mof", "");
  const std::string top = folder.Write("top.mof", "#pragma include (\"a\")\n");
  MofProblem problem;
  EXPECT_STATUS(kQDAStatusFileSystemError, ReadMofFile(CreateMemoryNamespace("x"), top, &problem));
  EXPECT_EQ("\"" + folder.PathOf("a") + "\" is no file that can be included", problem.reason);
  EXPECT_EQ(1u, problem.line);
}

TEST(MofInclude, FileThatIsNotThereIsToldByItsName) {
  const TemporaryFolder folder;
  MofProblem problem;
  const std::string path = folder.PathOf("none.mof");
  EXPECT_STATUS(kQDAStatusFileNotFound, ReadMofFile(CreateMemoryNamespace("x"), path, &problem));
  EXPECT_EQ(path, problem.file);
  EXPECT_EQ(0u, problem.line);
  EXPECT_EQ("file \"" + path + "\" cannot be opened", problem.reason);
}

}  // namespace
