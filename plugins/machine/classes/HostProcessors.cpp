// Processors as the operating system sees them, where the firmware's table has none.

#include <cstdint>
#include <string>

#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const std::uint16_t kCpuEnabled = 1;  // CIM_Processor.CPUStatus

Object AddDevice(NamespaceBuilder& builder, const MachineFacts& facts,
                 const ProcessorFacts& processor) {
  NewObject device = CreateDevice(builder, kProcessor, facts, processor.deviceId);
  device
      .Set("ElementName", processor.name)
      // It runs this very code.
      .Set("Role", "Central Processor")
      .Set("EnabledState", kEnabled)
      .Set("CPUStatus", kCpuEnabled)
      .Set("MaxClockSpeed", processor.maxClockSpeed)
      .Set("CurrentClockSpeed", processor.currentClockSpeed)
      .Set("DataWidth", processor.dataWidth)
      .Set("AddressWidth", processor.addressWidth)
      .Set("Stepping", processor.stepping)
      .Array("Characteristics", kUint16, processor.characteristics)
      .Set("NumberOfEnabledCores", processor.cores);
  return PublishDevice(builder, device);
}

}  // namespace

void AddHostProcessors(NamespaceBuilder& builder, const MachineFacts& facts) {
  std::uint32_t number = 0;
  for (const ProcessorFacts& processor : facts.host.processors) {
    const Object device = AddDevice(builder, facts, processor);
    builder.Keep(kProcessorRole, number++, device);
    const Object capabilities = builder.Create(kProcessorCapabilities)
                                    .Key("InstanceID", "ZRVSG:" + processor.deviceId)
                                    .Set("NumberOfProcessorCores", processor.cores)
                                    .Set("NumberOfHardwareThreads", processor.threads)
                                    .Publish();
    builder.Associate(kElementCapabilities, device, capabilities);
  }
}

}  // namespace machine
