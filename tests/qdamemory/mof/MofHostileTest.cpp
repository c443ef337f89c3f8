// Texts that are cut, bent and glued together: reading ends, by itself or with a problem.

#include <random>

#include <tests/qdamemory/mof/MofTestSupport.h>

namespace {

using namespace memory_test;

const char kText[] =
    "Qualifier Key : boolean = false, Scope(property), Flavor(DisableOverride);\n"
    "/* c */ [Key (true)] class A { [Key] string ID = \"a\\x41\" \"b\"; uint8 P[3] = {1, 0x2, "
    "3b};\n"
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

}  // namespace
