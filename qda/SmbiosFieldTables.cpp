#include <qda/SmbiosFieldTables.h>

#include <algorithm>
#include <iterator>

namespace qda {

namespace {

using namespace show;

const SmbiosNames kNone = {0, ""};
const SmbiosNames kChassisStates = {1, "Other|Unknown|Safe|Warning|Critical|Non-recoverable"};

const SmbiosFieldRow kBios[] = {
    {"Vendor", 0x04, 1, Text, kNone},
    {"BIOS Version", 0x05, 1, Text, kNone},
    {"BIOS Starting Address Segment", 0x06, 2, Hexadecimal, kNone},
    {"BIOS Release Date", 0x08, 1, Text, kNone},
    {"BIOS ROM Size", 0x09, 1, BiosRomSize, kNone},
    {"BIOS Characteristics",
     0x0A,
     8,
     BiosCharacteristics,
     {4,
      "ISA|MCA|EISA|PCI|PC card (PCMCIA)|Plug and Play|APM|Upgradeable|Shadowing|VLB|ESCD|"
      "Boot from CD|Selectable boot|ROM is socketed|Boot from PC card|EDD|"
      "Japanese floppy for NEC 9800 1.2 MB|Japanese floppy for Toshiba 1.2 MB|"
      "5.25\"/360 kB floppy|5.25\"/1.2 MB floppy|3.5\"/720 kB floppy|3.5\"/2.88 MB floppy|"
      "Print screen|8042 keyboard|Serial|Printer|CGA/mono video|NEC PC-98|"
      "#40|ACPI|USB legacy|AGP|I2O boot|LS-120 boot|ATAPI Zip drive boot|IEEE 1394 boot|"
      "Smart battery|BIOS boot specification|Function key-initiated network boot|"
      "Targeted content distribution|UEFI|Virtual machine|Manufacturing mode is supported|"
      "Manufacturing mode is enabled"}},
    {"System BIOS Release", 0x14, 2, Release, kNone},
    {"Embedded Controller Firmware Release", 0x16, 2, Release, kNone},
};

const SmbiosFieldRow kSystem[] = {
    {"Manufacturer", 0x04, 1, Text, kNone},
    {"Product Name", 0x05, 1, Text, kNone},
    {"Version", 0x06, 1, Text, kNone},
    {"Serial Number", 0x07, 1, Text, kNone},
    {"UUID", 0x08, 16, Uuid, kNone},
    {"Wake-up Type",
     0x18,
     1,
     Name,
     {0,
      "Reserved|Other|Unknown|APM Timer|Modem Ring|LAN Remote|Power Switch|PCI PME#|"
      "AC Power Restored"}},
    {"SKU Number", 0x19, 1, Text, kNone},
    {"Family", 0x1A, 1, Text, kNone},
};

const SmbiosFieldRow kBoard[] = {
    {"Manufacturer", 0x04, 1, Text, kNone},
    {"Product", 0x05, 1, Text, kNone},
    {"Version", 0x06, 1, Text, kNone},
    {"Serial Number", 0x07, 1, Text, kNone},
    {"Asset Tag", 0x08, 1, Text, kNone},
    {"Location in Chassis", 0x0A, 1, Text, kNone},
    {"Chassis Handle", 0x0B, 2, Handle, kNone},
    {"Board Type",
     0x0D,
     1,
     Name,
     {1,
      "Unknown|Other|Server Blade|Connectivity Switch|System Management Module|Processor Module|"
      "I/O Module|Memory Module|Daughter Board|Motherboard|Processor/Memory Module|"
      "Processor/IO Module|Interconnect Board"}},
};

const SmbiosFieldRow kChassis[] = {
    {"Manufacturer", 0x04, 1, Text, kNone},
    {"Type",
     0x05,
     1,
     NameAt<0, 7>,
     {1,
      "Other|Unknown|Desktop|Low Profile Desktop|Pizza Box|Mini Tower|Tower|Portable|Laptop|"
      "Notebook|Hand Held|Docking Station|All in One|Sub Notebook|Space-saving|Lunch Box|"
      "Main Server Chassis|Expansion Chassis|SubChassis|Bus Expansion Chassis|Peripheral Chassis|"
      "RAID Chassis|Rack Mount Chassis|Sealed-case PC|Multi-system Chassis|Compact PCI|"
      "Advanced TCA|Blade|Blade Enclosure|Tablet|Convertible|Detachable|IoT Gateway|Embedded PC|"
      "Mini PC|Stick PC"}},
    {"Lock", 0x05, 1, HighBit, kNone},
    {"Version", 0x06, 1, Text, kNone},
    {"Serial Number", 0x07, 1, Text, kNone},
    {"Asset Tag Number", 0x08, 1, Text, kNone},
    {"Boot-up State", 0x09, 1, Name, kChassisStates},
    {"Power Supply State", 0x0A, 1, Name, kChassisStates},
    {"Thermal State", 0x0B, 1, Name, kChassisStates},
    {"Security Status",
     0x0C,
     1,
     Name,
     {1, "Other|Unknown|None|External Interface Locked Out|External Interface Enabled"}},
    {"Height", 0x11, 1, ChassisHeight, kNone},
    {"Number of Power Cords", 0x12, 1, Count, kNone},
    {"SKU Number", 0x13, 2, ChassisSku, kNone},
};

const SmbiosFieldRow kProcessor[] = {
    {"Socket Designation", 0x04, 1, Text, kNone},
    {"Processor Type",
     0x05,
     1,
     Name,
     {1, "Other|Unknown|Central Processor|Math Processor|DSP Processor|Video Processor"}},
    {"Processor Family", 0x06, 1, ProcessorFamily, {1, kProcessorFamilies}},
    {"Processor Manufacturer", 0x07, 1, Text, kNone},
    {"Processor ID", 0x08, 8, ProcessorId, kNone},
    {"Processor Version", 0x10, 1, Text, kNone},
    {"Voltage", 0x11, 1, ProcessorVoltage, kNone},
    {"External Clock", 0x12, 2, Megahertz, kNone},
    {"Max Speed", 0x14, 2, Megahertz, kNone},
    {"Current Speed", 0x16, 2, Megahertz, kNone},
    {"Status",
     0x18,
     1,
     ProcessorStatus,
     {0, "Unknown|Enabled|Disabled by User|Disabled by BIOS|Idle|||Other"}},
    {"L1 Cache Handle", 0x1A, 2, Handle, kNone},
    {"L2 Cache Handle", 0x1C, 2, Handle, kNone},
    {"L3 Cache Handle", 0x1E, 2, Handle, kNone},
    {"Serial Number", 0x20, 1, Text, kNone},
    {"Asset Tag", 0x21, 1, Text, kNone},
    {"Part Number", 0x22, 1, Text, kNone},
    {"Core Count", 0x23, 1, ProcessorCount, {0x2A, ""}},
    {"Core Enabled", 0x24, 1, ProcessorCount, {0x2C, ""}},
    {"Thread Count", 0x25, 1, ProcessorCount, {0x2E, ""}},
    {"Processor Characteristics",
     0x26,
     2,
     SetBits,
     {2,
      "64-bit Capable|Multi-Core|Hardware Thread|Execute Protection|Enhanced Virtualization|"
      "Power/Performance Control|128-bit Capable|Arm64 SoC ID"}},
};

const SmbiosFieldRow kCache[] = {
    {"Socket Designation", 0x04, 1, Text, kNone},
    {"Cache Level", 0x05, 2, CacheLevel, kNone},
    {"State", 0x05, 2, CacheState, kNone},
    {"Operational Mode",
     0x05,
     2,
     CacheMode,
     {0, "Write Through|Write Back|Varies with Memory Address|Unknown"}},
    {"Maximum Cache Size", 0x07, 2, CacheSize, {0x13, ""}},
    {"Installed Size", 0x09, 2, CacheSize, {0x17, ""}},
    {"Cache Speed", 0x0F, 1, Nanoseconds, kNone},
    {"Error Correction Type",
     0x10,
     1,
     Name,
     {1, "Other|Unknown|None|Parity|Single-bit ECC|Multi-bit ECC"}},
    {"System Cache Type", 0x11, 1, Name, {1, "Other|Unknown|Instruction|Data|Unified"}},
    {"Associativity",
     0x12,
     1,
     Name,
     {1,
      "Other|Unknown|Direct Mapped|2-way Set-Associative|4-way Set-Associative|Fully Associative|"
      "8-way Set-Associative|16-way Set-Associative|12-way Set-Associative|24-way Set-Associative|"
      "32-way Set-Associative|48-way Set-Associative|64-way Set-Associative|"
      "20-way Set-Associative"}},
};

const SmbiosNames kConnectors = {
    0,
    "None|Centronics|Mini Centronics|Proprietary|DB-25 pin male|DB-25 pin female|DB-15 pin male|"
    "DB-15 pin female|DB-9 pin male|DB-9 pin female|RJ-11|RJ-45|50-pin MiniSCSI|Mini-DIN|Micro-DIN|"
    "PS/2|Infrared|HP-HIL|Access Bus (USB)|SSA SCSI|Circular DIN-8 male|Circular DIN-8 female|"
    "On Board IDE|On Board Floppy|9-pin Dual Inline (pin 10 cut)|25-pin Dual Inline (pin 26 cut)|"
    "50-pin Dual Inline|68-pin Dual Inline|On Board Sound Input from CD-ROM|"
    "Mini-Centronics Type-14|Mini-Centronics Type-26|Mini-jack (headphones)|BNC|1394|"
    "SAS/SATA Plug Receptacle|USB Type-C "
    "Receptacle|#A0|PC-98|PC-98Hireso|PC-H98|PC-98Note|PC-98Full|#FF|Other"};

const SmbiosFieldRow kPort[] = {
    {"Internal Reference Designator", 0x04, 1, Text, kNone},
    {"Internal Connector Type", 0x05, 1, Name, kConnectors},
    {"External Reference Designator", 0x06, 1, Text, kNone},
    {"External Connector Type", 0x07, 1, Name, kConnectors},
    {"Port Type",
     0x08,
     1,
     Name,
     {0,
      "None|Parallel Port XT/AT Compatible|Parallel Port PS/2|Parallel Port ECP|Parallel Port EPP|"
      "Parallel Port ECP/EPP|Serial Port XT/AT Compatible|Serial Port 16450 Compatible|"
      "Serial Port 16550 Compatible|Serial Port 16550A Compatible|SCSI Port|MIDI Port|"
      "Joy Stick Port|Keyboard Port|Mouse Port|SSA SCSI|USB|FireWire (IEEE P1394)|PCMCIA Type I|"
      "PCMCIA Type II|PCMCIA Type III|Cardbus|Access Bus Port|SCSI II|SCSI Wide|PC-98|"
      "PC-98-Hireso|PC-H98|Video Port|Audio Port|Modem Port|Network Port|SATA|SAS|"
      "MFDP (Multi-Function Display Port)|Thunderbolt|#A0|8251 Compatible|8251 FIFO "
      "Compatible|#FF|Other"}},
};

const SmbiosFieldRow kSlot[] = {
    {"Slot Designation", 0x04, 1, Text, kNone},
    {"Slot Type",
     0x05,
     1,
     Name,
     {1,
      "Other|Unknown|ISA|MCA|EISA|PCI|PC Card (PCMCIA)|VL-VESA|Proprietary|Processor Card Slot|"
      "Proprietary Memory Card Slot|I/O Riser Card Slot|NuBus|PCI - 66MHz Capable|AGP|AGP 2X|"
      "AGP 4X|PCI-X|AGP 8X|M.2 Socket 1-DP|M.2 Socket 1-SD|M.2 Socket 2|M.2 Socket 3|"
      "MXM Type I|MXM Type II|MXM Type III (standard connector)|MXM Type III (HE connector)|"
      "MXM Type IV|MXM 3.0 Type A|MXM 3.0 Type B|PCI Express Gen 2 SFF-8639 (U.2)|"
      "PCI Express Gen 3 SFF-8639 (U.2)|PCI Express Mini 52-pin with bottom-side keep-outs|"
      "PCI Express Mini 52-pin without bottom-side keep-outs|PCI Express Mini 76-pin|"
      "PCI Express Gen 4 SFF-8639 (U.2)|PCI Express Gen 5 SFF-8639 (U.2)|"
      "OCP NIC 3.0 Small Form Factor (SFF)|OCP NIC 3.0 Large Form Factor (LFF)|"
      "OCP NIC Prior to 3.0|#30|CXL Flexbus 1.0|"
      "#A0|PC-98/C20|PC-98/C24|PC-98/E|PC-98/Local Bus|PC-98/Card|"
      "PCI Express|PCI Express x1|PCI Express x2|PCI Express x4|PCI Express x8|PCI Express x16|"
      "PCI Express Gen 2|PCI Express Gen 2 x1|PCI Express Gen 2 x2|PCI Express Gen 2 x4|"
      "PCI Express Gen 2 x8|PCI Express Gen 2 x16|"
      "PCI Express Gen 3|PCI Express Gen 3 x1|PCI Express Gen 3 x2|PCI Express Gen 3 x4|"
      "PCI Express Gen 3 x8|PCI Express Gen 3 x16||"
      "PCI Express Gen 4|PCI Express Gen 4 x1|PCI Express Gen 4 x2|PCI Express Gen 4 x4|"
      "PCI Express Gen 4 x8|PCI Express Gen 4 x16|"
      "PCI Express Gen 5|PCI Express Gen 5 x1|PCI Express Gen 5 x2|PCI Express Gen 5 x4|"
      "PCI Express Gen 5 x8|PCI Express Gen 5 x16|PCI Express Gen 6 and Beyond|"
      "EDSFF E1|EDSFF E3"}},
    {"Slot Data Bus Width",
     0x06,
     1,
     Name,
     {1, "Other|Unknown|8 bit|16 bit|32 bit|64 bit|128 bit|x1|x2|x4|x8|x12|x16|x32"}},
    {"Current Usage", 0x07, 1, Name, {1, "Other|Unknown|Available|In Use|Unavailable"}},
    {"Slot Length",
     0x08,
     1,
     Name,
     {1, "Other|Unknown|Short|Long|2.5\" drive form factor|3.5\" drive form factor"}},
    {"PCI Address", 0x0D, 4, PciAddress, kNone},
};

const SmbiosNames kArrayLocations = {
    1,
    "Other|Unknown|System Board Or Motherboard|ISA Add-on Card|EISA Add-on Card|PCI Add-on Card|"
    "MCA Add-on Card|PCMCIA Add-on Card|Proprietary Add-on Card|NuBus|"
    "#A0|PC-98/C20 Add-on Card|PC-98/C24 Add-on Card|PC-98/E Add-on Card|"
    "PC-98/Local Bus Add-on Card|CXL Add-on Card"};

const SmbiosFieldRow kMemoryArray[] = {
    {"Location", 0x04, 1, Name, kArrayLocations},
    {"Use",
     0x05,
     1,
     Name,
     {1, "Other|Unknown|System Memory|Video Memory|Flash Memory|Non-volatile RAM|Cache Memory"}},
    {"Memory Error Correction",
     0x06,
     1,
     Name,
     {1, "Other|Unknown|None|Parity|Single-bit ECC|Multi-bit ECC|CRC"}},
    {"Maximum Capacity", 0x07, 4, ArrayCapacity, kNone},
    {"Number of Memory Devices", 0x0D, 2, Decimal, kNone},
};

const SmbiosFieldRow kMemoryDevice[] = {
    {"Physical Memory Array Handle", 0x04, 2, Handle, kNone},
    {"Total Width", 0x08, 2, Bits, kNone},
    {"Data Width", 0x0A, 2, Bits, kNone},
    {"Size", 0x0C, 2, MemorySize, kNone},
    {"Form Factor",
     0x0E,
     1,
     Name,
     {1,
      "Other|Unknown|SIMM|SIP|Chip|DIP|ZIP|Proprietary Card|DIMM|TSOP|Row of chips|RIMM|SODIMM|"
      "SRIMM|FB-DIMM|Die"}},
    {"Device Locator", 0x10, 1, Text, kNone},
    {"Bank Locator", 0x11, 1, Text, kNone},
    {"Memory Type",
     0x12,
     1,
     Name,
     {1,
      "Other|Unknown|DRAM|EDRAM|VRAM|SRAM|RAM|ROM|Flash|EEPROM|FEPROM|EPROM|CDRAM|3DRAM|SDRAM|"
      "SGRAM|RDRAM|DDR|DDR2|DDR2 FB-DIMM|#18"
      "|DDR3|FBD2|DDR4|LPDDR|LPDDR2|LPDDR3|LPDDR4|Logical non-volatile device|HBM|HBM2|DDR5|"
      "LPDDR5|HBM3"}},
    {"Type Detail",
     0x13,
     2,
     SetBits,
     {1,
      "Other|Unknown|Fast-paged|Static Column|Pseudo-static|RAMBUS|Synchronous|CMOS|EDO|"
      "Window DRAM|Cache DRAM|Non-volatile|Registered (Buffered)|Unbuffered (Unregistered)|"
      "LRDIMM"}},
    {"Speed", 0x15, 2, MemorySpeed, {0x54, ""}},
    {"Manufacturer", 0x17, 1, Text, kNone},
    {"Serial Number", 0x18, 1, Text, kNone},
    {"Asset Tag", 0x19, 1, Text, kNone},
    {"Part Number", 0x1A, 1, Text, kNone},
    {"Rank", 0x1B, 1, MemoryRank, kNone},
    {"Configured Memory Speed", 0x20, 2, MemorySpeed, {0x58, ""}},
    {"Minimum Voltage", 0x22, 2, Millivolts, kNone},
    {"Maximum Voltage", 0x24, 2, Millivolts, kNone},
    {"Configured Voltage", 0x26, 2, Millivolts, kNone},
    {"Memory Technology",
     0x28,
     1,
     Name,
     {1, "Other|Unknown|DRAM|NVDIMM-N|NVDIMM-F|NVDIMM-P|Intel Optane persistent memory"}},
    {"Firmware Version", 0x2B, 1, Text, kNone},
    {"Non-volatile Size", 0x34, 8, ByteSize, kNone},
    {"Volatile Size", 0x3C, 8, ByteSize, kNone},
    {"Cache Size", 0x44, 8, ByteSize, kNone},
    {"Logical Size", 0x4C, 8, ByteSize, kNone},
};

const SmbiosFieldRow kArrayAddress[] = {
    {"Starting Address", 0x04, 4, StartAddress, {0x0F, ""}},
    {"Ending Address", 0x08, 4, EndAddress, {0x17, ""}},
    {"Memory Array Handle", 0x0C, 2, Handle, kNone},
    {"Partition Width", 0x0E, 1, Decimal, kNone},
};

const SmbiosFieldRow kDeviceAddress[] = {
    {"Starting Address", 0x04, 4, StartAddress, {0x13, ""}},
    {"Ending Address", 0x08, 4, EndAddress, {0x1B, ""}},
    {"Memory Device Handle", 0x0C, 2, Handle, kNone},
    {"Memory Array Mapped Address Handle", 0x0E, 2, Handle, kNone},
};

const SmbiosFieldRow kBoot[] = {
    {"Boot Status",
     0x0A,
     1,
     BootStatus,
     {0,
      "No errors detected|No bootable media|Operating system failed to load|"
      "Firmware-detected hardware failure|Operating system-detected hardware failure|"
      "User-requested boot|System security violation|Previously-requested image|"
      "System watchdog timer expired"}},
};

const SmbiosFieldRow kIpmi[] = {
    {"Interface Type",
     0x04,
     1,
     Name,
     {0,
      "Unknown|KCS (Keyboard Control Style)|SMIC (Server Management Interface Chip)|"
      "BT (Block Transfer)|SSIF (SMBus System Interface)"}},
    {"IPMI Specification Revision", 0x05, 1, BcdRelease, kNone},
    {"I2C Slave Address", 0x06, 1, SlaveAddress, kNone},
    {"Base Address", 0x08, 8, BmcAddress, kNone},
};

const SmbiosFieldRow kOnboardDevice[] = {
    {"Reference Designation", 0x04, 1, Text, kNone},
    {"Device Type",
     0x05,
     1,
     NameAt<0, 7>,
     {1,
      "Other|Unknown|Video|SCSI Controller|Ethernet|Token Ring|Sound|PATA Controller|"
      "SATA Controller|SAS Controller|Wireless LAN|Bluetooth|WWAN|eMMC|NVMe Controller|"
      "UFS Controller"}},
    {"Enabled", 0x05, 1, HighBit, kNone},
    {"Device Type Instance", 0x06, 1, Decimal, kNone},
    {"PCI Address", 0x07, 4, PciAddress, kNone},
};

// Types 10, 11, 12 and 14 are lists, which SmbiosStructure.cpp reads. Batteries, sensors, power and
// what manages the machine stand in SmbiosPlatformTables.cpp.

const SmbiosTypeRow kTypes[] = {
    RowsOf(0, kBios),          RowsOf(1, kSystem),        RowsOf(2, kBoard),
    RowsOf(3, kChassis),       RowsOf(4, kProcessor),     RowsOf(7, kCache),
    RowsOf(8, kPort),          RowsOf(9, kSlot),          RowsOf(16, kMemoryArray),
    RowsOf(17, kMemoryDevice), RowsOf(19, kArrayAddress), RowsOf(20, kDeviceAddress),
    RowsOf(32, kBoot),         RowsOf(38, kIpmi),         RowsOf(41, kOnboardDevice),
};

const char* const kTypeNames[] = {
    "BIOS Information",
    "System Information",
    "Baseboard Information",
    "System Enclosure or Chassis",
    "Processor Information",
    "Memory Controller Information",
    "Memory Module Information",
    "Cache Information",
    "Port Connector Information",
    "System Slots",
    "On Board Devices Information",
    "OEM Strings",
    "System Configuration Options",
    "BIOS Language Information",
    "Group Associations",
    "System Event Log",
    "Physical Memory Array",
    "Memory Device",
    "32-Bit Memory Error Information",
    "Memory Array Mapped Address",
    "Memory Device Mapped Address",
    "Built-in Pointing Device",
    "Portable Battery",
    "System Reset",
    "Hardware Security",
    "System Power Controls",
    "Voltage Probe",
    "Cooling Device",
    "Temperature Probe",
    "Electrical Current Probe",
    "Out-of-Band Remote Access",
    "Boot Integrity Services Entry Point",
    "System Boot Information",
    "64-Bit Memory Error Information",
    "Management Device",
    "Management Device Component",
    "Management Device Threshold Data",
    "Memory Channel",
    "IPMI Device Information",
    "System Power Supply",
    "Additional Information",
    "Onboard Devices Extended Information",
    "Management Controller Host Interface",
    "TPM Device",
    "Processor Additional Information",
    "Firmware Inventory Information",
    "String Property",
};

}  // namespace

const SmbiosTypeRow* FieldsOfType(unsigned int type) {
  for (const SmbiosTypeTable& table :
       {SmbiosTypeTable{std::begin(kTypes), std::end(kTypes)}, PlatformTypes()}) {
    const SmbiosTypeRow* const row = std::find_if(
        table.begin, table.end, [type](const SmbiosTypeRow& each) { return each.type == type; });
    if (row != table.end) {
      return row;
    }
  }
  return nullptr;
}

const char* NameOfType(unsigned int type) {
  if (type < sizeof kTypeNames / sizeof kTypeNames[0]) {
    return kTypeNames[type];
  }
  switch (type) {
    case 126:
      return "Inactive";
    case 127:
      return "End-of-Table";
    default:
      return type >= 128 ? "OEM-specific" : "Unknown";
  }
}

}  // namespace qda
