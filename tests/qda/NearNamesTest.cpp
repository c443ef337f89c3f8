#include <qda/NearNames.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using qda::NearNames;
using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> kNames = {"CIM_Processor", "CIM_Card", "ZRVSG_ComputerSystem",
                                         "CIM_ComputerSystem", "CIM_Chassis"};

struct Row {
  const char* what;
  const char* wanted;
  std::vector<std::string> near;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.what; }

class NearNamesTest : public testing::TestWithParam<Row> {};

TEST_P(NearNamesTest, AreTheNearestFirst) {
  EXPECT_EQ(GetParam().near, NearNames(GetParam().wanted, kNames));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NearNamesTest,
    testing::Values(Row{"a letter too few", "CIM_Procesor", {"CIM_Processor"}},
                    Row{"another case", "cim_chassis", {"CIM_Chassis"}},
                    Row{"a part", "ComputerSystem", {"CIM_ComputerSystem", "ZRVSG_ComputerSystem"}},
                    Row{"more than the name", "CIM_Card.Tag", {"CIM_Card"}},
                    Row{"letters changed", "CIM_Crad", {"CIM_Card"}},
                    Row{"too short a part", "CIM", {}}, Row{"like none", "Win32_Fan", {}},
                    Row{"empty", "", {}}));

TEST(NearNamesTest, AreThreeAtMostInTheirOrder) {
  EXPECT_THAT(NearNames("abcd", {"abcd5", "abcd4", "abcd3", "abcd2"}),
              ElementsAre("abcd5", "abcd4", "abcd3"));
}

TEST(NearNamesTest, OfAHugeNameAreNone) {
  EXPECT_THAT(NearNames(std::string(1000000, 'a'), {std::string(1000000, 'a')}), IsEmpty());
}

}  // namespace
