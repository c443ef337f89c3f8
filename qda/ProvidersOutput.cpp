#include <qda/ProvidersOutput.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <qda/Json.h>
#include <qda/Text.h>

namespace qda {

namespace {

std::string Outcome(const ProviderModule& module) {
  if (!module.failure.empty()) {
    return fmt::format("{} ({})", module.failure, module.status);
  }
  return module.providers.empty() ? "none" : fmt::format("{}", fmt::join(module.providers, ", "));
}

nlohmann::ordered_json TextOrNull(const std::string& text) {
  return text.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(text);
}

}  // namespace

std::string ProvidersTable(const std::string& folder, const std::vector<ProviderModule>& modules) {
  if (modules.empty()) {
    return fmt::format("No provider module (*.nsp.dll) stands in {}\n", Printable(folder));
  }
  std::vector<std::vector<std::string>> rows = {{"MODULE", "LOADED", "PROVIDERS"}};
  for (const ProviderModule& module : modules) {
    rows.push_back({module.name, module.failure.empty() ? "yes" : "no", Outcome(module)});
  }
  return Columns(rows);
}

std::string ProvidersJson(const std::string& folder, const std::vector<ProviderModule>& modules) {
  nlohmann::ordered_json json;
  json["folder"] = folder;
  json["modules"] = nlohmann::ordered_json::array();
  for (const ProviderModule& module : modules) {
    nlohmann::ordered_json row;
    row["name"] = module.name;
    row["loaded"] = module.failure.empty();
    row["status"] = TextOrNull(module.status);
    row["failure"] = TextOrNull(module.failure);
    row["providers"] = module.providers;
    json["modules"].push_back(row);
  }
  return JsonText(json);
}

}  // namespace qda
