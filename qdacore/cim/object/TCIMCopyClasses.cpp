// Classes and whole schemas moved from one namespace to another. The callbacks are defined in the
// order in which a copy comes to them.

#include <utility>
#include <vector>

#include <boost/function.hpp>
#include <boost/ref.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/cim/object/TAddToVectorCallback.h>
#include <qdacore/cim/object/TCIMCopy.h>
#include <qdacore/cim/object/internal/CopiedValue.h>
#include <qdacore/cim/object/internal/EmptyContext.h>
#include <qdacore/cim/object/internal/TCopySchemaCallbacks.h>
#include <qdacore/frame/TQDAException.h>

using namespace NZRVQDA20;
using boost::shared_ptr;

namespace {

const char kOverrideQualifier[] = "OVERRIDE";
const char kPluginNameQualifier[] = "PLUGINNAME";
const char kProductClass[] = "ZRVSG_QDAProduct";

// The enumerations take their callback as such an object; the callback itself outlives it here.
template <class Element, class Callback>
boost::function<bool(shared_ptr<Element>)> Visitor(Callback& callback) {
  return boost::ref(callback);
}

// Puts copies of the qualifiers of `source` on `copy`.
void CopyQualifiers(const ICIMNamedElement& source, const shared_ptr<ICIMNamedElement>& copy,
                    const boost::weak_ptr<ICIMNamespace>& target) {
  TCopyQualifier copyQualifier(copy, target);
  boost::function<bool(shared_ptr<ICIMQualifier>)> visit = Visitor<ICIMQualifier>(copyQualifier);
  source.EnumerateQualifiers(visit, TEmptyContext());
}

// Whether the class has a declaration of that name already, which then is inherited.
bool HasPropertyDecl(const ICIMClass& cls, const std::string& name) {
  try {
    cls.GetPropertyDecl(name, TEmptyContext());
    return true;
  } catch (TQDAException& failure) {
    if (failure.GetStatus().GetStatusCode() != TQDAStatusCode::kQDAStatusNotFound) {
      throw TQDAException(failure);
    }
    return false;
  }
}

// Any failure counts as "no". What is returned is not looked at, so a provider that answers with
// an empty pointer says "yes"; that is meant.
bool IsOverride(const ICIMPropertyDecl& declaration) {
  try {
    declaration.GetQualifier(kOverrideQualifier, TEmptyContext());
    return true;
  } catch (TQDAException&) {
    return false;
  }
}

}  // namespace

void TCIMCopy::CopyClasses(shared_ptr<ICIMNamespace> source, shared_ptr<ICIMNamespace> target,
                           bool skipProductInstances) {
  TCopyQualifierDecls copyDeclaration(target);
  boost::function<bool(shared_ptr<ICIMQualifierDecl>)> visitDeclaration =
      Visitor<ICIMQualifierDecl>(copyDeclaration);
  source->EnumerateQualifierDecls(visitDeclaration, TEmptyContext());
  // Associations refer to classes, so the whole tree is walked twice.
  for (const bool associations : {false, true}) {
    TCopyClassTree copyTree(target, associations, skipProductInstances);
    boost::function<bool(shared_ptr<ICIMClass>)> visitRoot = Visitor<ICIMClass>(copyTree);
    source->EnumerateClasses(visitRoot, TEmptyContext());
  }
}

bool TCopyQualifierDecls::operator()(shared_ptr<ICIMQualifierDecl> declaration) {
  // In this order. The value is handed on as it stands.
  const std::int32_t second = declaration->GetSecondAttribute(TEmptyContext());
  const std::int32_t first = declaration->GetFirstAttribute(TEmptyContext());
  const TCIMValue& value = declaration->GetValue(TEmptyContext());
  const std::string& name = declaration->GetName(TEmptyContext());
  fTarget.lock()
      ->CreateQualifierDecl(name, value, first, second, TEmptyContext())
      ->Commit(TEmptyContext());
  return true;
}

bool TCopyClassTree::operator()(shared_ptr<ICIMClass> root) {
  TCopyClass copyClass(fTarget, fAssociations, fSkipProductInstances);
  copyClass(root);
  boost::function<bool(shared_ptr<ICIMClass>)> visit = Visitor<ICIMClass>(copyClass);
  root->EnumerateSubClasses(visit, true, TEmptyContext());
  return true;
}

bool TCopyClass::operator()(shared_ptr<ICIMClass> source) {
  if (source->IsAssociation(TEmptyContext()) != fAssociations) {
    return true;
  }
  TCIMCopy::CopyClass(source, fTarget.lock());
  const ICIMNamedElement& element = *source;
  const shared_ptr<ICIMQualifier> pluginName =
      element.GetQualifier(kPluginNameQualifier, TEmptyContext());
  if (source->IsAbstract(TEmptyContext()) || pluginName) {
    return true;
  }
  // Collected first, of every class and whatever the flag: which calls a provider sees does not
  // depend on what is wanted of the instances.
  std::vector<shared_ptr<ICIMInstance> > instances;
  boost::function<bool(shared_ptr<ICIMInstance>)> collect =
      TAddToVectorCallback<ICIMInstance>(&instances);
  source->EnumerateInstances(collect, false, TEmptyContext());
  for (const shared_ptr<ICIMInstance>& instance : instances) {
    const shared_ptr<ICIMClass> cls = instance->GetClass(TEmptyContext());
    if (cls->GetName(TEmptyContext()) == kProductClass && !fSkipProductInstances) {
      TCIMCopy::CopyInstance(instance, fTarget.lock());
    }
  }
  return true;
}

void TCIMCopy::CopyClass(shared_ptr<ICIMClass> source, shared_ptr<ICIMNamespace> target) {
  shared_ptr<ICIMClass> superclass;
  if (!source->IsRootClass(TEmptyContext())) {
    const shared_ptr<ICIMClass> sourceSuperclass = source->GetSuperClass(TEmptyContext());
    superclass = target->GetClass(sourceSuperclass->GetName(TEmptyContext()), TEmptyContext());
  }
  const shared_ptr<ICIMClass> copy =
      target->CreateClass(source->GetName(TEmptyContext()), superclass, TEmptyContext());
  CopyQualifiers(*source, copy, target);

  TCopyPropertyDecl copyProperty(copy, target);
  boost::function<bool(shared_ptr<ICIMPropertyDecl>)> visitProperty =
      Visitor<ICIMPropertyDecl>(copyProperty);
  source->EnumeratePropertyDecls(visitProperty, TEmptyContext());

  TCopyStaticProperty copyStatic(copy, target);
  boost::function<bool(shared_ptr<ICIMProperty>)> visitStatic = Visitor<ICIMProperty>(copyStatic);
  source->EnumerateStaticProperties(visitStatic, TEmptyContext());

  TCopyMethodDecl copyMethod(copy, target);
  boost::function<bool(shared_ptr<ICIMMethodDecl>)> visitMethod =
      Visitor<ICIMMethodDecl>(copyMethod);
  source->EnumerateMethodDecls(visitMethod, TEmptyContext());
  copy->Commit(TEmptyContext());
}

bool TCopyQualifier::operator()(shared_ptr<ICIMQualifier> source) {
  const shared_ptr<const ICIMQualifierDecl> sourceDeclaration =
      source->GetQualifierDecl(TEmptyContext());
  const shared_ptr<ICIMNamespace> target = fTarget.lock();
  shared_ptr<ICIMQualifierDecl> declaration =
      target->GetQualifierDecl(sourceDeclaration->GetName(TEmptyContext()), TEmptyContext());
  const TCopiedValue value(source->GetValue(TEmptyContext()), fTarget);
  fElement.lock()
      ->AddQualifier(std::move(declaration), value.Get(), TEmptyContext())
      ->Commit(TEmptyContext());
  return true;
}

bool TCopyPropertyDecl::operator()(shared_ptr<ICIMPropertyDecl> source) {
  const std::string& name = source->GetName(TEmptyContext());
  if (HasPropertyDecl(*fClass, name) && !IsOverride(*source)) {
    return true;
  }
  const TCopiedValue value(source->GetDefaultValue(TEmptyContext()), fTarget);
  const shared_ptr<ICIMPropertyDecl> copy =
      fClass->AddPropertyDecl(name, value.Get(), TEmptyContext());
  CopyQualifiers(*source, copy, fTarget);
  copy->Commit(TEmptyContext());
  return true;
}

bool TCopyStaticProperty::operator()(shared_ptr<ICIMProperty> source) {
  // Unlike an instance's, a static value is set also when it is null.
  const TCopiedValue value(source->GetValue(TEmptyContext()), fTarget);
  const shared_ptr<const ICIMPropertyDecl> declaration = source->GetPropertyDecl(TEmptyContext());
  fClass->SetStaticProperty(declaration->GetName(TEmptyContext()), value.Get(), TEmptyContext());
  return true;
}

bool TCopyMethodDecl::operator()(shared_ptr<ICIMMethodDecl> source) {
  const std::string& name = source->GetName(TEmptyContext());
  const shared_ptr<ICIMMethodDecl> copy =
      fClass->AddMethodDecl(name, source->GetType(TEmptyContext()), TEmptyContext());
  TCopyParameterDecl copyParameter(copy, fTarget);
  boost::function<bool(shared_ptr<ICIMParameterDecl>)> visit =
      Visitor<ICIMParameterDecl>(copyParameter);
  source->EnumerateParameterDecls(visit, TEmptyContext());
  CopyQualifiers(*source, copy, fTarget);
  // No Commit, unlike every other new element; that is meant.
  return true;
}

bool TCopyParameterDecl::operator()(shared_ptr<ICIMParameterDecl> source) {
  const std::string& name = source->GetName(TEmptyContext());
  const TCIMValue::TCIMType type = source->GetType(TEmptyContext());
  const shared_ptr<ICIMParameterDecl> copy =
      fMethod.lock()->AddParameterDecl(name, type, TEmptyContext());
  CopyQualifiers(*source, copy, fTarget);
  copy->Commit(TEmptyContext());
  return true;
}
