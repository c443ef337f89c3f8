// Port Connector Information (DSP0134, 7.9, type 8) and System Slots (7.10, type 9).

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <plugins/machine/SmbiosCodes.h>
#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const unsigned int kPort = 8;
const unsigned int kSystemSlot = 9;

const PropertyRow kConnectorProperties[] = {{"ConnectorType", ArrayOf(kUint16)},
                                            {"ConnectorGender", kUint16},
                                            {"ConnectorLayout", kUint16}};
const ClassRow kConnector("CIM_PhysicalConnector", &kPhysicalElement, kConnectorProperties);

const PropertyRow kSlotProperties[] = {{"Number", kUint16},
                                       {"MaxDataWidth", kUint16},
                                       {"MaxLinkWidth", kUint16},
                                       {"SupportsHotPlug", kBoolean},
                                       {"VccMixedVoltageSupport", ArrayOf(kUint16)}};
const ClassRow kSlot("CIM_Slot", &kConnector, kSlotProperties);

// CIM_PhysicalConnector.ConnectorType and .ConnectorGender.
const std::uint16_t kMale = 2;
const std::uint16_t kFemale = 3;

// Connector Type (7.9.2) to CIM_PhysicalConnector.ConnectorType. Those that have no number there
// are 1, "Other".
struct ConnectorRow {
  unsigned int smbios;
  std::uint16_t type;
  std::uint16_t gender;  // 0: neither is said
};
const ConnectorRow kConnectors[] = {
    {0x01, 66, 0},       {0x02, 67, 0},     {0x03, 76, 0},       {0x04, 23, kMale},
    {0x05, 23, kFemale}, {0x06, 22, kMale}, {0x07, 22, kFemale}, {0x08, 21, kMale},
    {0x09, 21, kFemale}, {0x0A, 38, 0},     {0x0B, 39, 0},       {0x0C, 1, 0},
    {0x0D, 59, 0},       {0x0E, 60, 0},     {0x0F, 61, 0},       {0x10, 62, 0},
    {0x11, 63, 0},       {0x12, 53, 0},     {0x13, 88, 0},       {0x14, 89, kMale},
    {0x15, 89, kFemale}, {0x16, 90, 0},     {0x17, 91, 0},       {0x18, 92, 0},
    {0x19, 93, 0},       {0x1A, 94, 0},     {0x1B, 95, 0},       {0x1C, 96, 0},
    {0x1D, 68, 0},       {0x1E, 70, 0},     {0x1F, 97, 0},       {0x20, 37, 0},
    {0x21, 54, 0},       {0x22, 1, 0},      {0x23, 53, 0},       {0xA0, 83, 0},
    {0xA1, 84, 0},       {0xA2, 85, 0},     {0xA3, 86, 0},       {0xA4, 87, 0},
    {0xFF, 1, 0}};

// Port Types (7.9.3).
const char* const kPortTypes[] = {nullptr,
                                  "Parallel Port XT/AT Compatible",
                                  "Parallel Port PS/2",
                                  "Parallel Port ECP",
                                  "Parallel Port EPP",
                                  "Parallel Port ECP/EPP",
                                  "Serial Port XT/AT Compatible",
                                  "Serial Port 16450 Compatible",
                                  "Serial Port 16550 Compatible",
                                  "Serial Port 16550A Compatible",
                                  "SCSI Port",
                                  "MIDI Port",
                                  "Joystick Port",
                                  "Keyboard Port",
                                  "Mouse Port",
                                  "SSA SCSI",
                                  "USB",
                                  "Firewire (IEEE P1394)",
                                  "PCMCIA Type I",
                                  "PCMCIA Type II",
                                  "PCMCIA Type III",
                                  "Cardbus",
                                  "Access Bus Port",
                                  "SCSI II",
                                  "SCSI Wide",
                                  "PC-98",
                                  "PC-98 Hireso",
                                  "PC-H98",
                                  "Video Port",
                                  "Audio Port",
                                  "Modem Port",
                                  "Network Port",
                                  "SATA",
                                  "SAS",
                                  "MFDP (Multi-Function Display Port)",
                                  "Thunderbolt"};

std::string_view PortTypeOf(const SmbiosStructure& port) {
  const std::size_t code = port.Byte(0x08).value_or(0);
  switch (code) {
    case 0xA0:
      return "8251 Compatible";
    case 0xA1:
      return "8251 FIFO Compatible";
    case 0xFF:
      return "Other";
    default:
      break;
  }
  const bool isKnown =
      code < sizeof(kPortTypes) / sizeof(kPortTypes[0]) && kPortTypes[code] != nullptr;
  return isKnown ? kPortTypes[code] : "";
}

void SetConnector(NewObject* object, unsigned int code) {
  for (const ConnectorRow& row : kConnectors) {
    if (row.smbios == code) {
      object->Array("ConnectorType", kUint16, std::vector<std::uint16_t>{row.type});
      if (row.gender != 0) {
        object->Set("ConnectorGender", row.gender);
      }
      return;
    }
  }
}

// What is outside is what people see and plug into; an inner connector counts where there is
// nothing outside.
void AddPorts(NamespaceBuilder& builder, const MachineFacts& facts) {
  unsigned int number = 0;
  for (const SmbiosStructure& port : facts.smbios.OfType(kPort)) {
    NewObject object = CreatePhysical(builder, kConnector, "Port " + std::to_string(number++));
    const std::string_view outside = port.Text(0x06);
    object.Text("ElementName", outside.empty() ? port.Text(0x04) : outside)
        .Text("Description", PortTypeOf(port));
    const std::uint8_t outer = port.Byte(0x07).value_or(0);
    const std::uint8_t inner = port.Byte(0x05).value_or(0);
    if (outer != 0 || inner != 0) {
      SetConnector(&object, outer != 0 ? outer : inner);
    }
    builder.Keep(kPhysicalRole, port.Handle(), object.Publish());
  }
}

// Slot Type (7.10.1) to CIM_Slot.ConnectorType. PCI Express has no number there: see below.
const CodeRow kSlotTypes[] = {{0x01, 1},  {0x03, 44}, {0x04, 101}, {0x05, 45}, {0x06, 43},
                              {0x07, 47}, {0x08, 46}, {0x09, 76},  {0x0A, 77}, {0x0B, 78},
                              {0x0C, 79}, {0x0D, 65}, {0x0E, 80},  {0x0F, 73}, {0x10, 81},
                              {0x11, 82}, {0x12, 98}, {0x13, 122}};
// The same to CIM_PhysicalConnector.ConnectorLayout.
const CodeRow kSlotLayouts[] = {{0x06, 16}, {0x0E, 16}, {0x12, 17}};

// PCI Express slots: five generations, from these codes on, each with no stated width, x1, x2,
// x4, x8 and x16.
const unsigned int kFirstExpress[] = {0xA5, 0xAB, 0xB1, 0xB8, 0xBE};
const unsigned int kExpressForms = 6;
const std::uint16_t kExpressLayout = 18;
const char* const kExpressWidths[kExpressForms] = {"", " x1", " x2", " x4", " x8", " x16"};

// Slot Data Bus Width (7.10.2) to bits, and to CIM_Slot.MaxLinkWidth.
const CodeRow kBits[] = {{3, 8}, {4, 16}, {5, 32}, {6, 64}, {7, 128}};
const CodeRow kLinks[] = {{8, 2}, {9, 3}, {10, 4}, {11, 5}, {12, 6}, {13, 7}, {14, 8}};

void SetSlotType(NewObject* object, unsigned int code) {
  for (unsigned int generation = 0; generation < 5; ++generation) {
    const unsigned int form = code - kFirstExpress[generation];
    if (code >= kFirstExpress[generation] && form < kExpressForms) {
      object->Set("ConnectorLayout", static_cast<std::uint16_t>(kExpressLayout + form))
          .Set("Description",
               "PCI Express " + std::to_string(generation + 1) + kExpressWidths[form]);
      return;
    }
  }
  if (const std::optional<std::uint16_t> type = Translate(kSlotTypes, code)) {
    object->Array("ConnectorType", kUint16, std::vector<std::uint16_t>{*type});
  }
  object->Set("ConnectorLayout", Translate(kSlotLayouts, code));
}

// Slot Characteristics 1 (7.10.6): bit 0 unknown, 1 5.0 V, 2 3.3 V; to
// CIM_Slot.VccMixedVoltageSupport.
std::vector<std::uint16_t> VoltagesOf(const SmbiosStructure& slot) {
  std::vector<std::uint16_t> voltages;
  const unsigned int bits = slot.Byte(0x0B).value_or(1);
  if ((bits & 1) == 0) {
    if (bits & 4) {
      voltages.push_back(2);
    }
    if (bits & 2) {
      voltages.push_back(3);
    }
  }
  return voltages;
}

void AddSlots(NamespaceBuilder& builder, const MachineFacts& facts) {
  unsigned int number = 0;
  for (const SmbiosStructure& slot : facts.smbios.OfType(kSystemSlot)) {
    NewObject object = CreatePhysical(builder, kSlot, "Slot " + std::to_string(number++));
    SetSlotType(&object, slot.Byte(0x05).value_or(0));
    const Object published = object.Text("ElementName", slot.Text(0x04))
                                 .Set("Number", slot.Word(0x09))
                                 .Set("MaxDataWidth", Translate(kBits, slot.Byte(0x06)))
                                 .Set("MaxLinkWidth", Translate(kLinks, slot.Byte(0x06)))
                                 .Array("VccMixedVoltageSupport", kUint16, VoltagesOf(slot))
                                 .Set("SupportsHotPlug", Bit(slot.Byte(0x0C), 1))
                                 .Publish();
    builder.Keep(kPhysicalRole, slot.Handle(), published);
  }
}

}  // namespace

void AddConnectors(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kConnector);
  builder.Declare(kSlot);
  AddPorts(builder, facts);
  AddSlots(builder, facts);
}

}  // namespace machine
