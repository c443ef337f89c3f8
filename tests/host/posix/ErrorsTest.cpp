#include <errno.h>

#include <gtest/gtest.h>

#include <qdacore/host/posix/Errors.h>

namespace {

using namespace NZRVQDA20::host;

struct ErrorRow {
  const char* name;
  int error;
  Situation situation;
  // What Windows shows for the situation.
  unsigned long number;
};

const ErrorRow kErrors[] = {
    {"EEXIST", EEXIST, Situation::kExists, 183},
    {"EACCES", EACCES, Situation::kDenied, 5},
    {"EPERM", EPERM, Situation::kDenied, 5},
    {"EROFS", EROFS, Situation::kDenied, 5},
    {"ENOMEDIUM", ENOMEDIUM, Situation::kNotReady, 21},
    {"ENXIO", ENXIO, Situation::kNotReady, 21},
    {"ENOENT", ENOENT, Situation::kNoFile, 2},
    {"ENOTDIR", ENOTDIR, Situation::kNoPath, 3},
    {"EIO", EIO, Situation::kOther, 31},
    {"ENAMETOOLONG", ENAMETOOLONG, Situation::kOther, 31},
    {"EMFILE", EMFILE, Situation::kOther, 31},
    {"ELOOP", ELOOP, Situation::kOther, 31},
    {"none", 0, Situation::kOther, 31},
    {"unknown", -1, Situation::kOther, 31},
};

TEST(OutcomeOfErrno, IsTheSituationWithItsNumber) {
  for (const ErrorRow& row : kErrors) {
    SCOPED_TRACE(row.name);
    const Outcome outcome = OutcomeOfErrno(row.error);
    EXPECT_EQ(row.situation, outcome.situation);
    EXPECT_EQ(row.number, outcome.number);
    EXPECT_FALSE(outcome.Done());
  }
}

}  // namespace
