// What versions and product names stand for, and structures that are not as they should be, with
// a scripted smbios library.

#include <cctype>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/ScriptedSmbios.h>

namespace {

using namespace NZRVQDA20;
using namespace scripted_smbios;
using namespace std::string_literals;
using smbios::sample::Bytes;
using smbios::sample::StructureBuilder;

const char kOutOfRange[] = "out of range";

TEST(GetBiosID, IsTheBeginningOfTheBuildText) {
  const struct {
    const char* version;
    const char* expected;
  } rows[] = {
      {"-[GYE143AUS-1.20]-", "GY"},
      {"GYE143AUS", "GY"},
      {"gy", "gy"},
      {"1.60", "1."},
      {"AB-1", "AB"},
      // A single dash ends the build text, and a second one lets the first stand inside it.
      {"A-B", kOutOfRange},
      {"A-B-C", "A-"},
      {"-AB", kOutOfRange},
      {"-A-B", "-A"},
      {"--", kOutOfRange},
      {"A--", "A-"},
      {"[AB", "AB"},
      {"AB]CD", "AB"},
      {"]AB", kOutOfRange},
      {"a]b[cd", "cd"},
      {"x[A]y", kOutOfRange},
      {"x[]y", kOutOfRange},
      {"[A[B]", "A["},
      {"A", kOutOfRange},
      // String number 0.
      {"", kOutOfRange},
      {"\xC4\xD6\xDC", "\xC4\xD6"},
      {"  x", "  "},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.expected, Result(Machine(row.version, "x"), TOSSpecific::GetBiosID))
        << row.version;
  }
}

Script WithVendor(std::size_t length, const std::string& version) {
  Script script = Machine(version, "x");
  script.answers[0].bytes =
      StructureBuilder(0, 0).Text(std::string(length, 'v')).Text(version).Byte(0).Build();
  return script;
}

TEST(GetBiosID, LooksAHundredBytesIntoTheStrings) {
  // The NUL of the version is the last byte that is looked at, or the first that is not.
  EXPECT_EQ("GY", Result(WithVendor(96, "GY"), TOSSpecific::GetBiosID));
  EXPECT_EQ(kOutOfRange, Result(WithVendor(97, "GY"), TOSSpecific::GetBiosID));
  EXPECT_EQ(kOutOfRange, Result(WithVendor(98, "GY"), TOSSpecific::GetBiosID));
  EXPECT_EQ(kOutOfRange, Result(WithVendor(200, "GY"), TOSSpecific::GetBiosID));
}

TEST(GetBiosID, VersionMayBeTheFirstString) {
  Script script;
  for (const std::size_t length : {2u, 50u, 99u}) {
    script.answers[0].bytes =
        StructureBuilder(0, 0).Byte(0).Text("GY" + std::string(length - 2, 'x')).Build();
    EXPECT_EQ("GY", Result(script, TOSSpecific::GetBiosID)) << length;
  }
  script.answers[0].bytes =
      StructureBuilder(0, 0).Byte(0).Text("GY" + std::string(98, 'x')).Build();
  EXPECT_EQ(kOutOfRange, Result(script, TOSSpecific::GetBiosID));
}

// Behind the structure the buffer is clear, and each of its NULs counts as an empty string.
TEST(GetBiosID, StringThatTheSetHasNotIsEmpty) {
  for (const unsigned char number : {3, 4, 50, 99, 255}) {
    Script script;
    script.answers[0].bytes =
        StructureBuilder(0, 0).Byte(1).Byte(number).LooseText("ZRV").LooseText("GY").Build();
    EXPECT_EQ(kOutOfRange, Result(script, TOSSpecific::GetBiosID)) << int(number);
  }
}

TEST(GetBiosID, LengthOfTheFormattedAreaIsNotTrusted) {
  for (int length = 0; length < 256; ++length) {
    Script script = Machine("GY", "x");
    script.answers[0].bytes[1] = static_cast<unsigned char>(length);
    const std::string result = Result(script, TOSSpecific::GetBiosID);
    EXPECT_TRUE(result == kOutOfRange || result.size() == 2) << length << " " << result;
  }
}

// The last byte of the buffer is a long way behind what is looked at.
TEST(GetBiosID, FullBufferIsReadNoFurther) {
  Script script;
  script.answers[0].bytes = Bytes(5000, 0xFF);
  EXPECT_EQ(kOutOfRange, Result(script, TOSSpecific::GetBiosID));
}

TEST(GetMachineTypeFromID, KnowsFifteenIdentifiers) {
  const struct {
    const char* identifier;
    const char* machineType;
  } rows[] = {{"a3", "7141"}, {"k3", "4192"}, {"gu", "4367"}, {"m9", "4190"}, {"p9", "1936"},
              {"d6", "4199"}, {"y4", "7836"}, {"tm", "7321"}, {"gy", "7327"}, {"g0", "7145"},
              {"hi", "7872"}, {"hs", "7376"}, {"ml", "7148"}, {"j2", "4253"}, {"ay", "7164"}};
  for (const auto& row : rows) {
    std::string upper;
    for (const char* at = row.identifier; *at; ++at) {
      upper += static_cast<char>(std::toupper(static_cast<unsigned char>(*at)));
    }
    const std::string mixed = {upper[0], row.identifier[1]};
    for (const std::string& version :
         {std::string(row.identifier), upper, mixed, "-[" + upper + "E123-1.2]-"}) {
      EXPECT_EQ(row.machineType,
                Result(Machine(version, "Tserver -[9999AC1]-"), TOSSpecific::GetMachineTypeFromID))
          << version;
    }
    // It does not replace the case of the other operation's result.
    EXPECT_EQ(upper, Result(Machine(upper, "x"), TOSSpecific::GetBiosID));
  }
}

TEST(GetMachineTypeFromID, OtherIdentifiersKeepTheType) {
  for (const char* version : {"3a", "xa3", "g y", "GI", "00", "A-3-"}) {
    EXPECT_EQ("9999", Result(Machine(version, "T -[9999AC1]-"), TOSSpecific::GetMachineTypeFromID))
        << version;
  }
}

TEST(GetMachineType, IsCutOutOfTheProductName) {
  const struct {
    const char* name;
    const char* expected;
  } rows[] = {
      {"ZRV server -[7145AC1]-", "7145"},
      {"T-x1234567", "1234"},
      {"-[7145AC1]-", "7145"},
      {"a-b-c-d-e-f", "-c-d"},
      {"MS-7816", "816"},
      {"ABC-xyz", "yz"},
      {"L70-A", ""},
      {"--", ""},
      {"L70-", kOutOfRange},
      {"-", kOutOfRange},
      {"1234567", "1234"},
      {"UX305LA", "UX30"},
      {"       ", "    "},
      {"12345678", "0000"},
      {"123456", "0000"},
      {"x", "0000"},
      // String number 0.
      {"", "0000"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.expected, Result(Machine("AB", row.name), TOSSpecific::GetMachineType))
        << row.name;
  }
}

Script System(const Bytes& bytes, int size = kWhole) {
  Script script;
  script.answers[1].bytes = bytes;
  script.answers[1].size = size;
  return script;
}

TEST(GetMachineType, DoesNotSeeTheLastString) {
  const Bytes last = StructureBuilder(1, 1).Text("ZRV").Text("-[7145AC1]-").Build();
  EXPECT_EQ("0000", Result(System(last), TOSSpecific::GetMachineType));
  Bytes longer = last;
  longer.push_back(0);
  EXPECT_EQ("7145", Result(System(longer), TOSSpecific::GetMachineType));
  const Bytes only = StructureBuilder(1, 1).Byte(0).Text("-[7145AC1]-").Build();
  EXPECT_EQ("0000", Result(System(only), TOSSpecific::GetMachineType));
}

TEST(GetMachineType, StringThatTheSetHasNotIsTheDefault) {
  for (const unsigned char number : {0, 3, 4, 128, 255}) {
    EXPECT_EQ("0000", Result(System(StructureBuilder(1, 1)
                                        .Byte(1)
                                        .Byte(number)
                                        .LooseText("1234567")
                                        .LooseText("2345678")
                                        .LooseText("3456789")
                                        .Build()),
                             TOSSpecific::GetMachineType))
        << int(number);
  }
}

// The size that is said to be delivered ends what is looked at, but never behind the buffer.
TEST(GetMachineType, SizeIsNotTrusted) {
  const Bytes whole = Machine("AB", "-[7145AC1]-").answers[1].bytes;
  for (int size = 1; size < static_cast<int>(whole.size()) + 40; ++size) {
    // The product name's NUL lies at 23, and two bytes must follow it.
    EXPECT_EQ(size < 26 ? "0000" : "7145", Result(System(whole, size), TOSSpecific::GetMachineType))
        << size;
  }
  for (const int size : {1023, 1024, 1025, 65536, 2147483647}) {
    EXPECT_EQ("7145", Result(System(whole, size), TOSSpecific::GetMachineType)) << size;
  }
  EXPECT_EQ("0000", Result(System(Bytes(5000, 0xFF), 5000), TOSSpecific::GetMachineType));
}

TEST(GetMachineType, FormattedAreaBehindTheEndHasNoStrings) {
  const Bytes whole = Machine("AB", "-[7145AC1]-").answers[1].bytes;
  for (int length = static_cast<int>(whole.size()); length < 256; ++length) {
    Bytes bytes = whole;
    bytes[1] = static_cast<unsigned char>(length);
    EXPECT_EQ("0000", Result(System(bytes), TOSSpecific::GetMachineType)) << length;
  }
}

// Structures that no table would hold: the library that delivers them may be another one.
TEST(MachineIdentification, OfMadeUpStructuresIsADefaultOrOutOfRange) {
  std::mt19937 random(20220131);
  const Script whole = Machine("-[GYE143AUS-1.20]-", "ZRV server -[7145AC1]-");
  for (int round = 0; round < 10000; ++round) {
    Script bent = whole;
    for (auto& answer : bent.answers) {
      Bytes& bytes = answer.second.bytes;
      for (unsigned changes = random() % 6; changes > 0; --changes) {
        const unsigned char marks[] = {0, 0, 1, 2, 5, '-', '[', ']', 'x', 0xFF};
        bytes[random() % bytes.size()] = marks[random() % sizeof marks];
      }
      if (random() % 3 == 0) {
        bytes.resize(1 + random() % (2 * bytes.size()), static_cast<unsigned char>(random()));
      }
      if (random() % 5 == 0) {
        answer.second.size = static_cast<int>(random() % 1200) - 50;
      }
    }
    const std::string biosID = Result(bent, TOSSpecific::GetBiosID);
    ASSERT_TRUE(biosID == kOutOfRange || biosID.size() == 2) << biosID;
    const std::string machineType = Result(bent, TOSSpecific::GetMachineType);
    ASSERT_TRUE(machineType == kOutOfRange || machineType.size() <= 4) << machineType;
    const std::string fromID = Result(bent, TOSSpecific::GetMachineTypeFromID);
    ASSERT_EQ(biosID == kOutOfRange || machineType == kOutOfRange, fromID == kOutOfRange);
    ASSERT_TRUE(fromID == kOutOfRange || fromID.size() <= 4) << fromID;
  }
}

}  // namespace
