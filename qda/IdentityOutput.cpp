#include <qda/IdentityOutput.h>

#include <nlohmann/json.hpp>

#include <qda/Json.h>
#include <qda/SourceText.h>
#include <qda/Text.h>

namespace qda {

namespace {

std::string Shown(const Fact<std::string>& fact) { return fact.value.value_or("unknown"); }

std::string Shown(const Fact<unsigned short>& fact) {
  return fact.value ? std::to_string(*fact.value) : "unknown";
}

template <class T>
nlohmann::ordered_json ValueOrNull(const Fact<T>& fact) {
  return fact.value ? nlohmann::ordered_json(*fact.value) : nlohmann::ordered_json();
}

}  // namespace

std::string IdentityTable(const Identity& identity) {
  return Columns({{"Machine type and model", Shown(identity.machineTypeModel)},
                  {"Machine type", Shown(identity.machineType)},
                  {"Model", Shown(identity.modelNumber)},
                  {"Serial number", Shown(identity.serialNumber)},
                  {"Product name", Shown(identity.productName)},
                  {"System name", Shown(identity.systemName)},
                  {"Operating system", Shown(identity.operatingSystemName)},
                  {"Operating system version", Shown(identity.operatingSystemVersion)},
                  {"Operating system type", Shown(identity.operatingSystemType)}});
}

std::string IdentityJson(const Identity& identity, const SourceOptions& source) {
  nlohmann::ordered_json json = SourceJson(source);
  json["machineTypeModel"] = ValueOrNull(identity.machineTypeModel);
  json["machineType"] = ValueOrNull(identity.machineType);
  json["modelNumber"] = ValueOrNull(identity.modelNumber);
  json["serialNumber"] = ValueOrNull(identity.serialNumber);
  json["productName"] = ValueOrNull(identity.productName);
  json["systemName"] = ValueOrNull(identity.systemName);
  json["operatingSystem"]["name"] = ValueOrNull(identity.operatingSystemName);
  json["operatingSystem"]["version"] = ValueOrNull(identity.operatingSystemVersion);
  json["operatingSystem"]["type"] = ValueOrNull(identity.operatingSystemType);
  return JsonText(json);
}

}  // namespace qda
