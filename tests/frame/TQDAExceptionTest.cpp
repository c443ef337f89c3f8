#include <exception>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <qdacore/frame/TBoostAssertException.h>
#include <qdacore/frame/TQDAException.h>

namespace {

using namespace NZRVQDA20;

TEST(TQDAException, WhatIsTheNameOfTheStatus) {
  EXPECT_STREQ("kQDAStatusTypeMismatch",
               TQDAException(TQDAStatusCode::kQDAStatusTypeMismatch).what());
  EXPECT_STREQ("kQDAStatusOK", TQDAException(TQDAStatusCode::kQDAStatusOK).what());
  EXPECT_STREQ("fdrStatusEnd", TQDAException(TQDAStatusCode::fdrStatusEnd).what());
}

TEST(TQDAException, IsBuiltFromEitherFormOfAStatus) {
  const TQDAStatusCode status(TQDAStatusCode::kQDAStatusAccessDenied);
  EXPECT_EQ(27, TQDAException(status).GetStatus().GetStatusCode());
  EXPECT_EQ(27, TQDAException(TQDAStatusCode::kQDAStatusAccessDenied).GetStatus().GetStatusCode());
}

TEST(TQDAException, IsCaughtAsStdExceptionWithItsName) {
  try {
    throw TQDAException(TQDAStatusCode::kQDAStatusNotFound);
  } catch (const std::exception& failure) {
    EXPECT_STREQ("kQDAStatusNotFound", failure.what());
    return;
  }
  FAIL() << "not caught";
}

TEST(TQDAException, NameOutlivesTheException) {
  const char* name = nullptr;
  {
    const TQDAException failure(TQDAStatusCode::kQDAStatusLuzFilecopyFailure);
    name = failure.what();
    EXPECT_EQ(failure.GetStatus().TranslateStatusCode().c_str(), name);
  }
  EXPECT_STREQ("kQDAStatusLuzFilecopyFailure", name);
}

TEST(TQDAException, CopiesCarryTheStatus) {
  const TQDAException original(TQDAStatusCode::kQDAStatusNotSupported);
  TQDAException copy(original);
  EXPECT_STREQ("kQDAStatusNotSupported", copy.what());
  TQDAException target(TQDAStatusCode::kQDAStatusFail);
  target = original;
  EXPECT_STREQ("kQDAStatusNotSupported", target.what());
  const TQDAException& self = target;
  target = self;
  EXPECT_STREQ("kQDAStatusNotSupported", target.what());
}

// No message, no file, no cause: the base, the status and padding.
TEST(TQDAException, HoldsNothingButTheStatus) {
  EXPECT_TRUE((std::is_base_of<std::exception, TQDAException>()));
  EXPECT_LE(sizeof(TQDAException), sizeof(std::exception) + alignof(std::exception));
}

TEST(TBoostAssertException, HoldsItsMessage) {
  const TBoostAssertException original(std::string("one thing"));
  EXPECT_STREQ("one thing", original.what());
  const TBoostAssertException copy(original);
  TBoostAssertException target(std::string("another"));
  target = copy;
  EXPECT_STREQ("one thing", target.what());
  EXPECT_STREQ("one thing", copy.what());
  // A copy of the text, not the same characters.
  EXPECT_NE(original.what(), copy.what());
}

TEST(TBoostAssertException, IsNoTQDAException) {
  EXPECT_TRUE((std::is_base_of<std::exception, TBoostAssertException>()));
  EXPECT_FALSE((std::is_base_of<TQDAException, TBoostAssertException>()));
  EXPECT_THROW(throw TBoostAssertException("x"), std::exception);
}

}  // namespace
