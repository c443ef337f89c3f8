// A class of a namespace, read to be shown. Nothing that a provider serves is relied upon: what it
// leaves empty is passed over, and a class that is its own ancestor ends there.

#ifndef QDA_CLASSMODEL_H
#define QDA_CLASSMODEL_H

#include <optional>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <nlohmann/json.hpp>

#include <qda/Options.h>

namespace NZRVQDA20 {
class ICIMClass;
class ICIMNamespace;
class TCIMValue;
}  // namespace NZRVQDA20

namespace qda {

struct ShownValue {
  std::string text;
  nlohmann::ordered_json json;
};

struct QualifierModel {
  std::string name;
  ShownValue value;
};

struct PropertyModel {
  std::string name;
  std::string type;
  bool isKey = false;
  bool isArray = false;
  // The class that introduces the property: the highest one that declares it.
  std::string origin;
  ShownValue defaultValue;
  // Those of the lowest declaration.
  std::vector<QualifierModel> qualifiers;
};

struct ParameterModel {
  std::string name;
  std::string type;
  std::vector<QualifierModel> qualifiers;
};

struct MethodModel {
  std::string name;
  std::string type;
  std::string origin;
  std::vector<ParameterModel> parameters;
  std::vector<QualifierModel> qualifiers;
};

struct ClassModel {
  std::string name;
  std::optional<std::string> superclass;
  bool isAbstract = false;
  bool isAssociation = false;
  std::vector<QualifierModel> qualifiers;
  // Inherited ones too, and first.
  std::vector<PropertyModel> properties;
  std::vector<MethodModel> methods;
};

// The superclasses and the class itself, the highest first. Throws what the class throws.
std::vector<boost::shared_ptr<NZRVQDA20::ICIMClass>> LineOf(
    const boost::shared_ptr<NZRVQDA20::ICIMClass>& cls);

// Throws what the class throws.
ClassModel ReadClass(const boost::shared_ptr<NZRVQDA20::ICIMClass>& cls);

// The names of the class's keys, inherited ones too. Throws what the class throws.
std::vector<std::string> KeysOf(const boost::shared_ptr<NZRVQDA20::ICIMClass>& cls);

// The class of that name; case counts as the namespace has it. An empty pointer after a message
// that tells what the namespace said, and names that are near. `source` is where `ns` is from.
boost::shared_ptr<NZRVQDA20::ICIMClass> FindClass(const NZRVQDA20::ICIMNamespace& ns,
                                                  const std::string& name,
                                                  const SourceOptions& source);

// The end of a message about a class that is not there: "; near it: A, B", or nothing.
std::string NearClasses(const NZRVQDA20::ICIMNamespace& ns, const std::string& name);

}  // namespace qda

#endif
