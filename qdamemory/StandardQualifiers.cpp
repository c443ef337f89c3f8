#include <qdamemory/StandardQualifiers.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include <boost/function.hpp>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/frame/TQDAException.h>

namespace NZRVQDA20 {

namespace {

typedef std::map<std::string, TCIMValue> TContext;

// The types that standard qualifiers have, with their defaults.
enum EKind { kFalse, kTrue, kString, kStringArray, kUint32, kUint32Zero, kSint64, kBag };

struct TRow {
  const char* name;
  EKind kind;
  std::int32_t scope;
  std::int32_t flavor;
};

const std::int32_t kClasses =
    kQualifierScopeClass | kQualifierScopeAssociation | kQualifierScopeIndication;
const std::int32_t kProperties = kQualifierScopeProperty | kQualifierScopeReference;
const std::int32_t kValues =
    kQualifierScopeProperty | kQualifierScopeMethod | kQualifierScopeParameter;

const std::int32_t kRestricted = kQualifierEnableOverride;
const std::int32_t kFixed = kQualifierToSubclass;
const std::int32_t kDefault = kQualifierEnableOverride | kQualifierToSubclass;
const std::int32_t kTranslatable = kQualifierTranslatable;

// DSP0004, "Meta qualifiers" and "Standard qualifiers", by name.
const TRow kRows[] = {
    {"Abstract", kFalse, kClasses, kRestricted},
    {"Aggregate", kFalse, kQualifierScopeReference, kFixed},
    {"Aggregation", kFalse, kQualifierScopeAssociation, kFixed},
    {"ArrayType", kBag, kQualifierScopeProperty | kQualifierScopeParameter, kFixed},
    {"Association", kFalse, kQualifierScopeAssociation, kFixed},
    {"BitMap", kStringArray, kValues, kDefault},
    {"BitValues", kStringArray, kValues, kDefault | kTranslatable},
    {"Composition", kFalse, kQualifierScopeAssociation, kFixed},
    {"Deprecated", kStringArray, kQualifierScopeAny, kRestricted},
    {"Description", kString, kQualifierScopeAny, kDefault | kTranslatable},
    {"DisplayName", kString, kQualifierScopeAny, kDefault | kTranslatable},
    {"EmbeddedInstance", kString, kValues, kDefault},
    {"EmbeddedObject", kFalse, kValues, kFixed},
    {"Experimental", kFalse, kQualifierScopeAny, kRestricted},
    {"In", kTrue, kQualifierScopeParameter, kFixed},
    {"Indication", kFalse, kQualifierScopeClass | kQualifierScopeIndication, kFixed},
    {"Key", kFalse, kProperties, kFixed},
    {"MappingStrings", kStringArray, kQualifierScopeAny, kDefault},
    {"Max", kUint32, kQualifierScopeReference, kDefault},
    {"MaxLen", kUint32, kValues, kDefault},
    {"MaxValue", kSint64, kValues, kDefault},
    {"Min", kUint32Zero, kQualifierScopeReference, kDefault},
    {"MinLen", kUint32Zero, kValues, kDefault},
    {"MinValue", kSint64, kValues, kDefault},
    {"ModelCorrespondence", kStringArray, kQualifierScopeAny, kDefault},
    {"Out", kFalse, kQualifierScopeParameter, kFixed},
    {"Override", kString, kProperties | kQualifierScopeMethod, kRestricted},
    {"Propagated", kString, kQualifierScopeProperty, kFixed},
    {"PUnit", kString, kValues, kDefault},
    {"Read", kTrue, kQualifierScopeProperty, kDefault},
    {"Required", kFalse, kProperties | kQualifierScopeMethod | kQualifierScopeParameter, kFixed},
    {"Static", kFalse, kQualifierScopeProperty | kQualifierScopeMethod, kFixed},
    {"Units", kString, kValues, kDefault | kTranslatable},
    {"ValueMap", kStringArray, kValues, kDefault},
    {"Values", kStringArray, kValues, kDefault | kTranslatable},
    {"Version", kString, kClasses, kRestricted | kTranslatable},
    {"Weak", kFalse, kQualifierScopeReference, kFixed},
    {"Write", kFalse, kQualifierScopeProperty, kDefault},
};

TCIMValue DefaultOf(EKind kind) {
  typedef TCIMValue::TCIMType TType;
  switch (kind) {
    case kFalse:
      return TCIMValue(false);
    case kTrue:
      return TCIMValue(true);
    case kStringArray:
      return TCIMValue(
          static_cast<TType::ECIMType>(TType::kCIMTypeString | TType::kCIMTypeArrayFlag), 0);
    case kUint32:
      return TCIMValue(TType::kCIMTypeUint32, 0);
    case kUint32Zero:
      return TCIMValue(0u);
    case kSint64:
      return TCIMValue(TType::kCIMTypeSint64, 0);
    case kBag:
      return TCIMValue("Bag");
    default:
      return TCIMValue(TType::kCIMTypeString, 0);
  }
}

bool IsDeclared(const ICIMNamespace& ns, const std::string& name) {
  try {
    ns.GetQualifierDecl(name, TContext());
  } catch (const TQDAException& failure) {
    if (failure.GetStatus().GetStatusCode() != TQDAStatusCode::kQDAStatusNotFound) {
      throw;
    }
    return false;
  }
  return true;
}

bool HasDeclarations(const ICIMNamespace& ns) {
  bool has = false;
  boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)> first =
      [&has](boost::shared_ptr<ICIMQualifierDecl>) {
        has = true;
        return false;
      };
  ns.EnumerateQualifierDecls(first, TContext());
  return has;
}

}  // namespace

void DeclareStandardQualifiers(boost::shared_ptr<ICIMNamespace> ns) {
  // In a new namespace there is none of them, and an exception for each would cost more than all
  // the rest.
  const bool mayBeDeclared = HasDeclarations(*ns);
  for (std::size_t at = 0; at < sizeof(kRows) / sizeof(kRows[0]); ++at) {
    const TRow& row = kRows[at];
    if (!mayBeDeclared || !IsDeclared(*ns, row.name)) {
      ns->CreateQualifierDecl(row.name, DefaultOf(row.kind), row.scope, row.flavor, TContext())
          ->Commit(TContext());
    }
  }
}

}  // namespace NZRVQDA20
