#include <qda/DiffCommand.h>

#include <memory>
#include <string>

#include <boost/shared_ptr.hpp>

#include <fmt/format.h>

#include <qda/CommandOptions.h>
#include <qda/InventoryDiff.h>
#include <qda/Json.h>
#include <qda/SnapshotFile.h>
#include <qda/Text.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>

namespace qda {

using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::TQDAException;

namespace {

struct DiffOptions {
  std::string before;
  std::string after;
};

std::string Shown(const nlohmann::ordered_json& value) {
  return value.is_null()
             ? "NULL"
             : value.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

// A line an instance: "-" removed, "+" added, "~" changed, with a line for each property.
std::string DiffTable(const InventoryDiff& diff) {
  std::string text;
  for (const std::string& path : diff.removed) {
    text += "- " + Printable(path) + "\n";
  }
  for (const std::string& path : diff.added) {
    text += "+ " + Printable(path) + "\n";
  }
  for (const ChangedInstance& instance : diff.changed) {
    text += "~ " + Printable(instance.path) + "\n";
    for (const ChangedProperty& property : instance.properties) {
      text += Printable(fmt::format("    {}: {} -> {}", property.name, Shown(property.before),
                                    Shown(property.after))) +
              "\n";
    }
  }
  return text.empty() ? "The two snapshots have the same instances\n" : text;
}

std::string DiffJson(const InventoryDiff& diff) {
  nlohmann::ordered_json json;
  json["removed"] = diff.removed;
  json["added"] = diff.added;
  json["changed"] = nlohmann::ordered_json::array();
  for (const ChangedInstance& instance : diff.changed) {
    nlohmann::ordered_json row;
    row["path"] = instance.path;
    row["properties"] = nlohmann::ordered_json::object();
    for (const ChangedProperty& property : instance.properties) {
      row["properties"][property.name] = {{"before", property.before}, {"after", property.after}};
    }
    json["changed"].push_back(row);
  }
  return JsonText(json);
}

// False after a message.
bool ReadFile(const std::string& file, Inventory* inventory) {
  const boost::shared_ptr<ICIMNamespace> ns = ReadSnapshot(file);
  if (!ns) {
    return false;
  }
  try {
    *inventory = ReadInventory(ns);
    return true;
  } catch (const TQDAException& failure) {
    Complain(fmt::format("snapshot \"{}\": it cannot be read ({})", file, failure.what()));
    return false;
  }
}

int RunDiff(const DiffOptions& options, Format format) {
  Inventory before;
  Inventory after;
  if (!ReadFile(options.before, &before) || !ReadFile(options.after, &after)) {
    return kExitFailed;
  }
  const InventoryDiff diff = Compare(before, after);
  return PrintResult(format == Format::kJson ? DiffJson(diff) : DiffTable(diff)) ? kExitDone
                                                                                 : kExitFailed;
}

std::function<int()> DeclareDiff(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<DiffOptions>();
  AddPositional(app, {"BEFORE", "The earlier snapshot", true}, &options->before);
  AddPositional(app, {"AFTER", "The later snapshot", true}, &options->after);
  AddFormat(app, run);
  return [options, run] { return RunDiff(*options, run->format); };
}

}  // namespace

const Command kDiffCommand = {"diff", "Inventory", "Tell what differs between two snapshots",
                              DeclareDiff};

}  // namespace qda
