// GetMachineTypeFromID call by call and line by line, with a scripted smbios library.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/os/ScriptedSmbios.h>

namespace {

using namespace NZRVQDA20;
using namespace scripted_smbios;

const Lines kSystemRead = {"load", "first 1 1024 of 1", "close 1"};
const Lines kBothRead = {"load", "first 1 1024 of 1", "close 1",
                         "load", "first 0 4096 of 2", "close 2"};

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

TEST(GetMachineTypeFromID, ReadsBothStructuresFromTwoLoads) {
  const Record record = RunScript(Server(), TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("7327", record.result);
  EXPECT_EQ(kBothRead, record.calls);
  EXPECT_EQ((TypeLines("7145") +
             Lines{"[Debug] TOSSpecific::GetMachineTypeFromID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetMachineTypeFromID -buildNumber is gy",
                   "[Debug] Get machineType from Bios ID().", "machineType=7327\tBios ID =gy"}),
            record.lines);
}

TEST(GetMachineTypeFromID, UnknownIdentifierKeepsTheTypeAndSaysTheSame) {
  const Record record =
      RunScript(Machine("ZZ9", "ZRV server -[7145AC1]-"), TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("7145", record.result);
  EXPECT_EQ(kBothRead, record.calls);
  EXPECT_EQ((TypeLines("7145") +
             Lines{"[Debug] TOSSpecific::GetMachineTypeFromID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetMachineTypeFromID -buildNumber is zz",
                   "[Debug] Get machineType from Bios ID().", "machineType=7145\tBios ID =zz"}),
            record.lines);
}

TEST(GetMachineTypeFromID, FailedSecondLoadKeepsTheType) {
  Script script = Server();
  script.loadStatuses = {0, 3};
  const Record record = RunScript(script, TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("7145", record.result);
  EXPECT_EQ(kSystemRead + Lines{"load"}, record.calls);
  EXPECT_EQ((TypeLines("7145") +
             Lines{"[Error] getBIOSstructure: Unable to open SMBIOS lib error = 3",
                   "[Debug] getBIOSstructure: Unable to open SMBIOS lib error = 3Failed in "
                   "getting machineType from Bios ID.",
                   "Get machineType from GetMachineType().", "machineType=7145"}),
            record.lines);
}

TEST(GetMachineTypeFromID, BothLoadsFailing) {
  Script script = Server();
  script.loadStatuses = {1, 43};
  const Record record = RunScript(script, TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("0000", record.result);
  EXPECT_EQ((Lines{"load", "load"}), record.calls);
  EXPECT_EQ((Lines{"[Debug] getMachineType() entered.",
                   "[Error] getMachineType: Unable to open SMBIOS lib error = 1",
                   "[Error] getBIOSstructure: Unable to open SMBIOS lib error = 43",
                   "[Debug] getBIOSstructure: Unable to open SMBIOS lib error = 43Failed in "
                   "getting machineType from Bios ID.",
                   "Get machineType from GetMachineType().", "machineType=0000"}),
            record.lines);
}

TEST(GetMachineTypeFromID, FirstLoadFailingAlone) {
  Script script = Server();
  script.loadStatuses = {3};
  const Record record = RunScript(script, TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("7327", record.result);
  EXPECT_EQ((Lines{"load", "load", "first 0 4096 of 2", "close 2"}), record.calls);
}

TEST(GetMachineTypeFromID, NullHandleSaysNothingOfItsOwn) {
  Script script = Server();
  script.nullHandle = true;
  const Record record = RunScript(script, TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("0000", record.result);
  EXPECT_EQ((Lines{"load", "close 0", "load", "close 0"}), record.calls);
  EXPECT_EQ(3u, record.lines.size());
}

TEST(GetMachineTypeFromID, WithoutTheStructureKeepsTheType) {
  Script script = Server();
  script.answers[0].status = 5;
  const Record record = RunScript(script, TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("7145", record.result);
  EXPECT_EQ(kBothRead, record.calls);
  EXPECT_EQ((TypeLines("7145") +
             Lines{"[Debug] TOSSpecific::GetMachineTypeFromID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetMachineTypeFromID - read all smbios structures "
                   "available for type 0"}),
            record.lines);
}

TEST(GetMachineTypeFromID, FailedReadEndsOutOfRangeAndLeavesTheTableOpen) {
  Script script = Server();
  script.answers[0] = Answer();
  script.answers[0].status = 3;
  const Record record = RunScript(script, TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("out of range", record.result);
  EXPECT_EQ(kSystemRead + (Lines{"load", "first 0 4096 of 2"}), record.calls);
  EXPECT_EQ((TypeLines("7145") +
             Lines{"[Debug] TOSSpecific::GetMachineTypeFromID - Retrieving first SMBIOS structure",
                   "[Debug] TOSSpecific::GetMachineTypeFromID - smbios read operation failed! "}),
            record.lines);
}

// The product name is read first, so its failure is all there is.
TEST(GetMachineTypeFromID, ProductNameOutOfRangeEndsIt) {
  const Record record = RunScript(Machine("GY", "x-"), TOSSpecific::GetMachineTypeFromID);
  EXPECT_EQ("out of range", record.result);
  EXPECT_EQ((Lines{"load", "first 1 1024 of 1"}), record.calls);
}

}  // namespace
