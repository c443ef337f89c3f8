#include <qda/InstancePath.h>

#include <qda/CimText.h>
#include <qda/ClassModel.h>
#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>

namespace qda {

using boost::shared_ptr;
using namespace NZRVQDA20;

namespace {

typedef std::map<std::string, TCIMValue> Context;

// Sets path and exact.
void AddPath(const std::vector<std::string>& keys, const shared_ptr<ICIMNamespace>& ns,
             const shared_ptr<ICIMClass>& cls, const ICIMInstance& instance, InstancePath* result) {
  std::string digits;
  TCIMReference reference(ns);
  reference.SetClass(cls);
  for (const std::string& key : keys) {
    const shared_ptr<ICIMProperty> property = instance.GetProperty(key, Context());
    if (!property) {
      throw TQDAException(TQDAStatusCode::kQDAStatusInvalidProperty);
    }
    const TCIMValue& value = property->GetValue(Context());
    if (value.IsNull()) {
      throw TQDAException(TQDAStatusCode::kQDAStatusValueIsNULL);
    }
    reference.AddKeyValue(key, value);
    if (value.GetType() == TCIMValue::TCIMType::kCIMTypeReal32 ||
        value.GetType() == TCIMValue::TCIMType::kCIMTypeReal64) {
      digits += " " + ValueText(value);
    }
  }
  result->path = reference.GetPath();
  result->exact = result->path + digits;
}

}  // namespace

PathFinder::PathFinder(const shared_ptr<ICIMNamespace>& ns) : fNamespace(ns) {}

const std::vector<std::string>& PathFinder::Keys(const shared_ptr<ICIMClass>& cls) {
  const auto found = fKeys.find(cls);
  return found != fKeys.end() ? found->second : fKeys.emplace(cls, KeysOf(cls)).first->second;
}

InstancePath PathFinder::PathOf(const ICIMInstance& instance) {
  InstancePath result;
  const shared_ptr<ICIMClass> cls = instance.GetClass(Context());
  if (!cls) {
    throw TQDAException(TQDAStatusCode::kQDAStatusInvalidClass);
  }
  result.className = cls->GetName(Context());
  try {
    const std::vector<std::string>& keys = Keys(cls);
    if (keys.empty()) {
      result.whyNone = "its class has no key";
    } else {
      AddPath(keys, fNamespace, cls, instance, &result);
    }
  } catch (const TQDAException& failure) {
    result.whyNone = failure.GetStatus().GetStatusCode() == TQDAStatusCode::kQDAStatusValueIsNULL
                         ? "a key is null"
                         : std::string("a key cannot be read, ") + failure.what();
  }
  return result;
}

}  // namespace qda
