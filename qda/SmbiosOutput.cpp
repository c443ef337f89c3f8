#include <qda/SmbiosOutput.h>

#include <fmt/format.h>

#include <qda/Json.h>
#include <qda/Text.h>

namespace qda {

namespace {

const char kUnknown[] = "unknown";

std::optional<std::string> VersionText(const SmbiosVersion& version) {
  if (!version.IsStated()) {
    return std::nullopt;
  }
  return fmt::format("{}.{}", version.majorNumber, version.minorNumber);
}

std::string HandleText(const SmbiosStructure& structure) {
  return fmt::format("0x{:04X}", structure.handle);
}

nlohmann::ordered_json TextOrNull(const std::optional<std::string>& text) {
  return text ? nlohmann::ordered_json(*text) : nlohmann::ordered_json();
}

}  // namespace

std::string SmbiosTable(const SmbiosReport& report) {
  std::string text =
      Columns({{"SMBIOS version", VersionText(report.version).value_or(kUnknown)},
               {"BIOS identifier", report.biosId.value_or(kUnknown)},
               {"Machine type, by product name", report.machineType.value_or(kUnknown)},
               {"Machine type, by BIOS identifier", report.machineTypeFromId.value_or(kUnknown)}});
  for (const SmbiosStructure& structure : report.structures) {
    text += fmt::format("\n{}  {} (type {}, {} bytes)\n", HandleText(structure), structure.name,
                        structure.type, structure.length);
    std::vector<std::vector<std::string>> rows;
    for (const SmbiosField& field : structure.fields) {
      rows.push_back({"  " + field.name, field.value.value_or(kUnknown)});
    }
    text += Columns(rows);
  }
  return text;
}

std::string SmbiosJson(const SmbiosReport& report) {
  nlohmann::ordered_json json;
  json["version"] = TextOrNull(VersionText(report.version));
  json["biosId"] = TextOrNull(report.biosId);
  json["machineType"] = TextOrNull(report.machineType);
  json["machineTypeFromId"] = TextOrNull(report.machineTypeFromId);
  json["structures"] = nlohmann::ordered_json::array();
  for (const SmbiosStructure& structure : report.structures) {
    nlohmann::ordered_json row;
    row["type"] = structure.type;
    row["name"] = structure.name;
    row["handle"] = HandleText(structure);
    row["length"] = structure.length;
    row["fields"] = nlohmann::ordered_json::object();
    for (const SmbiosField& field : structure.fields) {
      row["fields"][field.name] = TextOrNull(field.value);
    }
    json["structures"].push_back(row);
  }
  return JsonText(json);
}

}  // namespace qda
