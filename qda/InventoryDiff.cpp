#include <qda/InventoryDiff.h>

#include <boost/function.hpp>

#include <qda/CimText.h>
#include <qda/ClassTree.h>
#include <qda/InstancePath.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>

namespace qda {

using boost::shared_ptr;
using namespace NZRVQDA20;

namespace {

typedef std::map<std::string, TCIMValue> Context;

Values ReadValues(const ICIMInstance& instance) {
  Values values;
  boost::function<bool(shared_ptr<ICIMProperty>)> visit =
      [&values](shared_ptr<ICIMProperty> property) {
        values[property->GetPropertyDecl(Context())->GetName(Context())] =
            ValueJson(property->GetValue(Context()));
        return true;
      };
  instance.EnumerateProperties(visit, Context());
  return values;
}

std::string Described(const std::string& className, const Values& values) {
  std::string text = className;
  for (const auto& value : values) {
    text += (text.size() == className.size() ? " {" : ", ") + value.first + "=" +
            value.second.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  }
  return values.empty() ? text : text + "}";
}

void AddTimes(unsigned int times, const std::string& text, std::vector<std::string>& list) {
  list.insert(list.end(), times, text);
}

std::vector<ChangedProperty> CompareValues(const Values& before, const Values& after) {
  std::vector<ChangedProperty> changed;
  for (const auto& old : before) {
    const auto found = after.find(old.first);
    const nlohmann::ordered_json now = found == after.end() ? nullptr : found->second;
    if (now != old.second) {
      changed.push_back({old.first, old.second, now});
    }
  }
  for (const auto& now : after) {
    if (before.count(now.first) == 0 && !now.second.is_null()) {
      changed.push_back({now.first, nullptr, now.second});
    }
  }
  return changed;
}

}  // namespace

Inventory ReadInventory(const shared_ptr<ICIMNamespace>& ns) {
  Inventory inventory;
  PathFinder paths(ns);
  boost::function<bool(shared_ptr<ICIMInstance>)> visit = [&](shared_ptr<ICIMInstance> instance) {
    const InstancePath path = paths.PathOf(*instance);
    const Values values = ReadValues(*instance);
    // A path that another one has, as those may that are rounded, tells nothing.
    if (path.path.empty() || !inventory.byPath.emplace(path.path, values).second) {
      ++inventory.withoutPath[Described(path.className, values)];
    }
    return true;
  };
  for (const ClassNode& node : ReadClassTree(*ns)) {
    ns->GetClass(node.name, Context())->EnumerateInstances(visit, false, Context());
  }
  return inventory;
}

InventoryDiff Compare(const Inventory& before, const Inventory& after) {
  InventoryDiff diff;
  for (const auto& old : before.byPath) {
    const auto found = after.byPath.find(old.first);
    if (found == after.byPath.end()) {
      diff.removed.push_back(old.first);
      continue;
    }
    const std::vector<ChangedProperty> changed = CompareValues(old.second, found->second);
    if (!changed.empty()) {
      diff.changed.push_back({old.first, changed});
    }
  }
  for (const auto& now : after.byPath) {
    if (before.byPath.count(now.first) == 0) {
      diff.added.push_back(now.first);
    }
  }
  for (const auto& old : before.withoutPath) {
    const auto found = after.withoutPath.find(old.first);
    const unsigned int now = found == after.withoutPath.end() ? 0 : found->second;
    AddTimes(old.second > now ? old.second - now : 0, old.first, diff.removed);
  }
  for (const auto& now : after.withoutPath) {
    const auto found = before.withoutPath.find(now.first);
    const unsigned int old = found == before.withoutPath.end() ? 0 : found->second;
    AddTimes(now.second > old ? now.second - old : 0, now.first, diff.added);
  }
  return diff;
}

}  // namespace qda
