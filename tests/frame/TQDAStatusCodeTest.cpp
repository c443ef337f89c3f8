#include <climits>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include <qdacore/frame/TQDAStatusCode.h>

namespace {

using namespace NZRVQDA20;

struct StatusRow {
  int value;
  TQDAStatusCode::EQDAStatusCode status;
  const char* name;
};

// The contract with plug-ins, in full.
const StatusRow kStatuses[] = {
    {0, TQDAStatusCode::kQDAStatusOK, "kQDAStatusOK"},
    {1, TQDAStatusCode::kQDAStatusNotImplemented, "kQDAStatusNotImplemented"},
    {2, TQDAStatusCode::kQDAStatusUnknownClass, "kQDAStatusUnknownClass"},
    {3, TQDAStatusCode::kQDAStatusFail, "kQDAStatusFail"},
    {4, TQDAStatusCode::kQDAStatusOutOfMemory, "kQDAStatusOutOfMemory"},
    {5, TQDAStatusCode::kQDAStatusNoMoreItems, "kQDAStatusNoMoreItems"},
    {6, TQDAStatusCode::kQDAStatusErrorCollectingClass, "kQDAStatusErrorCollectingClass"},
    {7, TQDAStatusCode::kQDAStatusInvalidClass, "kQDAStatusInvalidClass"},
    {8, TQDAStatusCode::kQDAStatusInvalidProperty, "kQDAStatusInvalidProperty"},
    {9, TQDAStatusCode::kQDAStatusInvalidSpecificationDocument,
     "kQDAStatusInvalidSpecificationDocument"},
    {10, TQDAStatusCode::kQDAStatusInvalidDataCollectionDocument,
     "kQDAStatusInvalidDataCollectionDocument"},
    {11, TQDAStatusCode::kQDAStatusFileSystemError, "kQDAStatusFileSystemError"},
    {12, TQDAStatusCode::kQDAStatusDirectoryAlreadyExists, "kQDAStatusDirectoryAlreadyExists"},
    {13, TQDAStatusCode::kQDAStatusNotArray, "kQDAStatusNotArray"},
    {14, TQDAStatusCode::kQDAStatusTypeMismatch, "kQDAStatusTypeMismatch"},
    {15, TQDAStatusCode::kQDAStatusNotFound, "kQDAStatusNotFound"},
    {16, TQDAStatusCode::kQDAStatusAlreadyExists, "kQDAStatusAlreadyExists"},
    {17, TQDAStatusCode::kQDAStatusInvalidOpSequence, "kQDAStatusInvalidOpSequence"},
    {18, TQDAStatusCode::kQDAStatusInvalidInstance, "kQDAStatusInvalidInstance"},
    {19, TQDAStatusCode::kQDAStatusCorruptedContainer, "kQDAStatusCorruptedContainer"},
    {20, TQDAStatusCode::kQDAStatusInvalidPlugin, "kQDAStatusInvalidPlugin"},
    {21, TQDAStatusCode::kQDAStatusInvalidDateTime, "kQDAStatusInvalidDateTime"},
    {22, TQDAStatusCode::kQDAStatusNotAssociation, "kQDAStatusNotAssociation"},
    {23, TQDAStatusCode::kQDAStatusNotReference, "kQDAStatusNotReference"},
    {24, TQDAStatusCode::kQDAStatusInvalidReference, "kQDAStatusInvalidReference"},
    {25, TQDAStatusCode::kQDAStatusInvalidCIMName, "kQDAStatusInvalidCIMName"},
    {26, TQDAStatusCode::kQDAStatusFileNotFound, "kQDAStatusFileNotFound"},
    {27, TQDAStatusCode::kQDAStatusAccessDenied, "kQDAStatusAccessDenied"},
    {28, TQDAStatusCode::kQDAStatusNotOverridable, "kQDAStatusNotOverridable"},
    {29, TQDAStatusCode::kQDAStatusInvalidGzipFile, "kQDAStatusInvalidGzipFile"},
    {30, TQDAStatusCode::kQDAStatusCorruptGzipFile, "kQDAStatusCorruptGzipFile"},
    {31, TQDAStatusCode::kQDAStatusNotSupported, "kQDAStatusNotSupported"},
    {32, TQDAStatusCode::kQDAStatusValueIsNULL, "kQDAStatusValueIsNULL"},
    {33, TQDAStatusCode::kQDAStatusINETNotFound, "kQDAStatusINETNotFound"},
    {34, TQDAStatusCode::kQDAStatusConnectionFailed, "kQDAStatusConnectionFailed"},
    {35, TQDAStatusCode::kQDAStatusLibCurlFailure, "kQDAStatusLibCurlFailure"},
    {36, TQDAStatusCode::kQDAStatusInvalidFormat, "kQDAStatusInvalidFormat"},
    {37, TQDAStatusCode::kQDAStatusContainerMismatch, "kQDAStatusContainerMismatch"},
    {38, TQDAStatusCode::kQDAStatusRequiredContextMissing, "kQDAStatusRequiredContextMissing"},
    {39, TQDAStatusCode::kQDAStatusVersionMismatch, "kQDAStatusVersionMismatch"},
    {40, TQDAStatusCode::kQDAStatusLuzFilecopyFailure, "kQDAStatusLuzFilecopyFailure"},
    {41, TQDAStatusCode::kQDAStatusTransferFailure, "kQDAStatusTransferFailure"},
    {42, TQDAStatusCode::kQDAStatusCimomConnectFailure, "kQDAStatusCimomConnectFailure"},
    {43, TQDAStatusCode::fdrStatusEnd, "fdrStatusEnd"},
};

TEST(TQDAStatusCode, NumbersAndNamesAreTheContract) {
  int expectedValue = 0;
  for (const StatusRow& row : kStatuses) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(expectedValue++, row.value);
    EXPECT_EQ(row.value, static_cast<int>(row.status));
    EXPECT_EQ(row.value, static_cast<int>(TQDAStatusCode(row.status).GetStatusCode()));
    EXPECT_EQ(row.name, TQDAStatusCode(row.status).TranslateStatusCode());
  }
  EXPECT_EQ(44, expectedValue);
}

TEST(TQDAStatusCode, FormIsOneSigned32BitNumber) {
  EXPECT_EQ(4u, sizeof(TQDAStatusCode));
  EXPECT_TRUE(
      (std::is_same<std::int32_t, std::underlying_type<TQDAStatusCode::EQDAStatusCode>::type>()));
  EXPECT_FALSE(std::is_polymorphic<TQDAStatusCode>());
  EXPECT_TRUE(std::is_standard_layout<TQDAStatusCode>());
  EXPECT_FALSE(std::is_default_constructible<TQDAStatusCode>());
}

TEST(TQDAStatusCode, AssignmentsGiveACopyThatIsIndependent) {
  TQDAStatusCode target(TQDAStatusCode::kQDAStatusOK);
  const TQDAStatusCode source(TQDAStatusCode::kQDAStatusNotFound);
  EXPECT_TRUE((std::is_same<TQDAStatusCode, decltype(target = source)>()));
  EXPECT_TRUE((std::is_same<TQDAStatusCode, decltype(target = TQDAStatusCode::kQDAStatusFail)>()));

  TQDAStatusCode copy = (target = source);
  EXPECT_EQ(15, target.GetStatusCode());
  target = TQDAStatusCode::kQDAStatusFail;
  EXPECT_EQ(3, target.GetStatusCode());
  EXPECT_EQ(15, copy.GetStatusCode());

  TQDAStatusCode second = (target = TQDAStatusCode::kQDAStatusNotArray);
  target = source;
  EXPECT_EQ(15, target.GetStatusCode());
  EXPECT_EQ(13, second.GetStatusCode());
}

TEST(TQDAStatusCode, CopyIsIndependent) {
  TQDAStatusCode original(TQDAStatusCode::kQDAStatusInvalidFormat);
  TQDAStatusCode copy(original);
  original = TQDAStatusCode::kQDAStatusOK;
  EXPECT_EQ(36, copy.GetStatusCode());
}

TEST(TQDAStatusCode, NameStandsInTheLibrarysTable) {
  const std::string& one = TQDAStatusCode(TQDAStatusCode::kQDAStatusFail).TranslateStatusCode();
  const std::string& two = TQDAStatusCode(TQDAStatusCode::kQDAStatusFail).TranslateStatusCode();
  EXPECT_EQ(&one, &two);
}

// No status; the caller's mistake must not read outside the table.
TEST(TQDAStatusCode, NumberOutsideTheTableIsHarmless) {
  for (const int number : {44, 45, 1000000, INT_MAX, -1, INT_MIN}) {
    SCOPED_TRACE(number);
    TQDAStatusCode status(static_cast<TQDAStatusCode::EQDAStatusCode>(number));
    EXPECT_EQ("fdrStatusEnd", status.TranslateStatusCode());
    EXPECT_EQ(number, static_cast<int>(status.GetStatusCode()));
  }
}

}  // namespace
