// Free-form texts of the firmware: OEM Strings (DSP0134, 7.12, type 11) and System Configuration
// Options (7.13, type 12). DMTF has no class for them.

#include <string>
#include <string_view>
#include <vector>

#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const PropertyRow kTextProperties[] = {
    {"InstanceID", kString, kKey}, {"ElementName", kString}, {"Strings", ArrayOf(kString)}};
const ClassRow kFirmwareStrings("ZRVSG_FirmwareStrings", &kManagedElement, kTextProperties);

void AddStrings(NamespaceBuilder& builder, const MachineFacts& facts, unsigned int type,
                const std::string& name) {
  unsigned int number = 0;
  for (const SmbiosStructure& structure : facts.smbios.OfType(type)) {
    std::vector<std::string> texts;
    const unsigned int count = structure.Byte(0x04).value_or(0);
    for (unsigned int at = 1; at <= count; ++at) {
      const std::string_view text = structure.String(at);
      // No string of a set is empty (6.1.3): behind one that is not there none is.
      if (text.empty()) {
        break;
      }
      texts.push_back(std::string(text));
    }
    builder.Create(kFirmwareStrings)
        .Key("InstanceID", "ZRVSG:" + name + " " + std::to_string(number++))
        .Set("ElementName", name)
        .Array("Strings", kString, texts)
        .Publish();
  }
}

}  // namespace

void AddFirmwareStrings(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kFirmwareStrings);
  AddStrings(builder, facts, 11, "OEM Strings");
  AddStrings(builder, facts, 12, "System Configuration Options");
}

}  // namespace machine
