// What differs between two inventories, by instance path and property.

#ifndef QDA_INVENTORYDIFF_H
#define QDA_INVENTORYDIFF_H

#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <nlohmann/json.hpp>

namespace NZRVQDA20 {
class ICIMNamespace;
}

namespace qda {

// Properties by name, with their values.
typedef std::map<std::string, nlohmann::ordered_json> Values;

struct Inventory {
  std::map<std::string, Values> byPath;
  // Instances without a path, each by its class and values as text, with how many are alike.
  std::map<std::string, unsigned int> withoutPath;
};

// Throws what the namespace throws.
Inventory ReadInventory(const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& ns);

struct ChangedProperty {
  std::string name;
  // Null also where the property is not there.
  nlohmann::ordered_json before;
  nlohmann::ordered_json after;
};

struct ChangedInstance {
  std::string path;
  std::vector<ChangedProperty> properties;
};

// Each list in ascending order of paths. What has no path is named by its class and values.
struct InventoryDiff {
  std::vector<std::string> added;
  std::vector<std::string> removed;
  std::vector<ChangedInstance> changed;
};

InventoryDiff Compare(const Inventory& before, const Inventory& after);

}  // namespace qda

#endif
