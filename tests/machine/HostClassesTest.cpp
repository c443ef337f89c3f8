// The classes that are made of what the operating system knows.

#include <gtest/gtest.h>

#include <plugins/machine/Schema.h>
#include <tests/machine/SmbiosObjects.h>

namespace {

using machine::BuildNamespace;
using machine::DiskFacts;
using machine::DriveKind;
using machine::FileSystemFacts;
using machine::MachineFacts;
using machine::NetworkPortFacts;
using machine::ProcessorFacts;
using machine::Scope;
using machine_test::Facts;
using machine_test::ObjectsOf;
using machine_test::WithoutSystemKeys;

MachineFacts Box() {
  MachineFacts facts;
  facts.operatingSystem.hostName = "box";
  facts.operatingSystem.name = "Some OS";
  return facts;
}

// The objects of the class without the keys that come from the host.
std::vector<Facts> Built(const MachineFacts& facts, const std::string& className) {
  std::vector<Facts> found;
  for (const Facts& object : ObjectsOf(BuildNamespace(facts, Scope::kAll), className)) {
    found.push_back(WithoutSystemKeys(object));
  }
  return found;
}

const char kSystemPath[] =
    "ZRVSG_ComputerSystem.CreationClassName=\"ZRVSG_ComputerSystem\",Name=\"box\"";

// An object path without the namespace in front.
std::string PathOf(const Facts& object, const char* end) {
  const auto found = object.find(end);
  const std::string path = found == object.end() ? "" : found->second;
  return path.substr(path.find(':') + 1);
}

DiskFacts Disk() {
  DiskFacts disk;
  disk.deviceId = "sda";
  disk.manufacturer = "MAKER";
  disk.model = "A MODEL";
  disk.serialNumber = "S123";
  disk.version = "1.0";
  disk.blockSize = 512;
  disk.numberOfBlocks = 2000001;
  disk.removable = false;
  disk.readOnly = false;
  disk.diskType = static_cast<std::uint16_t>(3);
  return disk;
}

TEST(HostClasses, DescribeADisk) {
  MachineFacts facts = Box();
  facts.host.disks.push_back(Disk());
  EXPECT_EQ((std::vector<Facts>{{{"DeviceID", "sda"},
                                 {"ElementName", "A MODEL"},
                                 {"Capabilities", "{ 3, 4 }"},
                                 {"MaxMediaSize", "1024000"},
                                 {"DefaultBlockSize", "512"},
                                 {"DiskType", "3"}}}),
            Built(facts, "CIM_DiskDrive"));
  EXPECT_EQ((std::vector<Facts>{{{"DeviceID", "sda"},
                                 {"ElementName", "sda"},
                                 {"BlockSize", "512"},
                                 {"NumberOfBlocks", "2000001"}}}),
            Built(facts, "CIM_StorageExtent"));
  EXPECT_EQ((std::vector<Facts>{{{"Tag", "Drive sda"},
                                 {"ElementName", "A MODEL"},
                                 {"Manufacturer", "MAKER"},
                                 {"Model", "A MODEL"},
                                 {"SerialNumber", "S123"},
                                 {"Version", "1.0"},
                                 {"PackageType", "15"}}}),
            Built(facts, "CIM_PhysicalPackage"));
}

TEST(HostClasses, TieADiskToItsMediumItsPackageAndTheSystem) {
  MachineFacts facts = Box();
  facts.host.disks.push_back(Disk());
  const std::string keys = "SystemCreationClassName=\"ZRVSG_ComputerSystem\",SystemName=\"box\"";
  const std::string drive =
      "CIM_DiskDrive.CreationClassName=\"CIM_DiskDrive\",DeviceID=\"sda\"," + keys;
  const std::string extent =
      "CIM_StorageExtent.CreationClassName=\"CIM_StorageExtent\",DeviceID=\"sda\"," + keys;
  const std::vector<Facts> media = Built(facts, "CIM_MediaPresent");
  ASSERT_EQ(1u, media.size());
  EXPECT_EQ(drive, PathOf(media[0], "Antecedent"));
  EXPECT_EQ(extent, PathOf(media[0], "Dependent"));
  const std::vector<Facts> realizes = Built(facts, "CIM_Realizes");
  ASSERT_EQ(1u, realizes.size());
  EXPECT_EQ("CIM_PhysicalPackage.CreationClassName=\"CIM_PhysicalPackage\",Tag=\"Drive sda\"",
            PathOf(realizes[0], "Antecedent"));
  EXPECT_EQ(drive, PathOf(realizes[0], "Dependent"));
  const std::vector<Facts> devices = Built(facts, "CIM_SystemDevice");
  ASSERT_EQ(2u, devices.size());
  EXPECT_EQ(kSystemPath, PathOf(devices[0], "GroupComponent"));
  EXPECT_EQ(drive, PathOf(devices[0], "PartComponent"));
  EXPECT_EQ(extent, PathOf(devices[1], "PartComponent"));
}

TEST(HostClasses, ADiskThatTellsNothingIsADriveOfNulls) {
  MachineFacts facts = Box();
  DiskFacts disk;
  disk.deviceId = "vda";
  facts.host.disks.push_back(disk);
  EXPECT_EQ((std::vector<Facts>{
                {{"DeviceID", "vda"}, {"ElementName", "vda"}, {"Capabilities", "{ 3 }"}}}),
            Built(facts, "CIM_DiskDrive"));
  EXPECT_TRUE(Built(facts, "CIM_StorageExtent").empty());
  EXPECT_TRUE(Built(facts, "CIM_PhysicalPackage").empty());
}

TEST(HostClasses, EachKindOfDriveHasItsClass) {
  const struct {
    DriveKind kind;
    const char* className;
    const char* capabilities;
  } rows[] = {{DriveKind::kDisk, "CIM_DiskDrive", "{ 3, 4, 7 }"},
              {DriveKind::kCdrom, "CIM_CDROMDrive", "{ 3, 7 }"},
              {DriveKind::kDiskette, "CIM_DisketteDrive", "{ 3, 7 }"},
              {DriveKind::kOther, "CIM_MediaAccessDevice", "{ 7 }"}};
  for (const auto& row : rows) {
    MachineFacts facts = Box();
    facts.host.disks.push_back(Disk());
    facts.host.disks[0].kind = row.kind;
    facts.host.disks[0].removable = true;
    const std::vector<Facts> found = Built(facts, row.className);
    ASSERT_EQ(1u, found.size()) << row.className;
    EXPECT_EQ(row.capabilities, found[0].at("Capabilities")) << row.className;
    // How large a medium may be is not told by the one that is in.
    EXPECT_EQ(0u, found[0].count("MaxMediaSize")) << row.className;
  }
}

NetworkPortFacts Port() {
  NetworkPortFacts port;
  port.deviceId = "eth0";
  port.name = "eth0";
  port.linkTechnology = 2;
  port.permanentAddress = "02FC00000001";
  port.networkAddresses = {"02FC00000002"};
  port.speed = 1000000000;
  port.maxSpeed = 10000000000;
  port.fullDuplex = true;
  port.autoSense = false;
  port.activeMaximumTransmissionUnit = 1500;
  port.enabledState = static_cast<std::uint16_t>(2);
  return port;
}

TEST(HostClasses, DescribeANetworkPort) {
  MachineFacts facts = Box();
  facts.host.networkPorts.push_back(Port());
  facts.host.networkPorts.push_back(NetworkPortFacts());
  facts.host.networkPorts[1].deviceId = "wlan0";
  facts.host.networkPorts[1].isWireless = true;
  facts.host.networkPorts[1].linkTechnology = 11;
  EXPECT_EQ((std::vector<Facts>{{{"DeviceID", "eth0"},
                                 {"ElementName", "eth0"},
                                 {"EnabledState", "2"},
                                 {"Speed", "1000000000"},
                                 {"MaxSpeed", "10000000000"},
                                 {"LinkTechnology", "2"},
                                 {"PermanentAddress", "02FC00000001"},
                                 {"NetworkAddresses", "{ 02FC00000002 }"},
                                 {"FullDuplex", "true"},
                                 {"AutoSense", "false"},
                                 {"ActiveMaximumTransmissionUnit", "1500"}}}),
            Built(facts, "CIM_EthernetPort"));
  EXPECT_EQ((std::vector<Facts>{{{"DeviceID", "wlan0"}, {"LinkTechnology", "11"}}}),
            Built(facts, "CIM_WiFiPort"));
  EXPECT_EQ(2u, Built(facts, "CIM_SystemDevice").size());
}

FileSystemFacts Root() {
  FileSystemFacts found;
  found.root = "/";
  found.fileSystemType = "ext4";
  found.blockSize = 4096;
  found.fileSystemSize = 409600;
  found.availableSpace = 4096;
  found.readOnly = false;
  found.maxFileNameLength = 255;
  found.persistenceType = static_cast<std::uint16_t>(2);
  found.drive = "sda";
  return found;
}

TEST(HostClasses, DescribeAFileSystem) {
  MachineFacts facts = Box();
  facts.host.disks.push_back(DiskFacts());
  facts.host.disks[0].deviceId = "sdb";
  facts.host.disks.push_back(Disk());
  facts.host.fileSystems.push_back(Root());
  facts.host.fileSystems.push_back(FileSystemFacts());
  facts.host.fileSystems[1].root = "/b \xFF";
  const std::vector<Facts> found = Built(facts, "CIM_LocalFileSystem");
  ASSERT_EQ(2u, found.size());
  EXPECT_EQ((Facts{{"CSCreationClassName", "ZRVSG_ComputerSystem"},
                   {"CSName", "box"},
                   {"Name", "/"},
                   {"Root", "/"},
                   {"FileSystemType", "ext4"},
                   {"BlockSize", "4096"},
                   {"FileSystemSize", "409600"},
                   {"AvailableSpace", "4096"},
                   {"ReadOnly", "false"},
                   {"MaxFileNameLength", "255"},
                   {"PersistenceType", "2"}}),
            found[0]);
  EXPECT_EQ("/b \xFF", found[1].at("Name"));
  EXPECT_EQ(4u, found[1].size());
  const std::vector<Facts> hosted = Built(facts, "CIM_HostedFileSystem");
  ASSERT_EQ(2u, hosted.size());
  EXPECT_EQ(kSystemPath, PathOf(hosted[0], "GroupComponent"));
  const std::string path =
      "CIM_LocalFileSystem.CSCreationClassName=\"ZRVSG_ComputerSystem\",CSName=\"box\","
      "CreationClassName=\"CIM_LocalFileSystem\",Name=\"/\"";
  EXPECT_EQ(path, PathOf(hosted[0], "PartComponent"));
  // The second lies on no drive that is known.
  const std::vector<Facts> resides = Built(facts, "CIM_ResidesOnExtent");
  ASSERT_EQ(1u, resides.size());
  EXPECT_EQ(
      "CIM_StorageExtent.CreationClassName=\"CIM_StorageExtent\",DeviceID=\"sda\","
      "SystemCreationClassName=\"ZRVSG_ComputerSystem\",SystemName=\"box\"",
      PathOf(resides[0], "Antecedent"));
  EXPECT_EQ(path, PathOf(resides[0], "Dependent"));
}

TEST(HostClasses, DescribeAProcessor) {
  MachineFacts facts = Box();
  ProcessorFacts processor;
  processor.deviceId = "CPU0";
  processor.name = "Some CPU";
  processor.stepping = "4";
  processor.maxClockSpeed = 3500;
  processor.currentClockSpeed = 2500;
  processor.dataWidth = static_cast<std::uint16_t>(64);
  processor.addressWidth = static_cast<std::uint16_t>(64);
  processor.characteristics = {2, 6};
  processor.cores = static_cast<std::uint16_t>(8);
  processor.threads = static_cast<std::uint16_t>(16);
  facts.host.processors.push_back(processor);
  EXPECT_EQ((std::vector<Facts>{{{"DeviceID", "CPU0"},
                                 {"ElementName", "Some CPU"},
                                 {"Role", "Central Processor"},
                                 {"EnabledState", "2"},
                                 {"CPUStatus", "1"},
                                 {"MaxClockSpeed", "3500"},
                                 {"CurrentClockSpeed", "2500"},
                                 {"DataWidth", "64"},
                                 {"AddressWidth", "64"},
                                 {"Stepping", "4"},
                                 {"Characteristics", "{ 2, 6 }"},
                                 {"NumberOfEnabledCores", "8"}}}),
            Built(facts, "CIM_Processor"));
  EXPECT_EQ((std::vector<Facts>{{{"InstanceID", "ZRVSG:CPU0"},
                                 {"NumberOfProcessorCores", "8"},
                                 {"NumberOfHardwareThreads", "16"}}}),
            Built(facts, "CIM_ProcessorCapabilities"));
  EXPECT_EQ(1u, Built(facts, "CIM_ElementCapabilities").size());
}

TEST(HostClasses, DescribeTheOperatingSystemsMemoryAndLimits) {
  MachineFacts facts = Box();
  facts.host.resources.totalVisibleMemorySize = 1000;
  facts.host.resources.totalVirtualMemorySize = 1500;
  facts.host.resources.sizeStoredInPagingFiles = 500;
  facts.host.resources.maxProcessMemorySize = 2000;
  facts.host.resources.maxNumberOfProcesses = 32767;
  facts.host.resources.lastBootSeconds = 1709210096;
  const std::vector<Facts> found = Built(facts, "ZRVSG_OperatingSystem");
  ASSERT_EQ(1u, found.size());
  EXPECT_EQ("1000", found[0].at("TotalVisibleMemorySize"));
  EXPECT_EQ("1500", found[0].at("TotalVirtualMemorySize"));
  EXPECT_EQ("500", found[0].at("SizeStoredInPagingFiles"));
  EXPECT_EQ("2000", found[0].at("MaxProcessMemorySize"));
  EXPECT_EQ("32767", found[0].at("MaxNumberOfProcesses"));
  EXPECT_EQ("20240229123456.000000+000", found[0].at("LastBootUpTime"));
}

TEST(HostClasses, TieTheOperatingSystemToTheSystem) {
  const std::string path =
      "ZRVSG_OperatingSystem.CSCreationClassName=\"ZRVSG_ComputerSystem\",CSName="
      "\"box\","
      "CreationClassName=\"ZRVSG_OperatingSystem\",Name=\"Some OS\"";
  const std::vector<Facts> running = Built(Box(), "CIM_RunningOS");
  ASSERT_EQ(1u, running.size());
  EXPECT_EQ(path, PathOf(running[0], "Antecedent"));
  EXPECT_EQ(kSystemPath, PathOf(running[0], "Dependent"));
  const std::vector<Facts> installed = Built(Box(), "CIM_InstalledOS");
  ASSERT_EQ(1u, installed.size());
  EXPECT_EQ(kSystemPath, PathOf(installed[0], "GroupComponent"));
  EXPECT_EQ(path, PathOf(installed[0], "PartComponent"));
}

TEST(HostClasses, AreThereWithoutObjects) {
  for (const char* name :
       {"CIM_DiskDrive", "CIM_CDROMDrive", "CIM_DisketteDrive", "CIM_StorageExtent",
        "CIM_PhysicalPackage", "CIM_MediaPresent", "CIM_EthernetPort", "CIM_WiFiPort",
        "CIM_LocalFileSystem", "CIM_HostedFileSystem", "CIM_ResidesOnExtent", "CIM_Processor"}) {
    // A class that is not there is an exception.
    EXPECT_TRUE(Built(MachineFacts(), name).empty()) << name;
  }
  EXPECT_TRUE(Built(MachineFacts(), "CIM_RunningOS").empty());
}

}  // namespace
