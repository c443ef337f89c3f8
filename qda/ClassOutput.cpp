#include <qda/ClassOutput.h>

#include <vector>

#include <qda/Json.h>
#include <qda/Text.h>

namespace qda {

namespace {

typedef std::vector<std::vector<std::string>> Rows;

const char* YesOrNo(bool is) { return is ? "yes" : "no"; }

// Empty when there is nothing but the heading.
std::string Section(const Rows& rows) { return rows.size() > 1 ? "\n" + Columns(rows) : ""; }

std::string ParameterList(const MethodModel& method) {
  std::string list;
  for (const ParameterModel& parameter : method.parameters) {
    list += (list.empty() ? "" : ", ") + parameter.type + " " + parameter.name;
  }
  return list;
}

void AddQualifiers(const std::string& element, const std::vector<QualifierModel>& qualifiers,
                   Rows* rows) {
  for (const QualifierModel& qualifier : qualifiers) {
    rows->push_back({element, qualifier.name, qualifier.value.text});
  }
}

std::string QualifierSection(const ClassModel& model) {
  Rows rows = {{"ELEMENT", "QUALIFIER", "VALUE"}};
  AddQualifiers(model.name, model.qualifiers, &rows);
  for (const PropertyModel& property : model.properties) {
    AddQualifiers(property.name, property.qualifiers, &rows);
  }
  for (const MethodModel& method : model.methods) {
    AddQualifiers(method.name + "()", method.qualifiers, &rows);
    for (const ParameterModel& parameter : method.parameters) {
      AddQualifiers(method.name + "(" + parameter.name + ")", parameter.qualifiers, &rows);
    }
  }
  return Section(rows);
}

nlohmann::ordered_json QualifiersJson(const std::vector<QualifierModel>& qualifiers) {
  nlohmann::ordered_json json = nlohmann::ordered_json::object();
  for (const QualifierModel& qualifier : qualifiers) {
    json[qualifier.name] = qualifier.value.json;
  }
  return json;
}

nlohmann::ordered_json PropertyJson(const PropertyModel& property) {
  nlohmann::ordered_json json;
  json["name"] = property.name;
  json["type"] = property.type;
  json["array"] = property.isArray;
  json["key"] = property.isKey;
  json["origin"] = property.origin;
  json["default"] = property.defaultValue.json;
  json["qualifiers"] = QualifiersJson(property.qualifiers);
  return json;
}

nlohmann::ordered_json MethodJson(const MethodModel& method) {
  nlohmann::ordered_json json;
  json["name"] = method.name;
  json["type"] = method.type;
  json["origin"] = method.origin;
  json["parameters"] = nlohmann::ordered_json::array();
  for (const ParameterModel& parameter : method.parameters) {
    nlohmann::ordered_json row;
    row["name"] = parameter.name;
    row["type"] = parameter.type;
    row["qualifiers"] = QualifiersJson(parameter.qualifiers);
    json["parameters"].push_back(row);
  }
  json["qualifiers"] = QualifiersJson(method.qualifiers);
  return json;
}

}  // namespace

std::string ClassTable(const ClassModel& model) {
  Rows properties = {{"PROPERTY", "TYPE", "KEY", "ORIGIN", "DEFAULT"}};
  for (const PropertyModel& property : model.properties) {
    properties.push_back({property.name, property.type, property.isKey ? "key" : "",
                          property.origin, property.defaultValue.text});
  }
  Rows methods = {{"METHOD", "TYPE", "ORIGIN", "PARAMETERS"}};
  for (const MethodModel& method : model.methods) {
    methods.push_back({method.name, method.type, method.origin, ParameterList(method)});
  }
  return Columns({{"Class", model.name},
                  {"Superclass", model.superclass.value_or("none")},
                  {"Abstract", YesOrNo(model.isAbstract)},
                  {"Association", YesOrNo(model.isAssociation)}}) +
         Section(properties) + Section(methods) + QualifierSection(model);
}

std::string ClassJson(const ClassModel& model) {
  nlohmann::ordered_json json;
  json["name"] = model.name;
  json["superclass"] =
      model.superclass ? nlohmann::ordered_json(*model.superclass) : nlohmann::ordered_json();
  json["abstract"] = model.isAbstract;
  json["association"] = model.isAssociation;
  json["qualifiers"] = QualifiersJson(model.qualifiers);
  json["properties"] = nlohmann::ordered_json::array();
  for (const PropertyModel& property : model.properties) {
    json["properties"].push_back(PropertyJson(property));
  }
  json["methods"] = nlohmann::ordered_json::array();
  for (const MethodModel& method : model.methods) {
    json["methods"].push_back(MethodJson(method));
  }
  return JsonText(json);
}

}  // namespace qda
