// Zones whose tables are not as one expects: winter time flagged as daylight saving (Dublin),
// clocks that go back for it (Casablanca), by half an hour (Lord Howe), and standard offsets that
// moved (Moscow, London, Apia). The other host's time zones know none of this.

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include <qdacore/cim/value/TCIMDateTime.h>
#include <tests/support/ChildProcess.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

// Noon, so that no change of clocks is near.
QDACORE_CHILD(AddsADayAndTakesItAway) {
  const TCIMDateTime day(1, 0, 0, 0, 0);
  for (const char* text :
       {"19700601120000.000000+000", "20120601120000.000000+000", "20240115120000.000000+000",
        "20240320120000.000000+000", "20240715120000.000000+000", "29990715120000.000000+000"}) {
    const TCIMDateTime noon{std::string(text)};
    const TCIMDateTime later = noon + day;
    std::printf("%s %s %d\n", later.ToString().c_str(), (later - day).ToString().c_str(),
                (later - noon) == day);
  }
  return 0;
}

class UnusualZones : public testing::TestWithParam<const char*> {};

TEST_P(UnusualZones, NoonStaysNoon) {
  EXPECT_EQ(
      "19700602120000.000000+000 19700601120000.000000+000 1\n"
      "20120602120000.000000+000 20120601120000.000000+000 1\n"
      "20240116120000.000000+000 20240115120000.000000+000 1\n"
      "20240321120000.000000+000 20240320120000.000000+000 1\n"
      "20240716120000.000000+000 20240715120000.000000+000 1\n"
      "29990716120000.000000+000 29990715120000.000000+000 1\n",
      RunChild("AddsADayAndTakesItAway", {{"TZ", GetParam()}}).output)
      << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Zones, UnusualZones,
                         testing::Values("UTC", "Europe/Dublin", "Africa/Casablanca",
                                         "Australia/Lord_Howe", "Europe/Moscow", "Europe/London",
                                         "Pacific/Apia", "America/Asuncion", "Asia/Kathmandu"));

}  // namespace
