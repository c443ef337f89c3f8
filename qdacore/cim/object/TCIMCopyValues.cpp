// Values and instances moved from one namespace to another.

#include <boost/function.hpp>
#include <boost/ref.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/TCIMCopy.h>
#include <qdacore/cim/object/internal/CopiedValue.h>
#include <qdacore/cim/object/internal/EmptyContext.h>
#include <qdacore/cim/object/internal/TCopyValueCallbacks.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/logging/internal/CoreLog.h>

using boost::shared_ptr;
using NZRVQDA20::ICIMClass;
using NZRVQDA20::ICIMInstance;
using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::ICIMProperty;
using NZRVQDA20::ICIMPropertyDecl;
using NZRVQDA20::TCIMReference;
using NZRVQDA20::TCIMValue;
using NZRVQDA20::TEmptyContext;

namespace {

// A reference to the same place in `target`, for a value whose referenced class is set already.
TCIMReference RePoint(const TCIMReference& source, const shared_ptr<ICIMNamespace>& target) {
  TCIMReference moved(target, TEmptyContext());
  moved.SetClassName(source.GetClassName());
  source.EnumerateKeyBindings(TCopyReferenceKeys(target, &moved));
  return moved;
}

}  // namespace

TCIMValue TCIMCopy::CopyValue(const TCIMValue& value, shared_ptr<ICIMNamespace> target) {
  // An array of references is none, and keeps pointing at the source; that is meant.
  if (!value.IsReference()) {
    return value;
  }
  const shared_ptr<ICIMClass> cls = value.GetReferencedClass();
  const std::string& className = cls->GetName(TEmptyContext());
  NZRVQDA20::LogToCore(NZRVQDA20::ILogger::kLogDebug,
                       "TCIMCopy::CopyValue - Attempting to set referenced class: " + className);
  TCIMValue copy(TCIMValue::TCIMType(TCIMValue::TCIMType::kCIMTypeReference), 0);
  copy.SetReferencedClass(target->GetClass(className, TEmptyContext()));
  if (!value.IsNull()) {
    TCIMReference moved = RePoint(value, target);
    copy.Set(moved);
  }
  return copy;
}

bool TCopyReferenceKeys::operator()(std::pair<std::string, TCIMValue> binding) {
  fReference->AddKeyValue(binding.first, TCopiedValue(binding.second, fTarget).Get());
  return true;
}

shared_ptr<ICIMInstance> TCIMCopy::CopyInstance(shared_ptr<ICIMInstance> source,
                                                shared_ptr<ICIMNamespace> target) {
  const shared_ptr<ICIMClass> sourceClass = source->GetClass(TEmptyContext());
  const shared_ptr<ICIMClass> targetClass =
      target->GetClass(sourceClass->GetName(TEmptyContext()), TEmptyContext());
  const shared_ptr<ICIMInstance> instance = targetClass->CreateInstance(TEmptyContext());
  TCopyInstanceProperty copyProperty(target, instance);
  boost::function<bool(shared_ptr<ICIMProperty>)> visit = boost::ref(copyProperty);
  source->EnumerateProperties(visit, TEmptyContext());
  // Only here does it become part of the target.
  targetClass->AddInstance(instance);
  return instance;
}

bool TCopyInstanceProperty::operator()(shared_ptr<ICIMProperty> property) {
  const TCIMValue& value = property->GetValue(TEmptyContext());
  if (value.IsNull()) {
    return true;
  }
  const shared_ptr<const ICIMPropertyDecl> declaration = property->GetPropertyDecl(TEmptyContext());
  const std::string& name = declaration->GetName(TEmptyContext());
  fInstance->SetProperty(name, TCopiedValue(value, fTarget).Get(), TEmptyContext());
  return true;
}
