#include <plugins/machine/HostText.h>

#include <gtest/gtest.h>

namespace {

using machine::DecimalIn;
using machine::FlagIn;
using machine::NameIn;
using machine::Product;
using machine::Split;
using machine::TakeLine;
using machine::Trimmed;

struct NumberRow {
  const char* what;
  std::string text;
  std::optional<std::uint64_t> number;
};

void PrintTo(const NumberRow& row, std::ostream* stream) { *stream << row.what; }

class DecimalOf : public testing::TestWithParam<NumberRow> {};

TEST_P(DecimalOf, IsExactOrAbsent) {
  EXPECT_EQ(GetParam().number, DecimalIn(std::string_view(GetParam().text)));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, DecimalOf,
    testing::Values(NumberRow{"zero", "0\n", 0}, NumberRow{"leading zeros", "007", 7},
                    NumberRow{"blanks around", " \t42 \n", 42},
                    NumberRow{"largest", "18446744073709551615", UINT64_MAX},
                    NumberRow{"one more than the largest", "18446744073709551616", {}},
                    NumberRow{"very long", std::string(5000, '9'), {}},
                    NumberRow{"very long zero", std::string(5000, '0'), 0},
                    NumberRow{"empty", "", {}}, NumberRow{"blanks only", " \n", {}},
                    NumberRow{"minus", "-1\n", {}}, NumberRow{"plus", "+1", {}},
                    NumberRow{"hexadecimal", "0x10", {}}, NumberRow{"fraction", "1.0", {}},
                    NumberRow{"two numbers", "1 2", {}}, NumberRow{"letter behind", "1k", {}},
                    NumberRow{"NUL inside", std::string("1\0002", 3), {}},
                    NumberRow{"NUL behind", std::string("1\0", 2), 1}));

TEST(DecimalIn, GivesNothingAboveItsLimit) {
  EXPECT_EQ(255u, DecimalIn(std::string_view("255"), 255));
  EXPECT_EQ(std::nullopt, DecimalIn(std::string_view("256"), 255));
  EXPECT_EQ(std::nullopt, DecimalIn(std::optional<std::string>()));
}

TEST(FlagIn, TakesOneAndZeroOnly) {
  EXPECT_EQ(true, FlagIn(std::string("1\n")));
  EXPECT_EQ(false, FlagIn(std::string("0\n")));
  EXPECT_EQ(std::nullopt, FlagIn(std::string("2\n")));
  EXPECT_EQ(std::nullopt, FlagIn(std::string("yes")));
  EXPECT_EQ(std::nullopt, FlagIn(std::nullopt));
}

TEST(NameIn, TakesThePaddingOff) {
  EXPECT_EQ("a b", NameIn(std::string("  a b \n")));
  EXPECT_EQ("a", NameIn(std::string("a\0\0\0", 4)));
  EXPECT_EQ("\xFF\xC3", NameIn(std::string("\xFF\xC3 ")));
  EXPECT_EQ(std::nullopt, NameIn(std::string(" \0 \n", 4)));
  EXPECT_EQ(std::nullopt, NameIn(std::nullopt));
}

TEST(TakeLine, TakesEachLineOnce) {
  std::string_view rest = "a\n\nb";
  std::string_view line;
  ASSERT_TRUE(TakeLine(&rest, &line));
  EXPECT_EQ("a", line);
  ASSERT_TRUE(TakeLine(&rest, &line));
  EXPECT_EQ("", line);
  ASSERT_TRUE(TakeLine(&rest, &line));
  EXPECT_EQ("b", line);
  EXPECT_FALSE(TakeLine(&rest, &line));
}

TEST(Split, KeepsEmptyParts) {
  EXPECT_EQ((std::vector<std::string_view>{"a", "", "b", ""}), Split("a::b:", ':'));
  EXPECT_EQ((std::vector<std::string_view>{""}), Split("", ':'));
}

TEST(Product, IsAbsentWhenItDoesNotFit) {
  EXPECT_EQ(UINT64_MAX - 1, Product((UINT64_MAX - 1) / 2, 2));
  EXPECT_EQ(std::nullopt, Product(UINT64_MAX / 2 + 1, 2));
  EXPECT_EQ(0u, Product(0, UINT64_MAX));
  EXPECT_EQ(std::nullopt, Product(std::nullopt, 0));
  EXPECT_EQ(std::nullopt, Product(0, std::nullopt));
}

}  // namespace
