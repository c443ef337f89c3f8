#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const PropertyRow kProductProperties[] = {{"Name", kString, kKey},
                                          {"IdentifyingNumber", kString, kKey},
                                          {"Vendor", kString, kKey},
                                          {"Version", kString, kKey}};
const ClassRow kProduct("CIM_Product", &kManagedElement, kProductProperties);

const PropertyRow kZrvProductProperties[] = {{"Build", kUint32}};
const ClassRow kZrvProduct("ZRVSG_QDAProduct", &kProduct, kZrvProductProperties);

std::optional<std::uint32_t> BuildNumber() {
  const std::string text = MACHINE_PRODUCT_BUILD;
  if (text.empty()) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(std::strtoul(text.c_str(), nullptr, 10));
}

}  // namespace

void AddProduct(NamespaceBuilder& builder, const MachineFacts&) {
  builder.Create(kZrvProduct)
      .Key("Name", "qdacore")
      // Copies of it are not numbered, and a key has a value.
      .Key("IdentifyingNumber", "")
      .Key("Vendor", "ZRV")
      .Key("Version", MACHINE_PRODUCT_VERSION)
      .Set("Build", BuildNumber())
      .Publish();
}

}  // namespace machine
