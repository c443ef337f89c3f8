// Strings from firmware reach terminals and JSON readers: neither may be harmed.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::DumpFile;
using qda_test::ParseJson;
using qda_test::RunQda;
using test_support::ChildResult;
using testing::HasSubstr;

// An escape sequence, a byte that is no UTF-8, a C1 control character, a direction mark, and a
// line feed with a line that looks like ours.
const char kHostile[] = "\x1B[31mX\xFF\xC2\x9B\xE2\x80\xAE\nMachine type 9999\r\t\x7F-[1234AC1]";
const char kHostileShown[] =
    "\\x1B[31mX\\xFF\\xC2\\x9B\\xE2\\x80\\xAE\\x0AMachine type 9999\\x0D\\x09\\x7F-[1234AC1]";

bool IsHarmless(char character) {
  return character == '\n' || (character >= ' ' && character <= '~');
}

TEST(HostileFirmware, IsEscapedInTheTable) {
  const DumpFile dump(kHostile, "\x08\x08");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(run.output,
              HasSubstr(std::string("\nProduct name              ") + kHostileShown + "\n"));
  EXPECT_THAT(run.output, HasSubstr("\nSerial number             \\x08\\x08\n"));
  EXPECT_THAT(run.output, HasSubstr("Machine type and model    1234AC1\n"));
  EXPECT_EQ(9, std::count(run.output.begin(), run.output.end(), '\n'));
  EXPECT_TRUE(std::all_of(run.output.begin(), run.output.end(), IsHarmless)) << run.output;
}

TEST(HostileFirmware, IsEscapedInJson) {
  const DumpFile dump(kHostile, "S\xC3\xA9");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path(), "-o", "json"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_TRUE(std::all_of(run.output.begin(), run.output.end(), IsHarmless)) << run.output;
  const nlohmann::json json = ParseJson(run.output);
  EXPECT_EQ("\x1B[31mX\xEF\xBF\xBD\xC2\x9B\xE2\x80\xAE\nMachine type 9999\r\t\x7F-[1234AC1]",
            json["productName"]);
  EXPECT_EQ("S\xC3\xA9", json["serialNumber"]);
}

TEST(HostileFirmware, IsEscapedInMessages) {
  const DumpFile dump("\x1B]0;title\x07 \xFF", "S1");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path()});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_EQ(
      "qda: machine type and model: product name \"\\x1B]0;title\\x07 \\xFF\" carries no type and "
      "model (kQDAStatusInvalidFormat)\n",
      run.error);
}

TEST(HostileFirmware, OfLengthIsShownWhole) {
  const std::string name = std::string(60000, '{') + "%s-[1234AC1]";
  const DumpFile dump(name, "S1");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path()});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_THAT(run.output, HasSubstr("\nProduct name              " + name + "\n"));
}

TEST(HostileFirmware, ThatFormatsTextIsOnlyText) {
  const DumpFile dump("{} {0} %n%s {:>99999999}", "S1");
  const ChildResult run = RunQda({"identify", "--smbios-dump", dump.Path()});
  EXPECT_EQ(1, run.exitCode);
  EXPECT_THAT(run.output, HasSubstr("\nProduct name              {} {0} %n%s {:>99999999}\n"));
  EXPECT_THAT(run.error, HasSubstr("\"{} {0} %n%s {:>99999999}\""));
}

}  // namespace
