// Numbers read from text, against the stream that they stand for.

#include <qdacore/cim/value/internal/NumberExtraction.h>

#include <locale>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

namespace {

using namespace NZRVQDA20;

template <class Integer>
Integer FromStream(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  stream.unsetf(std::ios::dec);
  Integer number = 0;
  stream >> number;
  return number;
}

bool BooleanFromStream(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  stream.setf(std::ios::boolalpha);
  bool value = false;
  stream >> value;
  return value;
}

// All at once, as text, so that one comparison shows which differs.
std::string AllFromStream(const std::string& text) {
  std::ostringstream all;
  all << FromStream<unsigned short>(text) << ' ' << FromStream<short>(text) << ' '
      << FromStream<unsigned int>(text) << ' ' << FromStream<int>(text) << ' '
      << FromStream<unsigned long long>(text) << ' ' << FromStream<long long>(text) << ' '
      << BooleanFromStream(text);
  return all.str();
}

std::string AllExtracted(const std::string& text) {
  std::ostringstream all;
  all << ExtractUnsigned<unsigned short>(text) << ' ' << ExtractSigned<short>(text) << ' '
      << ExtractUnsigned<unsigned int>(text) << ' ' << ExtractSigned<int>(text) << ' '
      << ExtractUnsigned<unsigned long long>(text) << ' ' << ExtractSigned<long long>(text) << ' '
      << ExtractBoolean(text);
  return all.str();
}

TEST(NumberExtraction, KnownTexts) {
  struct Row {
    const char* text;
    // uint16, sint16, uint32, sint32, uint64, sint64, boolean
    const char* numbers;
  };
  const Row rows[] = {
      {"", "0 0 0 0 0 0 0"},
      {"0", "0 0 0 0 0 0 0"},
      {"12abc", "12 12 12 12 12 12 0"},
      {" \t\n\v\f\r12", "12 12 12 12 12 12 0"},
      {"0x1F", "31 31 31 31 31 31 0"},
      {"0X1f", "31 31 31 31 31 31 0"},
      {"017", "15 15 15 15 15 15 0"},
      {"08", "0 0 0 0 0 0 0"},
      {"-1", "65535 -1 4294967295 -1 18446744073709551615 -1 0"},
      {"-0x10", "65520 -16 4294967280 -16 18446744073709551600 -16 0"},
      {"+7", "7 7 7 7 7 7 0"},
      {"- 7", "0 0 0 0 0 0 0"},
      {"--7", "0 0 0 0 0 0 0"},
      {"0x", "0 0 0 0 0 0 0"},
      {"0xg", "0 0 0 0 0 0 0"},
      {"x1", "0 0 0 0 0 0 0"},
      {"1x2", "1 1 1 1 1 1 0"},
      {"70000", "65535 32767 70000 70000 70000 70000 0"},
      {"-70000", "65535 -32768 4294897296 -70000 18446744073709481616 -70000 0"},
      {"-32768", "32768 -32768 4294934528 -32768 18446744073709518848 -32768 0"},
      {"18446744073709551615",
       "65535 32767 4294967295 2147483647 18446744073709551615 9223372036854775807 0"},
      {"18446744073709551616",
       "65535 32767 4294967295 2147483647 18446744073709551615 9223372036854775807 0"},
      {"-9223372036854775808",
       "65535 -32768 4294967295 -2147483648 9223372036854775808 -9223372036854775808 0"},
      {"true", "0 0 0 0 0 0 1"},
      {"  trueish", "0 0 0 0 0 0 1"},
      {"false", "0 0 0 0 0 0 0"},
      {"TRUE", "0 0 0 0 0 0 0"},
      {"1", "1 1 1 1 1 1 0"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(row.numbers, AllExtracted(row.text));
    EXPECT_EQ(row.numbers, AllFromStream(row.text));
  }
}

TEST(NumberExtraction, LimitsOfEachBase) {
  for (const char* text : {"65535",
                           "65536",
                           "0xFFFF",
                           "0x10000",
                           "0177777",
                           "0200000",
                           "32767",
                           "32768",
                           "-32768",
                           "-32769",
                           "4294967295",
                           "4294967296",
                           "0xFFFFFFFF",
                           "0x100000000",
                           "037777777777",
                           "040000000000",
                           "2147483647",
                           "2147483648",
                           "-2147483648",
                           "-2147483649",
                           "-4294967295",
                           "-4294967296",
                           "0xFFFFFFFFFFFFFFFF",
                           "0x10000000000000000",
                           "01777777777777777777777",
                           "02000000000000000000000",
                           "9223372036854775807",
                           "9223372036854775808",
                           "-9223372036854775809",
                           "-18446744073709551615",
                           "-18446744073709551616",
                           "99999999999999999999999999",
                           "-99999999999999999999999999",
                           "0000000000000000000001",
                           "00x10",
                           "0x0x1",
                           "+-1",
                           "1,234",
                           "1.5",
                           "0x1.8",
                           "1e3"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(AllFromStream(text), AllExtracted(text));
  }
}

TEST(NumberExtraction, RandomTextsReadAsAStreamReadsThem) {
  // The frequent ones stand several times.
  const std::string characters =
      "00001122334455667788999fFeEaAxXxX++--  \t\n.,gtrue" + std::string(1, '\0');
  std::mt19937 random(19700101);
  for (int round = 0; round < 100000; ++round) {
    std::string text;
    for (unsigned count = random() % 24; count > 0; --count) {
      text += characters[random() % characters.size()];
    }
    ASSERT_EQ(AllFromStream(text), AllExtracted(text)) << round << ": " << text;
  }
}

TEST(NumberExtraction, RandomNumbersReadAsAStreamReadsThem) {
  std::mt19937_64 random(3000);
  for (int round = 0; round < 100000; ++round) {
    std::ostringstream text;
    const unsigned base = random() % 3;
    text << (random() % 2 ? "-" : "")
         << (base == 1   ? "0x"
             : base == 2 ? "0"
                         : "")
         << (base == 1   ? std::hex
             : base == 2 ? std::oct
                         : std::dec)
         << (random() >> random() % 64);
    if (random() % 4 == 0) {
      text << random() % 10;
    }
    ASSERT_EQ(AllFromStream(text.str()), AllExtracted(text.str())) << text.str();
  }
}

TEST(NumberExtraction, RandomWordsReadAsAStreamReadsThem) {
  const std::string characters = "tttrrruuueeefals \n1";
  std::mt19937 random(4);
  int seen = 0;
  for (int round = 0; round < 100000; ++round) {
    std::string text = random() % 2 ? "true" : "";
    for (unsigned count = random() % 6; count > 0; --count) {
      text.insert(random() % (text.size() + 1), 1, characters[random() % characters.size()]);
    }
    ASSERT_EQ(BooleanFromStream(text), ExtractBoolean(text)) << text;
    seen += ExtractBoolean(text);
  }
  EXPECT_GT(seen, 1000);
}

}  // namespace
