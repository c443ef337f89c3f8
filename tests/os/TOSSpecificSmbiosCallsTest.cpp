// Machine identification call by call and line by line, with a scripted smbios library.

#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/frame/TRootObject.h>
#include <qdacore/os/TOSSpecific.h>
#include <tests/os/ScriptedSmbios.h>

namespace {

// Allocations of this size that may fail, do. 0: none.
std::size_t failingSize = 0;

}  // namespace

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  if (size == failingSize) {
    return nullptr;
  }
  try {
    return ::operator new[](size);
  } catch (...) {
    return nullptr;
  }
}

namespace {

using namespace NZRVQDA20;
using namespace scripted_smbios;

const Lines kBiosRead = {"load", "first 0 4096 of 1", "close 1"};
const Lines kSystemRead = {"load", "first 1 1024 of 1", "close 1"};

TEST(GetBiosID, ReadsOneStructureAndCloses) {
  const Record record = RunScript(Server(), TOSSpecific::GetBiosID);
  EXPECT_EQ("GY", record.result);
  EXPECT_EQ(kBiosRead, record.calls);
  EXPECT_EQ((Lines{"[Debug] TOSSpecific::GetBiosID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetBiosID - biosID = GY"}),
            record.lines);
}

TEST(GetBiosID, FailedLoadIsAnErrorAndClosesNothing) {
  for (const int status : {1, 3, 5, 43}) {
    Script script = Server();
    script.loadStatuses = {status};
    const Record record = RunScript(script, TOSSpecific::GetBiosID);
    EXPECT_EQ("00", record.result);
    EXPECT_EQ(Lines{"load"}, record.calls);
    EXPECT_EQ(
        Lines{"[Error] GetBiosID: Unable to open SMBIOS lib error = " + std::to_string(status)},
        record.lines);
  }
}

TEST(GetBiosID, NullHandleIsNoDataAndIsClosed) {
  Script script = Server();
  script.nullHandle = true;
  const Record record = RunScript(script, TOSSpecific::GetBiosID);
  EXPECT_EQ("00", record.result);
  EXPECT_EQ((Lines{"load", "close 0"}), record.calls);
  EXPECT_EQ(Lines(), record.lines);
}

TEST(GetBiosID, WithoutTheStructureIsTheDefault) {
  Script script = Server();
  script.answers[0].status = 5;
  const Record record = RunScript(script, TOSSpecific::GetBiosID);
  EXPECT_EQ("00", record.result);
  EXPECT_EQ(kBiosRead, record.calls);
  EXPECT_EQ((Lines{"[Debug] TOSSpecific::GetBiosID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetBiosID - read all smbios structures available for "
                   "type 0"}),
            record.lines);
}

// The cleared buffer has no version, so the table stays open.
TEST(GetBiosID, FailedReadIsCarriedOnWithAndEndsOutOfRange) {
  Script script;
  script.answers[0].status = 3;
  const Record record = RunScript(script, TOSSpecific::GetBiosID);
  EXPECT_EQ("out of range", record.result);
  EXPECT_EQ((Lines{"load", "first 0 4096 of 1"}), record.calls);
  EXPECT_EQ((Lines{"[Debug] TOSSpecific::GetBiosID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetBiosID - smbios read operation failed! "}),
            record.lines);
}

TEST(GetBiosID, FailedReadThatDeliversIsParsed) {
  Script script = Server();
  script.answers[0].status = 3;
  const Record record = RunScript(script, TOSSpecific::GetBiosID);
  EXPECT_EQ("GY", record.result);
  EXPECT_EQ(kBiosRead, record.calls);
  EXPECT_EQ((Lines{"[Debug] TOSSpecific::GetBiosID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetBiosID - smbios read operation failed! ",
                   "[Debug] TOSSpecific::GetBiosID - biosID = GY"}),
            record.lines);
}

TEST(GetBiosID, OtherStatusesAndSizesAreNotLookedAt) {
  for (const int status : {0, 1, 2, 4, 6, 43}) {
    for (const int size : {kWhole, 0, 1, -5, 2147483647}) {
      Script script = Server();
      script.answers[0].status = status;
      script.answers[0].size = size;
      EXPECT_EQ("GY", Result(script, TOSSpecific::GetBiosID)) << status << " " << size;
    }
  }
}

TEST(GetBiosID, ShortVersionLeavesTheTableOpen) {
  const Record record = RunScript(Machine("A", "x"), TOSSpecific::GetBiosID);
  EXPECT_EQ("out of range", record.result);
  EXPECT_EQ((Lines{"load", "first 0 4096 of 1"}), record.calls);
}

TEST(GetMachineType, ReadsOneStructureAndCloses) {
  const Record record = RunScript(Server(), TOSSpecific::GetMachineType);
  EXPECT_EQ("7145", record.result);
  EXPECT_EQ(kSystemRead, record.calls);
  EXPECT_EQ(TypeLines("7145"), record.lines);
}

TEST(GetMachineType, FailedLoadIsAnErrorAndClosesNothing) {
  for (const int status : {1, 3, 5, 43}) {
    Script script = Server();
    script.loadStatuses = {status};
    const Record record = RunScript(script, TOSSpecific::GetMachineType);
    EXPECT_EQ("0000", record.result);
    EXPECT_EQ(Lines{"load"}, record.calls);
    EXPECT_EQ((Lines{"[Debug] getMachineType() entered.",
                     "[Error] getMachineType: Unable to open SMBIOS lib error = " +
                         std::to_string(status)}),
              record.lines);
  }
}

TEST(GetMachineType, NullHandleIsSaidAndClosed) {
  Script script = Server();
  script.nullHandle = true;
  const Record record = RunScript(script, TOSSpecific::GetMachineType);
  EXPECT_EQ("0000", record.result);
  EXPECT_EQ((Lines{"load", "close 0"}), record.calls);
  EXPECT_EQ((Lines{"[Debug] getMachineType() entered.",
                   "[Debug] Unable to read machine type from SMBIOS. Invalid Handle was "
                   "encountered.",
                   "[Debug] getMachineType() completed."}),
            record.lines);
}

TEST(GetMachineType, WithoutMemoryIsTheDefault) {
  failingSize = 1024;
  const Record record = RunScript(Server(), TOSSpecific::GetMachineType);
  failingSize = 0;
  EXPECT_EQ("0000", record.result);
  EXPECT_EQ((Lines{"load", "close 1"}), record.calls);
  EXPECT_EQ((Lines{"[Debug] getMachineType() entered.",
                   "[Debug] Unable to allocate memory to hold machineType",
                   "[Debug] getMachineType() completed."}),
            record.lines);
}

TEST(GetMachineType, FailedOrEmptyReadIsTheDefault) {
  const struct {
    int status;
    int size;
  } rows[] = {{3, kWhole}, {5, kWhole}, {1, kWhole}, {43, kWhole}, {0, 0}, {0, -1}, {3, 0}};
  for (const auto& row : rows) {
    Script script = Server();
    script.answers[1].status = row.status;
    script.answers[1].size = row.size;
    const Record record = RunScript(script, TOSSpecific::GetMachineType);
    EXPECT_EQ("0000", record.result);
    EXPECT_EQ(kSystemRead, record.calls);
    EXPECT_EQ((Lines{"[Debug] getMachineType() entered.",
                     "[Debug] Unable to read DMI structure type 1 from SMBIOS",
                     "[Debug] getMachineType() completed."}),
              record.lines);
  }
}

TEST(GetMachineType, UnknownNameIsSaidAsTheDefault) {
  const Record record = RunScript(Machine("AB", "12345678"), TOSSpecific::GetMachineType);
  EXPECT_EQ("0000", record.result);
  EXPECT_EQ(kSystemRead, record.calls);
  EXPECT_EQ(TypeLines("0000"), record.lines);
}

TEST(GetMachineType, DashAtTheEndLeavesTheTableOpen) {
  const Record record = RunScript(Machine("AB", "Tserver-"), TOSSpecific::GetMachineType);
  EXPECT_EQ("out of range", record.result);
  EXPECT_EQ((Lines{"load", "first 1 1024 of 1"}), record.calls);
  EXPECT_EQ(Lines{"[Debug] getMachineType() entered."}, record.lines);
}

TEST(MachineIdentification, NeedsNoLogger) {
  ASSERT_EQ(nullptr, TRootObject::GetCoreLogger());
  EXPECT_EQ("GY", Result(Server(), TOSSpecific::GetBiosID));
  EXPECT_EQ("7145", Result(Server(), TOSSpecific::GetMachineType));
  EXPECT_EQ("7327", Result(Server(), TOSSpecific::GetMachineTypeFromID));
}

}  // namespace
