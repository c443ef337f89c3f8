#include <gtest/gtest.h>

#include <qdacore/host/win32/Errors.h>

namespace {

using namespace NZRVQDA20::host;

struct ErrorRow {
  const char* name;
  unsigned long error;
  Situation situation;
};

const ErrorRow kErrors[] = {
    {"already exists", 183, Situation::kExists},
    {"access denied", 5, Situation::kDenied},
    {"device not ready", 21, Situation::kNotReady},
    {"file not found", 2, Situation::kNoFile},
    {"path not found", 3, Situation::kNoPath},
    // Numbers beside those, in meaning or in value, have no situation of their own.
    {"file exists", 80, Situation::kOther},
    {"sharing violation", 32, Situation::kOther},
    {"write-protected", 19, Situation::kOther},
    {"no more files", 18, Situation::kOther},
    {"invalid name", 123, Situation::kOther},
    {"disk full", 112, Situation::kOther},
    {"none", 0, Situation::kOther},
    {"the largest", 4294967295, Situation::kOther},
};

TEST(OutcomeOfLastError, IsTheSituationWithItsNumber) {
  for (const ErrorRow& row : kErrors) {
    SCOPED_TRACE(row.name);
    SetLastError(row.error);
    const Outcome outcome = OutcomeOfLastError();
    EXPECT_EQ(row.situation, outcome.situation);
    EXPECT_EQ(row.error, outcome.number);
    EXPECT_FALSE(outcome.Done());
  }
}

}  // namespace
