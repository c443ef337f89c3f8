// The machine type and model that stand in a product name.

#include <clocale>

#include <gtest/gtest.h>

#include <qdacore/identity/TCIMSchemaHelper.h>
#include <tests/identity/StubNamespace.h>
#include <tests/support/ExpectStatus.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace identity_stub;
using namespace test_support;

typedef std::vector<std::string> Lines;

// A machine of this product name.
class Machine : public OneClass {
 public:
  explicit Machine(const std::string& productName)
      : OneClass("ZRVSG_ComputerSystem", {{{"ProductName", TCIMValue(productName)}}}) {}
};

const char kBad[] = "kQDAStatusInvalidFormat";

struct MTMRow {
  std::string productName;
  // The code, or the status thrown.
  const char* expected;
};

const MTMRow kNames[] = {
    // The first fixed shape.
    {"ZRV Tserver k7265-[1234AC1]", "1234AC1"},
    {"ZRV Tserver k7265-[1234AC1]   ", "1234AC1"},
    {"ZRV Tserver k7265-[1234   ]", "1234   "},
    {"ZRV Tserver k7265-[1234 A ]", "1234 A "},
    {"ZRV Tserver k7265-[abcdxyz]", "abcdxyz"},
    // It falls through to the general form with any of its conditions unmet.
    {"ZRV Tserver k7265-[1234   ]-", "1234xxx"},
    {"zrv Tserver k7265-[1234   ]", "1234xxx"},
    {" ZRV Tserver k7265-[1234   ]", "1234xxx"},
    {"ZRV Tserver k7265-[1234]", "1234xxx"},
    {"ZRV Tserver k7265-[12-4AC1]", kBad},
    {"ZRV Tserver k7265-[1234AC1)", kBad},
    {"ZRV Tserver k7265-[1234]A1]", "1234xxx"},
    // The second.
    {"ZRV Tserver k410-[5678XXX]", "5678XXX"},
    {"ZRV Tserver k410-[5678   ]", "5678   "},
    {"ZRV Tserver k411-[5678   ]", "5678xxx"},
    {"ZRV Tserver k410-[5678XXX]-", "5678XXX"},
    {"ZRV Tserver k410-[567/XXX]", kBad},
    // The third, with whatever stands in front of the closing dash.
    {"ZRV Tserver k7310- 2468AC1 -", "2468AC1"},
    {"ZRV Tserver k7310- 2468AC1x-", "2468AC1"},
    {"ZRV Tserver k7310- 2468AC1]-", "2468AC1"},
    {std::string("ZRV Tserver k7310- 2468AC1\0-", 28), "2468AC1"},
    {"ZRV Tserver k7310- 2468AC1\xFF-", "2468AC1"},
    {"ZRV Tserver k7310- 2468    -", "2468   "},
    {"ZRV Tserver k7310- 2468AC1 -  ", "2468AC1"},
    {"ZRV Tserver k7310- 2468AC1 +", kBad},
    {"ZRV Tserver k7310- 2468AC1  -", kBad},
    {"ZRV Tserver k7310-[2468AC1]-", "2468AC1"},
    {"ZRV Tserver k7310- 246-AC1 -", kBad},
    // Brackets anywhere.
    {"Some name-[1234AC1]", "1234AC1"},
    {"Some name-[1234AC1]- and more", "1234AC1"},
    {"Some name-[1234   ]", "1234xxx"},
    {"Some name-[1234  1]", "1234  1"},
    {"Some name-[1234 1 ]", "1234 1 "},
    {"Some name-[1234]", "1234xxx"},
    {"Some name-[1234]   ", "1234xxx"},
    {"Some name-[1234] 1]", "1234xxx"},
    {"-[1234AC1]", "1234AC1"},
    {"-[1234]", "1234xxx"},
    {"-[1234-[1234AC1]", kBad},
    {"-[x] -[1234AC1]", kBad},
    {"Some name-[79]", kBad},
    {"Some name-[]", kBad},
    {"Some name-[", kBad},
    {"-[", kBad},
    {"Some name-[1234AC1", kBad},
    {"Some name-[1234AC1 ]", kBad},
    {"Some name-[1234AC]", kBad},
    {"Some name-[ 234AC1]", kBad},
    {"Some name-[123 AC1]", kBad},
    {"Some name-[1234A_1]", kBad},
    {"Some name-[1234\tC1]", kBad},
    {std::string("Some name-[1234\0C1]", 19), kBad},
    {"Some name-[\xC4\x32\x33\x34"
     "AC1]",
     kBad},
    {"Some name-[1234A\xE4"
     "1]",
     kBad},
    {"Some name-[12\xB2\x34]", kBad},
    {"Some name [1234AC1]", kBad},
    // The whole name.
    {"1234AC1", "1234AC1"},
    {"1234AC1      ", "1234AC1"},
    {"1234 C1", "1234 C1"},
    {"1234  1", "1234  1"},
    {"abcdefg", "abcdefg"},
    {" 1234AC", kBad},
    {"1234   ", kBad},
    {"1234AC1\t", kBad},
    {"1234AC", kBad},
    {"1234AC12", kBad},
    {"12.4AC1", kBad},
    {"1234A.1", kBad},
    {std::string("1234AC\0", 7), kBad},
    {std::string("1234AC1\0", 8), kBad},
    {"1234", kBad},
    {"", kBad},
    {" ", kBad},
    {"            ", kBad},
};

std::string MTMOrStatus(const std::string& productName) {
  Machine machine(productName);
  std::string result;
  const std::string status = ThrownStatus([&] { result = TCIMSchemaHelper::GetMTM(machine); });
  return status == "nothing" ? result : status;
}

TEST(GetMTM, IsFoundInEveryKnownShape) {
  for (const MTMRow& row : kNames) {
    EXPECT_EQ(row.expected, MTMOrStatus(row.productName)) << "[" << row.productName << "]";
  }
}

TEST(GetMTM, EveryByteButLettersDigitsAndBlanksIsRefused) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(byte);
    const char character = static_cast<char>(byte);
    const bool letterOrDigit = (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                               (byte >= 'a' && byte <= 'z');
    std::string type = "x-[1234AC1]";
    type[6] = character;
    EXPECT_EQ(letterOrDigit ? type.substr(3, 7) : kBad, MTMOrStatus(type));
    std::string model = "x-[1234AC1]";
    model[8] = character;
    // The closing bracket in the place of the model ends a short code elsewhere, not here.
    EXPECT_EQ(letterOrDigit || byte == ' ' ? model.substr(3, 7) : kBad, MTMOrStatus(model));
  }
}

// Characters are judged as in the "C" locale, whatever the host has set.
TEST(GetMTM, LocaleDoesNotCount) {
  bool switched = false;
  for (const char* locale :
       {"de_DE.ISO-8859-1", "de_DE", "German_Germany.1252", "en_US.ISO-8859-1"}) {
    if (!std::setlocale(LC_ALL, locale)) {
      continue;
    }
    switched = true;
    EXPECT_EQ(kBad, MTMOrStatus("x-[123\xC4"
                                "AC1]"));
    EXPECT_EQ(kBad, MTMOrStatus("123\xE4"
                                "AC1"));
  }
  std::setlocale(LC_ALL, "C");
  if (!switched) {
    GTEST_SKIP() << "this machine has no locale in which bytes above 127 are letters";
  }
}

TEST(GetMTM, LongNamesAreNoTrouble) {
  EXPECT_EQ("1234AC1",
            MTMOrStatus(std::string(100000, 'x') + "-[1234AC1]" + std::string(100000, ' ')));
  EXPECT_EQ(kBad, MTMOrStatus(std::string(100000, '-') + std::string(100000, '[')));
}

TEST(GetMTM, LogsWhatItFound) {
  LogCapture log;
  MTMOrStatus("ZRV Tserver k7265-[1234   ]");
  MTMOrStatus("Some name-[1234   ]");
  MTMOrStatus("1234AC1");
  EXPECT_EQ((Lines{"[Debug] TCIMSchemaHelper- Detected MTM 1234   ",
                   "[Debug] TCIMSchemaHelper- Detected MTM 1234xxx",
                   "[Debug] TCIMSchemaHelper- Detected MTM 1234AC1"}),
            log.Lines());
}

TEST(GetMTM, UnknownShapeLogsNothing) {
  LogCapture log;
  EXPECT_EQ(kBad, MTMOrStatus("Some name-[79]"));
  EXPECT_EQ(kBad, MTMOrStatus("1234"));
  EXPECT_EQ(Lines(), log.Lines());
}

TEST(MachineTypeAndModel, AreTheTwoPartsOfTheMTM) {
  Machine full("Some name-[1234AC1]");
  EXPECT_EQ("1234", TCIMSchemaHelper::GetMachineType(full));
  EXPECT_EQ("AC1", TCIMSchemaHelper::GetModelNumber(full));
  Machine typeOnly("Some name-[1234]");
  EXPECT_EQ("1234", TCIMSchemaHelper::GetMachineType(typeOnly));
  EXPECT_EQ("xxx", TCIMSchemaHelper::GetModelNumber(typeOnly));
  Machine blanks("ZRV Tserver k7265-[1234   ]");
  EXPECT_EQ("   ", TCIMSchemaHelper::GetModelNumber(blanks));
}

TEST(MachineTypeAndModel, FailAsTheMTMDoes) {
  LogCapture log;
  Machine bad("Some name-[79]");
  EXPECT_STATUS(kQDAStatusInvalidFormat, TCIMSchemaHelper::GetMachineType(bad));
  EXPECT_STATUS(kQDAStatusInvalidFormat, TCIMSchemaHelper::GetModelNumber(bad));
  OneClass none("ZRVSG_ComputerSystem", {});
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetMTM(none));
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetMachineType(none));
  EXPECT_STATUS(kQDAStatusNotFound, TCIMSchemaHelper::GetModelNumber(none));
  const std::string line = "[Debug] TCIMSchemaHelper: computer system instances != 1";
  EXPECT_EQ((Lines{line, line, line}), log.Lines());
}

}  // namespace
