// Batteries, sensors, power and what manages the machine.

#include <qda/SmbiosFieldTables.h>

#include <iterator>

namespace qda {

namespace {

using namespace show;

const SmbiosNames kNone = {0, ""};
const SmbiosNames kYes = {0, "No|Yes"};
const SmbiosNames kEnabled = {0, "Disabled|Enabled"};
const SmbiosNames kStates = {1, "Other|Unknown|OK|Non-critical|Critical|Non-recoverable"};
const SmbiosNames kPasswords = {0, "Disabled|Enabled|Not Implemented|Unknown"};
const SmbiosNames kErrors = {
    1,
    "Other|Unknown|OK|Bad Read|Parity Error|Single-bit Error|Double-bit Error|Multi-bit Error|"
    "Nibble Error|Checksum Error|CRC Error|Corrected Single-bit Error|Corrected Error|"
    "Uncorrectable Error"};

const SmbiosFieldRow kLanguage[] = {
    {"Installable Languages", 0x04, 1, Decimal, kNone},
    {"Language Description Format", 0x05, 1, NameAt<0, 1>, {0, "Long|Abbreviated"}},
    {"Current Language", 0x15, 1, Text, kNone},
};

const SmbiosFieldRow kEventLog[] = {
    {"Log Area Length", 0x04, 2, Bytes, kNone},
    {"Access Method",
     0x0A,
     1,
     Name,
     {0,
      "Indexed I/O, one 8-bit index port, one 8-bit data port|"
      "Indexed I/O, two 8-bit index ports, one 8-bit data port|"
      "Indexed I/O, one 16-bit index port, one 8-bit data port|"
      "Memory-mapped physical 32-bit address|General-purpose non-volatile data functions"}},
    {"Log Status",
     0x0B,
     1,
     NameAt<0, 2>,
     {0, "Invalid, Not Full|Valid, Not Full|Invalid, Full|Valid, Full"}},
    {"Log Change Token", 0x0C, 4, Hexadecimal, kNone},
};

// 32-bit and 64-bit memory errors.
const SmbiosFieldRow kMemoryError[] = {
    {"Error Type", 0x04, 1, Name, kErrors},
    {"Error Granularity", 0x05, 1, Name, {1, "Other|Unknown|Device Level|Memory Partition Level"}},
    {"Error Operation", 0x06, 1, Name, {1, "Other|Unknown|Read|Write|Partial Write"}},
};

const SmbiosFieldRow kPointingDevice[] = {
    {"Type",
     0x04,
     1,
     Name,
     {1,
      "Other|Unknown|Mouse|Track Ball|Track Point|Glide Point|Touch Pad|Touch Screen|"
      "Optical Sensor"}},
    {"Interface",
     0x05,
     1,
     Name,
     {1,
      "Other|Unknown|Serial|PS/2|Infrared|HP-HIL|Bus Mouse|ADB (Apple Desktop Bus)|"
      "#A0|Bus Mouse DB-9|Bus Mouse Micro DIN|USB|I2C|SPI"}},
    {"Number of Buttons", 0x06, 1, Decimal, kNone},
};

const SmbiosFieldRow kBattery[] = {
    {"Location", 0x04, 1, Text, kNone},
    {"Manufacturer", 0x05, 1, Text, kNone},
    {"Manufacture Date", 0x06, 1, Text, kNone},
    {"Serial Number", 0x07, 1, Text, kNone},
    {"Device Name", 0x08, 1, Text, kNone},
    {"Device Chemistry",
     0x09,
     1,
     Name,
     {1,
      "Other|Unknown|Lead Acid|Nickel Cadmium|Nickel Metal Hydride|Lithium Ion|Zinc Air|"
      "Lithium Polymer"}},
    {"Design Capacity", 0x0A, 2, BatteryCapacity, kNone},
    {"Design Voltage", 0x0C, 2, Millivolts, kNone},
    {"SBDS Version Number", 0x0E, 1, Text, kNone},
    {"SBDS Serial Number", 0x10, 2, Hexadecimal, kNone},
    {"SBDS Manufacture Date", 0x12, 2, BatteryDate, kNone},
    {"SBDS Device Chemistry", 0x14, 1, Text, kNone},
};

const SmbiosFieldRow kReset[] = {
    {"Status", 0x04, 1, NameAt<0, 1>, kEnabled},
    {"Watchdog Timer", 0x04, 1, NameAt<5, 1>, {0, "Not Present|Present"}},
    {"Reset Count", 0x05, 2, KnownDecimal, kNone},
    {"Reset Limit", 0x07, 2, KnownDecimal, kNone},
    {"Timer Interval", 0x09, 2, Minutes, kNone},
    {"Timeout", 0x0B, 2, Minutes, kNone},
};

const SmbiosFieldRow kSecurity[] = {
    {"Power-on Password Status", 0x04, 1, NameAt<6, 2>, kPasswords},
    {"Keyboard Password Status", 0x04, 1, NameAt<4, 2>, kPasswords},
    {"Administrator Password Status", 0x04, 1, NameAt<2, 2>, kPasswords},
    {"Front Panel Reset Status", 0x04, 1, NameAt<0, 2>, kPasswords},
};

const SmbiosNames kProbeLocations = {
    1,
    "Other|Unknown|Processor|Disk|Peripheral Bay|System Management Module|Motherboard|"
    "Memory Module|Processor Module|Power Unit|Add-in Card"};
const SmbiosNames kTemperatureLocations = {
    1,
    "Other|Unknown|Processor|Disk|Peripheral Bay|System Management Module|Motherboard|"
    "Memory Module|Processor Module|Power Unit|Add-in Card|Front Panel Board|Back Panel Board|"
    "Power System Board|Drive Back Plane"};

const SmbiosFieldRow kVoltageProbe[] = {
    {"Description", 0x04, 1, Text, kNone},
    {"Location", 0x05, 1, NameAt<0, 5>, kProbeLocations},
    {"Status", 0x05, 1, NameAt<5, 3>, kStates},
    {"Maximum Value", 0x06, 2, Signed, {3, "V"}},
    {"Minimum Value", 0x08, 2, Signed, {3, "V"}},
    {"Resolution", 0x0A, 2, Unsigned, {1, "mV"}},
    {"Tolerance", 0x0C, 2, Signed, {3, "V"}},
    {"Accuracy", 0x0E, 2, Unsigned, {2, "%"}},
    {"Nominal Value", 0x14, 2, Signed, {3, "V"}},
};

const SmbiosFieldRow kCooling[] = {
    {"Temperature Probe Handle", 0x04, 2, Handle, kNone},
    {"Device Type",
     0x06,
     1,
     NameAt<0, 5>,
     {1,
      "Other|Unknown|Fan|Centrifugal Blower|Chip Fan|Cabinet Fan|Power Supply Fan|Heat Pipe|"
      "Integrated Refrigeration|#10|Active Cooling|Passive Cooling"}},
    {"Status", 0x06, 1, NameAt<5, 3>, kStates},
    {"Cooling Unit Group", 0x07, 1, Count, kNone},
    {"Nominal Speed", 0x0C, 2, Revolutions, kNone},
    {"Description", 0x0E, 1, Text, kNone},
};

const SmbiosFieldRow kTemperatureProbe[] = {
    {"Description", 0x04, 1, Text, kNone},
    {"Location", 0x05, 1, NameAt<0, 5>, kTemperatureLocations},
    {"Status", 0x05, 1, NameAt<5, 3>, kStates},
    {"Maximum Value", 0x06, 2, Signed, {1, "deg C"}},
    {"Minimum Value", 0x08, 2, Signed, {1, "deg C"}},
    {"Resolution", 0x0A, 2, Unsigned, {3, "deg C"}},
    {"Tolerance", 0x0C, 2, Signed, {1, "deg C"}},
    {"Accuracy", 0x0E, 2, Unsigned, {2, "%"}},
    {"Nominal Value", 0x14, 2, Signed, {1, "deg C"}},
};

const SmbiosFieldRow kCurrentProbe[] = {
    {"Description", 0x04, 1, Text, kNone},
    {"Location", 0x05, 1, NameAt<0, 5>, kProbeLocations},
    {"Status", 0x05, 1, NameAt<5, 3>, kStates},
    {"Maximum Value", 0x06, 2, Signed, {3, "A"}},
    {"Minimum Value", 0x08, 2, Signed, {3, "A"}},
    {"Resolution", 0x0A, 2, Unsigned, {1, "mA"}},
    {"Tolerance", 0x0C, 2, Signed, {3, "A"}},
    {"Accuracy", 0x0E, 2, Unsigned, {2, "%"}},
    {"Nominal Value", 0x14, 2, Signed, {3, "A"}},
};

const SmbiosFieldRow kRemoteAccess[] = {
    {"Manufacturer Name", 0x04, 1, Text, kNone},
    {"Inbound Connection", 0x05, 1, NameAt<0, 1>, kEnabled},
    {"Outbound Connection", 0x05, 1, NameAt<1, 1>, kEnabled},
};

const SmbiosFieldRow kManagementDevice[] = {
    {"Description", 0x04, 1, Text, kNone},
    {"Type",
     0x05,
     1,
     Name,
     {1, "Other|Unknown|LM75|LM78|LM79|LM80|LM81|ADM9240|DS1780|MAX1617|GL518SM|W83781D|HT82H791"}},
    {"Address", 0x06, 4, Hexadecimal, kNone},
    {"Address Type", 0x0A, 1, Name, {1, "Other|Unknown|I/O Port|Memory|SMBus"}},
};

const SmbiosFieldRow kManagementComponent[] = {
    {"Description", 0x04, 1, Text, kNone},
    {"Management Device Handle", 0x05, 2, Handle, kNone},
    {"Component Handle", 0x07, 2, Handle, kNone},
    {"Threshold Handle", 0x09, 2, Handle, kNone},
};

// In the unit of the probe that they belong to.
const SmbiosFieldRow kThresholds[] = {
    {"Lower Non-critical Threshold", 0x04, 2, Signed, kNone},
    {"Upper Non-critical Threshold", 0x06, 2, Signed, kNone},
    {"Lower Critical Threshold", 0x08, 2, Signed, kNone},
    {"Upper Critical Threshold", 0x0A, 2, Signed, kNone},
    {"Lower Non-recoverable Threshold", 0x0C, 2, Signed, kNone},
    {"Upper Non-recoverable Threshold", 0x0E, 2, Signed, kNone},
};

const SmbiosFieldRow kMemoryChannel[] = {
    {"Channel Type", 0x04, 1, Name, {1, "Other|Unknown|RamBus|SyncLink"}},
    {"Maximum Channel Load", 0x05, 1, Decimal, kNone},
    {"Memory Device Count", 0x06, 1, Decimal, kNone},
};

const SmbiosFieldRow kPowerSupply[] = {
    {"Power Unit Group", 0x04, 1, Count, kNone},
    {"Location", 0x05, 1, Text, kNone},
    {"Device Name", 0x06, 1, Text, kNone},
    {"Manufacturer", 0x07, 1, Text, kNone},
    {"Serial Number", 0x08, 1, Text, kNone},
    {"Asset Tag Number", 0x09, 1, Text, kNone},
    {"Model Part Number", 0x0A, 1, Text, kNone},
    {"Revision Level", 0x0B, 1, Text, kNone},
    {"Max Power Capacity", 0x0C, 2, Watts, kNone},
    {"Status", 0x0E, 2, PowerSupplyStatus, {1, "Other|Unknown|OK|Non-critical|Critical"}},
    {"Type",
     0x0E,
     2,
     NameAt<10, 4>,
     {1, "Other|Unknown|Linear|Switching|Battery|UPS|Converter|Regulator"}},
    {"Input Voltage Range Switching",
     0x0E,
     2,
     NameAt<3, 4>,
     {1, "Other|Unknown|Manual|Auto-switch|Wide Range|N/A"}},
    {"Plugged", 0x0E, 2, NameAt<2, 1>, {0, "Yes|No"}},
    {"Hot Replaceable", 0x0E, 2, NameAt<0, 1>, kYes},
    {"Input Voltage Probe Handle", 0x10, 2, Handle, kNone},
    {"Cooling Device Handle", 0x12, 2, Handle, kNone},
    {"Input Current Probe Handle", 0x14, 2, Handle, kNone},
};

const SmbiosFieldRow kHostInterface[] = {
    {"Interface Type",
     0x04,
     1,
     Name,
     {2,
      "KCS (Keyboard Controller Style)|8250 UART Register Compatible|"
      "16450 UART Register Compatible|"
      "16550/16550A UART Register Compatible|16650/16650A UART Register Compatible|"
      "16750/16750A UART Register Compatible|16850/16850A UART Register Compatible|"
      "#40|Network Host Interface|#F0|OEM-defined"}},
};

const SmbiosFieldRow kTpm[] = {
    {"Vendor ID", 0x04, 4, VendorId, kNone},
    {"Specification Version", 0x08, 2, Release, kNone},
    {"Firmware Revision", 0x0A, 4, TpmFirmware, kNone},
    {"Description", 0x12, 1, Text, kNone},
};

const SmbiosFieldRow kProcessorAddition[] = {
    {"Referenced Handle", 0x04, 2, Handle, kNone},
    {"Processor Type",
     0x07,
     1,
     Name,
     {1,
      "IA32 (x86)|x64|Intel Itanium|ARM 32-bit|ARM 64-bit|RISC-V RV32|RISC-V RV64|RISC-V RV128|"
      "LoongArch32|LoongArch64"}},
};

const SmbiosFieldRow kFirmware[] = {
    {"Firmware Component Name", 0x04, 1, Text, kNone},
    {"Firmware Version", 0x05, 1, Text, kNone},
    {"Firmware ID", 0x07, 1, Text, kNone},
    {"Release Date", 0x09, 1, Text, kNone},
    {"Manufacturer", 0x0A, 1, Text, kNone},
    {"Lowest Supported Firmware Version", 0x0B, 1, Text, kNone},
    {"Image Size", 0x0C, 8, ByteSize, kNone},
    {"State",
     0x16,
     1,
     Name,
     {1,
      "Other|Unknown|Disabled|Enabled|Absent|Standby Offline|Standby Spare|"
      "Unavailable Offline"}},
};

const SmbiosFieldRow kStringProperty[] = {
    {"String Property ID", 0x04, 2, Name, {1, "UEFI Device Path"}},
    {"String Property Value", 0x06, 1, Text, kNone},
    {"Parent Handle", 0x07, 2, Handle, kNone},
};

const SmbiosTypeRow kTypes[] = {
    RowsOf(13, kLanguage),
    RowsOf(15, kEventLog),
    RowsOf(18, kMemoryError),
    RowsOf(21, kPointingDevice),
    RowsOf(22, kBattery),
    RowsOf(23, kReset),
    RowsOf(24, kSecurity),
    RowsOf(26, kVoltageProbe),
    RowsOf(27, kCooling),
    RowsOf(28, kTemperatureProbe),
    RowsOf(29, kCurrentProbe),
    RowsOf(30, kRemoteAccess),
    RowsOf(33, kMemoryError),
    RowsOf(34, kManagementDevice),
    RowsOf(35, kManagementComponent),
    RowsOf(36, kThresholds),
    RowsOf(37, kMemoryChannel),
    RowsOf(39, kPowerSupply),
    RowsOf(42, kHostInterface),
    RowsOf(43, kTpm),
    RowsOf(44, kProcessorAddition),
    RowsOf(45, kFirmware),
    RowsOf(46, kStringProperty),
};

}  // namespace

SmbiosTypeTable PlatformTypes() { return {std::begin(kTypes), std::end(kTypes)}; }

}  // namespace qda
