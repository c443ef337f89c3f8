#include <qda/ClassModel.h>

#include <algorithm>
#include <map>
#include <set>

#include <boost/function.hpp>

#include <fmt/format.h>

#include <qda/CimText.h>
#include <qda/ClassTree.h>
#include <qda/NearNames.h>
#include <qda/SourceText.h>
#include <qda/Text.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/frame/TQDAException.h>

namespace qda {

using boost::shared_ptr;
using namespace NZRVQDA20;

namespace {

typedef std::map<std::string, TCIMValue> Context;

// The elements that an enumeration presents, without the empty pointers that it must not.
template <class T, class Enumerate>
std::vector<shared_ptr<T>> Collect(const Enumerate& enumerate) {
  std::vector<shared_ptr<T>> elements;
  boost::function<bool(shared_ptr<T>)> add = [&elements](shared_ptr<T> element) {
    if (element) {
      elements.push_back(element);
    }
    return true;
  };
  enumerate(add);
  return elements;
}

ShownValue Show(const TCIMValue& value) { return {ValueText(value), ValueJson(value)}; }

std::vector<QualifierModel> ReadQualifiers(const ICIMNamedElement& element) {
  std::vector<QualifierModel> models;
  const auto qualifiers = Collect<ICIMQualifier>(
      [&element](auto& visit) { element.EnumerateQualifiers(visit, Context()); });
  for (const shared_ptr<ICIMQualifier>& qualifier : qualifiers) {
    const shared_ptr<const ICIMQualifierDecl> decl = qualifier->GetQualifierDecl(Context());
    if (decl) {
      models.push_back({decl->GetName(Context()), Show(qualifier->GetValue(Context()))});
    }
  }
  return models;
}

bool HasKeyQualifier(const ICIMPropertyDecl& decl) {
  try {
    const shared_ptr<ICIMQualifier> key = decl.GetQualifier("Key", Context());
    if (!key) {
      return false;
    }
    const TCIMValue& value = key->GetValue(Context());
    return !value.IsNull() && value.GetType() == TCIMValue::TCIMType::kCIMTypeBoolean &&
           static_cast<bool>(value);
  } catch (const TQDAException&) {
    // Any failure means that it is not there.
    return false;
  }
}

std::string PropertyType(const ICIMPropertyDecl& decl, const TCIMValue& defaultValue) {
  const shared_ptr<ICIMClass> referenced = defaultValue.GetReferencedClass();
  const std::string type = TypeText(decl.GetType(Context()), defaultValue.GetMaxArraySize());
  return referenced ? type + " to " + referenced->GetName(Context()) : type;
}

std::vector<shared_ptr<ICIMPropertyDecl>> PropertiesOf(const ICIMClass& cls) {
  return Collect<ICIMPropertyDecl>(
      [&cls](auto& visit) { cls.EnumeratePropertyDecls(visit, Context()); });
}

// The element of that name, made when there is none yet; the origin is who makes it.
template <class Model>
Model& NamedModel(std::vector<Model>* models, const std::string& name, const std::string& origin) {
  const std::string folded = Folded(name);
  const auto found = std::find_if(models->begin(), models->end(),
                                  [&](const Model& model) { return Folded(model.name) == folded; });
  if (found != models->end()) {
    return *found;
  }
  models->emplace_back();
  models->back().name = name;
  models->back().origin = origin;
  return models->back();
}

void ReadProperties(const ICIMClass& cls, ClassModel* model) {
  const std::string origin = cls.GetName(Context());
  for (const shared_ptr<ICIMPropertyDecl>& decl : PropertiesOf(cls)) {
    PropertyModel& property = NamedModel(&model->properties, decl->GetName(Context()), origin);
    const TCIMValue& defaultValue = decl->GetDefaultValue(Context());
    property.name = decl->GetName(Context());
    property.type = PropertyType(*decl, defaultValue);
    property.isArray = (decl->GetType(Context()) & TCIMValue::TCIMType::kCIMTypeArrayFlag) != 0;
    property.isKey = property.isKey || HasKeyQualifier(*decl);
    property.defaultValue = Show(defaultValue);
    property.qualifiers = ReadQualifiers(*decl);
  }
}

void ReadMethods(const ICIMClass& cls, ClassModel* model) {
  const std::string origin = cls.GetName(Context());
  const auto methods =
      Collect<ICIMMethodDecl>([&cls](auto& visit) { cls.EnumerateMethodDecls(visit, Context()); });
  for (const shared_ptr<ICIMMethodDecl>& decl : methods) {
    MethodModel& method = NamedModel(&model->methods, decl->GetName(Context()), origin);
    method.name = decl->GetName(Context());
    method.type = TypeText(decl->GetType(Context()));
    method.qualifiers = ReadQualifiers(*decl);
    method.parameters.clear();
    const auto parameters = Collect<ICIMParameterDecl>(
        [&decl](auto& visit) { decl->EnumerateParameterDecls(visit, Context()); });
    for (const shared_ptr<ICIMParameterDecl>& parameter : parameters) {
      method.parameters.push_back({parameter->GetName(Context()),
                                   TypeText(parameter->GetType(Context())),
                                   ReadQualifiers(*parameter)});
    }
  }
}

}  // namespace

std::vector<shared_ptr<ICIMClass>> LineOf(const shared_ptr<ICIMClass>& cls) {
  std::vector<shared_ptr<ICIMClass>> line;
  std::set<std::string> seen;
  for (shared_ptr<ICIMClass> at = cls; at && seen.insert(Folded(at->GetName(Context()))).second;
       at = at->GetSuperClass(Context())) {
    line.push_back(at);
    if (at->IsRootClass(Context())) {
      break;
    }
  }
  std::reverse(line.begin(), line.end());
  return line;
}

ClassModel ReadClass(const shared_ptr<ICIMClass>& cls) {
  ClassModel model;
  const std::vector<shared_ptr<ICIMClass>> line = LineOf(cls);
  model.name = cls->GetName(Context());
  if (line.size() > 1) {
    model.superclass = line[line.size() - 2]->GetName(Context());
  }
  model.isAbstract = cls->IsAbstract(Context());
  model.isAssociation = cls->IsAssociation(Context());
  model.qualifiers = ReadQualifiers(*cls);
  for (const shared_ptr<ICIMClass>& at : line) {
    ReadProperties(*at, &model);
    ReadMethods(*at, &model);
  }
  return model;
}

std::vector<std::string> KeysOf(const shared_ptr<ICIMClass>& cls) {
  std::vector<std::string> keys;
  std::set<std::string> seen;
  for (const shared_ptr<ICIMClass>& at : LineOf(cls)) {
    for (const shared_ptr<ICIMPropertyDecl>& decl : PropertiesOf(*at)) {
      const std::string& name = decl->GetName(Context());
      if (HasKeyQualifier(*decl) && seen.insert(Folded(name)).second) {
        keys.push_back(name);
      }
    }
  }
  return keys;
}

std::string NearClasses(const ICIMNamespace& ns, const std::string& name) {
  std::vector<std::string> names;
  try {
    for (const ClassNode& node : ReadClassTree(ns)) {
      names.push_back(node.name);
    }
  } catch (const TQDAException&) {
    // The message is about something else; those that were read are near enough.
  }
  const std::vector<std::string> near = NearNames(name, names);
  return near.empty() ? "" : fmt::format("; near it: {}", fmt::join(near, ", "));
}

shared_ptr<ICIMClass> FindClass(const ICIMNamespace& ns, const std::string& name,
                                const SourceOptions& source) {
  std::string status = "kQDAStatusNotFound";
  try {
    const shared_ptr<ICIMClass> cls = ns.GetClass(name, Context());
    if (cls) {
      return cls;
    }
  } catch (const TQDAException& failure) {
    status = failure.what();
  }
  Complain(
      fmt::format("class \"{}\"{}: the namespace gives none of that name ({}){}; see \"qda "
                  "classes{}\"",
                  name, OfSnapshot(source), status, NearClasses(ns, name), FromOption(source)));
  return shared_ptr<ICIMClass>();
}

}  // namespace qda
