// What the logger takes from the operating system, with a host of the test's own.

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/host/HostFakes.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;

typedef std::vector<std::string> Calls;

TEST(LogSELEvent, KindFollowsTheSeverity) {
  const struct {
    int severity;
    const char* expected;
  } rows[] = {{0, "VXTP error 7: text"},         {1, "VXTP warning 7: text"},
              {2, "VXTP information 7: text"},   {3, "VXTP information 7: text"},
              {4, "VXTP information 7: text"},   {100, "VXTP information 7: text"},
              {101, "VXTP information 7: text"}, {-1, "VXTP information 7: text"},
              {5, "VXTP information 7: text"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.severity);
    RecordingEventLog events;
    ScopedHost scope({nullptr, &events, nullptr, nullptr});
    TOSSpecific::LogSELEvent("text", static_cast<ILogger::EQDALogSeverity>(row.severity), 7);
    EXPECT_EQ(Calls{row.expected}, events.calls);
  }
}

TEST(LogSELEvent, TextAndNumberAreTheCallers) {
  RecordingEventLog events;
  ScopedHost scope({nullptr, &events, nullptr, nullptr});
  TOSSpecific::LogSELEvent("100%s\n", ILogger::kLogError, -2147483647 - 1);
  TOSSpecific::LogSELEvent("", ILogger::kLogError, 2147483647);
  // The caller's mistake, and harmless.
  TOSSpecific::LogSELEvent(nullptr, ILogger::kLogError, 0);
  EXPECT_EQ((Calls{"VXTP error -2147483648: 100%s\n", "VXTP error 2147483647: ", "VXTP error 0: "}),
            events.calls);
}

TEST(OutputLogString, GoesToTheDebuggerAndNowhereElse) {
  RecordingEventLog events;
  ScopedHost scope({nullptr, &events, nullptr, nullptr});
  TOSSpecific::OutputLogString("text\n");
  EXPECT_EQ(Calls{"debugger: text\n"}, events.calls);
}

TEST(GetLocalTime, TakesEveryFieldFromTheClock) {
  const struct {
    host::LocalNow now;
    const char* expected;
  } rows[] = {
      {{{2010, 3, 7, 9, 5, 2, false}, 0, 0}, "20100307090502.000000+000"},
      {{{2010, 3, 7, 9, 5, 2, true}, 65, 120}, "20100307090502.065000+120"},
      {{{2024, 2, 29, 23, 59, 59, false}, 1, -300}, "20240229235959.001000-300"},
      {{{2024, 12, 31, 0, 0, 0, false}, 999, 840}, "20241231000000.999000+840"},
  };
  for (const auto& row : rows) {
    FixedClock clock(row.now);
    ScopedHost scope({&clock, nullptr, nullptr, nullptr});
    const TCIMDateTime time = TOSSpecific::GetLocalTime();
    EXPECT_EQ(static_cast<unsigned>(row.now.millisecond) * 1000, time.GetMicroSeconds());
    EXPECT_EQ(row.now.offsetMinutes, static_cast<short>(time.GetUTCOffset()));
    EXPECT_EQ(row.expected, time.ToString());
  }
}

}  // namespace
