#include <qda/InstanceOutput.h>

#include <map>
#include <vector>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <qda/CimText.h>
#include <qda/Text.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/frame/TQDAException.h>

namespace qda {

using boost::shared_ptr;
using namespace NZRVQDA20;

namespace {

typedef std::map<std::string, TCIMValue> Context;

// Calls `visit` with the name of each property and its value; one without a name is passed over,
// and one whose value cannot be had is told by its status.
template <class Visit, class Failed>
void ForEachProperty(const ICIMInstance& instance, const Visit& visit, const Failed& failed) {
  boost::function<bool(shared_ptr<ICIMProperty>)> each = [&](shared_ptr<ICIMProperty> property) {
    const shared_ptr<const ICIMPropertyDecl> decl =
        property ? property->GetPropertyDecl(Context()) : shared_ptr<const ICIMPropertyDecl>();
    if (decl) {
      const std::string name = decl->GetName(Context());
      const TCIMValue::TCIMType type = decl->GetType(Context());
      try {
        const TCIMValue& value = property->GetValue(Context());
        visit(name, TypeText(type, value.GetMaxArraySize()), value);
      } catch (const TQDAException& failure) {
        failed(name, TypeText(type), failure.what());
      }
    }
    return true;
  };
  instance.EnumerateProperties(each, Context());
}

}  // namespace

std::string InstanceTable(const InstancePath& path, const ICIMInstance& instance,
                          unsigned int* unread) {
  std::vector<std::vector<std::string>> rows;
  ForEachProperty(
      instance,
      [&rows](const std::string& name, const std::string& type, const TCIMValue& value) {
        rows.push_back({"  " + name, type, ValueText(value)});
      },
      [&rows, unread](const std::string& name, const std::string& type, const char* status) {
        rows.push_back({"  " + name, type, std::string("(") + status + ")"});
        ++*unread;
      });
  const std::string heading =
      path.path.empty() ? path.className + " (no path: " + path.whyNone + ")" : path.path;
  return Printable(heading) + "\n" + Columns(rows);
}

nlohmann::ordered_json InstanceJson(const InstancePath& path, const ICIMInstance& instance,
                                    unsigned int* unread) {
  nlohmann::ordered_json json;
  json["path"] = path.path.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(path.path);
  json["class"] = path.className;
  nlohmann::ordered_json& properties = json["properties"];
  properties = nlohmann::ordered_json::object();
  ForEachProperty(
      instance,
      [&properties](const std::string& name, const std::string& type, const TCIMValue& value) {
        nlohmann::ordered_json shown = ValueJson(value);
        properties[name]["type"] = type;
        properties[name]["value"] = std::move(shown);
      },
      [&properties, unread](const std::string& name, const std::string& type, const char* status) {
        properties[name]["type"] = type;
        properties[name]["value"] = nlohmann::ordered_json();
        properties[name]["status"] = status;
        ++*unread;
      });
  return json;
}

}  // namespace qda
