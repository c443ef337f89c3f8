#include <plugins/machine/DateTime.h>

#include <ctime>
#include <random>

#include <gtest/gtest.h>

namespace {

using machine::DateTimeAt;

std::string TextAt(std::int64_t seconds) {
  const std::optional<NZRVQDA20::TCIMDateTime> time = DateTimeAt(seconds);
  return time ? time->ToString() : "none";
}

struct Row {
  std::int64_t seconds;
  const char* text;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.seconds; }

class SecondsSince1970 : public testing::TestWithParam<Row> {};

TEST_P(SecondsSince1970, AreATimestampInUtc) {
  EXPECT_EQ(GetParam().text, TextAt(GetParam().seconds));
}

INSTANTIATE_TEST_SUITE_P(Times, SecondsSince1970,
                         testing::Values(Row{0, "19700101000000.000000+000"},
                                         Row{86399, "19700101235959.000000+000"},
                                         Row{86400, "19700102000000.000000+000"},
                                         Row{951782400, "20000229000000.000000+000"},
                                         Row{951868800, "20000301000000.000000+000"},
                                         Row{1704067199, "20231231235959.000000+000"},
                                         Row{1709210096, "20240229123456.000000+000"},
                                         Row{4107542400, "21000301000000.000000+000"},
                                         Row{32503679999, "29991231235959.000000+000"},
                                         Row{32503680000, "none"}, Row{INT64_MAX, "none"},
                                         Row{-1, "none"}, Row{INT64_MIN, "none"}));

TEST(DateTimeAt, AgreesWithTheCLibrary) {
  std::mt19937_64 random(1);
  for (int round = 0; round < 2000; ++round) {
    const std::time_t seconds = static_cast<std::time_t>(random() % 32503680000u);
    const std::tm* const fields = std::gmtime(&seconds);
    ASSERT_NE(nullptr, fields);
    char text[64];
    ASSERT_NE(0u, std::strftime(text, sizeof text, "%Y%m%d%H%M%S.000000+000", fields));
    ASSERT_EQ(text, TextAt(seconds));
  }
}

}  // namespace
