#include <cstdio>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/logging/TLogger.h>
#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ChildProcess.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

const char* NullOrNot(const ILogger* logger) { return logger ? "a logger\n" : "null\n"; }

QDACORE_CHILD(AsksForTheLoggerThreeTimes) {
  std::fputs(NullOrNot(TRootObject::GetCoreLogger()), stdout);
  std::fputs(NullOrNot(TRootObject::GetCoreLogger()), stdout);
  TLogger::Initialize();
  std::fputs(NullOrNot(TRootObject::GetCoreLogger()), stdout);
  delete TRootObject::GetCoreLogger();
  return 0;
}

TEST(TRootObject, CoreLoggerIsNullUntilInitializeAndAskingMakesNone) {
  EXPECT_EQ("null\nnull\na logger\n", RunChild("AsksForTheLoggerThreeTimes").output);
}

TEST(TRootObject, SecondInitializeReplacesTheLoggerAndAbandonsTheFirst) {
  TLogger::Initialize();
  ILogger* first = TRootObject::GetCoreLogger();
  first->SetLogThreshold(ILogger::kLogError);
  TLogger::Initialize();
  ILogger* second = TRootObject::GetCoreLogger();
  EXPECT_NE(first, second);
  EXPECT_EQ(ILogger::kLogStatus, second->GetLogThreshold());
  EXPECT_EQ(ILogger::kLogError, first->GetLogThreshold());

  delete first;
  EXPECT_EQ(second, TRootObject::GetCoreLogger());
  // A deleted logger is not handed out.
  delete second;
  EXPECT_EQ(nullptr, TRootObject::GetCoreLogger());
}

TEST(TRootObject, HasNoStateAndNeedsNoInstance) {
  EXPECT_TRUE(std::is_empty<TRootObject>());
  EXPECT_FALSE(std::is_polymorphic<TRootObject>());
  TRootObject one;
  const TRootObject two;
  EXPECT_EQ(&one, &(one = two));
}

TEST(Constants, HaveTheirValues) {
  EXPECT_EQ("plugin", TCIMSchemaHelper::kPluginNSPName);
  EXPECT_EQ("cmpi", TCIMSchemaHelper::kCMPINSPName);
  EXPECT_EQ("nspID", TCIMSchemaHelper::kContextName);
  EXPECT_EQ(".dll", TOSSpecific::kDynamicModuleExtension);
  EXPECT_EQ("pi", TOSSpecific::kQDAPluginExtension);
  EXPECT_EQ(".pi.dll", TOSSpecific::kPluginExtension);
  EXPECT_EQ(".properties.xml", TOSSpecific::kSpecificationExtension);
  EXPECT_EQ(".registration.xml", TOSSpecific::kRegistrationExtension);
  EXPECT_EQ("\\", TOSSpecific::kFileSeparator);
  EXPECT_EQ("intr_address.tmp", TOSSpecific::libx86IntrAddrFile);
}

}  // namespace
