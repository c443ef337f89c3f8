// The values of a MOF text, for each type: what they become, or what is wrong with them.

#include <tests/qdamemory/NamespaceContent.h>
#include <tests/qdamemory/mof/MofTestSupport.h>

namespace {

using namespace memory_test;

struct ValueRow {
  const char* type;
  const char* text;
  const char* expected;  // as DescribeValue has it
};

const ValueRow kValues[] = {
    {"boolean", "TRUE", "1 true"},
    {"boolean", "false", "1 false"},
    {"boolean", "NULL", "1 null"},
    {"uint8", "255", "2 255"},
    {"uint8", "+7", "2 7"},
    {"uint8", "-0", "2 0"},
    {"uint8", "0xfF", "2 255"},
    {"uint8", "0X10", "2 16"},
    {"uint8", "017", "2 15"},
    {"uint8", "0", "2 0"},
    {"uint8", "1010b", "2 10"},
    {"uint8", "11B", "2 3"},
    {"uint8", "0b", "2 0"},
    {"sint8", "-128", "3 -128"},
    {"sint8", "127", "3 127"},
    {"uint16", "65535", "4 65535"},
    {"sint16", "-32768", "5 -32768"},
    {"uint32", "4294967295", "6 4294967295"},
    {"sint32", "-2147483648", "7 -2147483648"},
    {"uint64", "18446744073709551615", "8 18446744073709551615"},
    {"uint64", "0xFFFFFFFFFFFFFFFF", "8 18446744073709551615"},
    {"sint64", "-9223372036854775808", "9 -9223372036854775808"},
    {"sint64", "9223372036854775807", "9 9223372036854775807"},
    {"real32", "1.5", "10 0x1.8p+0"},
    {"real32", "-2.5E-1", "10 -0x1p-2"},
    {"real64", ".5", "11 0x1p-1"},
    {"real64", "1.0e+3", "11 0x1.f4p+9"},
    {"real64", "3", "11 0x1.8p+1"},
    {"real64", "-3", "11 -0x1.8p+1"},
    {"real64", "\"INF\"", "11 inf"},
    {"real64", "\"-INF\"", "11 -inf"},
    {"real64", "\"NaN\"", "11 nan"},
    {"char16", "'a'", "12 97"},
    {"char16", "'\\n'", "12 10"},
    {"char16", "'\\''", "12 39"},
    {"char16", "'\\xFFFF'", "12 65535"},
    {"char16", "'\\x0'", "12 0"},
    {"char16", "'\xC3\xA9'", "12 233"},
    {"char16", "'\xE2\x82\xAC'", "12 8364"},
    {"string", "\"\"", "13 "},
    {"string", "\"a\" \"b\" /* c */ \"d\"", "13 abd"},
    {"string", "\"\\b\\t\\n\\f\\r\\\"\\'\\\\\"", "13 \b\t\n\f\r\"'\\"},
    {"string", "\"\\x41\\x00e9\\X20ACb\"",
     "13 A\xC3\xA9\xE2\x82\xAC"
     "b"},
    {"string", "\"\xC3\xA9\xFF\"", "13 \xC3\xA9\xFF"},
    {"string", "\"// no comment /* here */\"", "13 // no comment /* here */"},
    {"datetime", "\"00000001020304.000005:000\"", "14 00000001020304.000005:000"},
    {"uint8", "{}", nullptr},
    {"uint8", "256", nullptr},
    {"uint8", "-1", nullptr},
    {"uint8", "1.0", nullptr},
    {"uint8", "\"1\"", nullptr},
    {"uint8", "TRUE", nullptr},
    {"uint8", "'1'", nullptr},
    {"uint8", "08", nullptr},
    {"uint8", "0x", nullptr},
    {"uint8", "12b", nullptr},
    {"uint8", "1_000", nullptr},
    {"sint8", "128", nullptr},
    {"sint8", "-129", nullptr},
    {"uint64", "18446744073709551616", nullptr},
    {"sint64", "9223372036854775808", nullptr},
    {"real32", "1.0e39", nullptr},
    {"real64", "1.0e999", nullptr},
    {"real64", "1.0.0", nullptr},
    {"real64", "\"infinite\"", nullptr},
    {"boolean", "1", nullptr},
    {"boolean", "yes", nullptr},
    {"string", "abc", nullptr},
    {"string", "\"a", nullptr},
    {"string", "\"\\q\"", nullptr},
    {"string", "\"\\xg\"", nullptr},
    {"char16", "''", nullptr},
    {"char16", "'ab'", nullptr},
    {"char16", "\"a\"", nullptr},
    {"char16", "'\n'", nullptr},
    {"char16", "'\xC3'", nullptr},
    {"char16", "'\xC0\x80'", nullptr},
    {"char16", "'\xE0\x80\x80'", nullptr},
    {"char16", "'\xF0\x9F\x98\x80'", nullptr},
    {"char16", "'\xFF'", nullptr},
    {"datetime", "\"2026\"", nullptr},
    {"datetime", "20261121", nullptr},
};

TEST(MofValue, ReadsWhatFitsAndRefusesWhatDoesNot) {
  for (const ValueRow& row : kValues) {
    SCOPED_TRACE(std::string(row.type) + " = " + row.text);
    const Namespace ns = CreateMemoryNamespace("values");
    const std::string text = std::string("class A { ") + row.type + " P = " + row.text + "; };";
    if (row.expected) {
      ASSERT_TRUE(Read(ns, text));
      EXPECT_EQ(std::string("property P ") + row.expected, ContentOf(ns).classes.at("A").at(2));
    } else {
      MofProblem problem;
      EXPECT_STATUS(kQDAStatusInvalidFormat, ReadMofText(ns, text, "t", &problem));
      EXPECT_EQ(1u, problem.line);
      EXPECT_LT(10u, problem.column);
      EXPECT_FALSE(problem.reason.empty());
    }
  }
}

struct ArrayRow {
  const char* declaration;
  const char* expected;
};

const ArrayRow kArrays[] = {
    {"uint8 P[] = {1, 0x2, NULL}", "18[0] {2 1} {2 2} {2 null}"},
    {"uint8 P[3]", "18[3] null"},
    {"uint8 P[] = NULL", "18[0] null"},
    {"string P[2] = {}", "29[2]"},
    {"string P[] = {\"a\" \"b\", \"c\"}", "29[0] {13 ab} {13 c}"},
    {"uint8 P[] = {1,}", "18[0] {2 1}"},
    {"uint8 P[] = 1", nullptr},
    {"uint8 P = {1}", nullptr},
    {"uint8 P[0]", nullptr},
    {"uint8 P[-1]", nullptr},
    {"uint8 P[4294967296]", nullptr},
    {"uint8 P[] = {1 2}", nullptr},
    {"uint8 P[] = {{1}}", nullptr},
};

TEST(MofValue, ArraysHaveTheirSizeAndTheirElements) {
  for (const ArrayRow& row : kArrays) {
    SCOPED_TRACE(row.declaration);
    const Namespace ns = CreateMemoryNamespace("values");
    const std::string text = std::string("class A { ") + row.declaration + "; };";
    if (row.expected) {
      ASSERT_TRUE(Read(ns, text));
      EXPECT_EQ(std::string("property P ") + row.expected, ContentOf(ns).classes.at("A").at(2));
    } else {
      EXPECT_STATUS(kQDAStatusInvalidFormat, ReadMofText(ns, text, "t", nullptr));
    }
  }
}

}  // namespace
