// What a model namespace holds, as text, read from its lists and not through its operations.

#include <tests/cim/object/ModelNamespace.h>

#include <qdacore/cim/value/TCIMReference.h>

namespace cim_model {

using namespace NZRVQDA20;

namespace {

std::string Mark(const Element& element) { return element.committed ? "" : " ?"; }

// The namespace that a reference points at stands in front of its path.
std::string Text(const TCIMValue& value) {
  const Pointer<Class> referenced = boost::dynamic_pointer_cast<Class>(value.GetReferencedClass());
  std::string text = value.GetType().ToString();
  if (value.IsReference()) {
    text += " to " + (referenced ? referenced->label : "nothing");
  }
  if (value.IsNull()) {
    return text + " null";
  }
  if (!value.IsReference()) {
    return text + " " + value.ToString();
  }
  TCIMReference reference = value;
  const Pointer<Namespace> ns = boost::dynamic_pointer_cast<Namespace>(reference.GetNamespace());
  return text + " " + (ns ? ns->label : "nowhere") + ":" + reference.GetPath();
}

void AddQualifiers(const Qualified& element, std::vector<std::string>& lines) {
  for (const Pointer<Qualifier>& qualifier : element.qualifiers) {
    lines.push_back(qualifier->label + " by " + qualifier->declaration->label + " = " +
                    Text(qualifier->value) + Mark(*qualifier));
  }
}

void AddMethod(const MethodDecl& method, std::vector<std::string>& lines) {
  lines.push_back(method.label + " " + method.type.ToString());
  AddQualifiers(method, lines);
  for (const Pointer<ParameterDecl>& parameter : method.parameters) {
    lines.push_back(parameter->label + " " + parameter->type.ToString() + Mark(*parameter));
    AddQualifiers(*parameter, lines);
  }
}

void AddClass(const Class& cls, std::vector<std::string>& lines) {
  lines.push_back(cls.label + (cls.superclass ? " under " + cls.superclass->label : "") +
                  Mark(cls));
  AddQualifiers(cls, lines);
  for (const Pointer<PropertyDecl>& declaration : cls.declarations) {
    lines.push_back(declaration->label + " = " + Text(declaration->value) + Mark(*declaration));
    AddQualifiers(*declaration, lines);
  }
  for (const Pointer<Property>& property : cls.statics) {
    lines.push_back(property->label + " = " + Text(property->value));
  }
  for (const Pointer<MethodDecl>& method : cls.methods) {
    AddMethod(*method, lines);
  }
  for (const Pointer<Instance>& instance : cls.instances) {
    lines.push_back(instance->label);
    for (const Pointer<Property>& property : instance->properties) {
      lines.push_back(property->label + " = " + Text(property->value));
    }
  }
}

}  // namespace

std::vector<std::string> Namespace::Content() const {
  std::vector<std::string> lines;
  for (const Pointer<QualifierDecl>& declaration : qualifierDecls) {
    lines.push_back(declaration->label + " " + std::to_string(declaration->first) + " " +
                    std::to_string(declaration->second) + " = " + Text(declaration->value) +
                    Mark(*declaration));
  }
  for (const Pointer<Class>& cls : classes) {
    AddClass(*cls, lines);
  }
  return lines;
}

}  // namespace cim_model
