// Ethernet and wireless ports.

#include <string>

#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const PropertyRow kLogicalPortProperties[] = {{"Speed", kUint64}, {"MaxSpeed", kUint64}};
const ClassRow kLogicalPort("CIM_LogicalPort", &kLogicalDevice, kLogicalPortProperties);
const PropertyRow kNetworkPortProperties[] = {{"Description", kString},
                                              {"LinkTechnology", kUint16},
                                              {"PermanentAddress", kString},
                                              {"NetworkAddresses", ArrayOf(kString)},
                                              {"FullDuplex", kBoolean},
                                              {"AutoSense", kBoolean},
                                              {"ActiveMaximumTransmissionUnit", kUint64}};
const ClassRow kNetworkPort("CIM_NetworkPort", &kLogicalPort, kNetworkPortProperties);
const ClassRow kEthernetPort("CIM_EthernetPort", &kNetworkPort);
const ClassRow kWiFiPort("CIM_WiFiPort", &kNetworkPort);

}  // namespace

void AddNetworkPorts(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kEthernetPort);
  builder.Declare(kWiFiPort);
  for (const NetworkPortFacts& port : facts.host.networkPorts) {
    NewObject object =
        CreateDevice(builder, port.isWireless ? kWiFiPort : kEthernetPort, facts, port.deviceId);
    object.Set("ElementName", port.name)
        .Set("Description", port.description)
        .Set("EnabledState", port.enabledState)
        .Set("Speed", port.speed)
        .Set("MaxSpeed", port.maxSpeed)
        .Set("LinkTechnology", port.linkTechnology)
        .Set("PermanentAddress", port.permanentAddress)
        .Array("NetworkAddresses", kString, port.networkAddresses)
        .Set("FullDuplex", port.fullDuplex)
        .Set("AutoSense", port.autoSense)
        .Set("ActiveMaximumTransmissionUnit", port.activeMaximumTransmissionUnit);
    PublishDevice(builder, object);
  }
}

}  // namespace machine
