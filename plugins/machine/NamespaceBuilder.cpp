#include <plugins/machine/NamespaceBuilder.h>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/logging/ILogger.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/StandardQualifiers.h>

namespace machine {

using boost::shared_ptr;
using NZRVQDA20::ICIMClass;
using NZRVQDA20::ICIMInstance;
using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::ICIMPropertyDecl;
using NZRVQDA20::ILogger;
using NZRVQDA20::TCIMReference;
using NZRVQDA20::TCIMValue;
using NZRVQDA20::TQDAException;
using NZRVQDA20::TQDAStatusCode;
using NZRVQDA20::TRootObject;

namespace {

typedef std::map<std::string, TCIMValue> Context;
typedef TCIMValue::TCIMType Type;

// False when the class has an object with these keys already.
bool AddTo(ICIMClass& cls, const shared_ptr<ICIMInstance>& instance) {
  try {
    cls.AddInstance(instance);
    return true;
  } catch (const TQDAException& failure) {
    if (failure.GetStatus().GetStatusCode() != TQDAStatusCode::kQDAStatusAlreadyExists) {
      throw;
    }
  }
  if (ILogger* logger = TRootObject::GetCoreLogger()) {
    logger->LogMessage(ILogger::kLogWarning, "two objects of the class " + cls.GetName(Context()) +
                                                 " have the same keys: the second is left out");
  }
  return false;
}

}  // namespace

NewObject::NewObject(const shared_ptr<ICIMNamespace>& ns, const shared_ptr<ICIMClass>& cls)
    : fClass(cls), fInstance(cls->CreateInstance(Context())), fReference(ns) {
  fReference.SetClass(cls);
}

NewObject& NewObject::Text(const char* name, std::string_view text) {
  return text.empty() ? *this : SetValue(name, TCIMValue(std::string(text)));
}

NewObject& NewObject::SetValue(const char* name, const TCIMValue& value) {
  fInstance->SetProperty(name, value, Context());
  return *this;
}

NewObject& NewObject::KeyValue(const char* name, const TCIMValue& value) {
  fReference.AddKeyValue(name, value);
  return SetValue(name, value);
}

NewObject& NewObject::NoKey() {
  fHasName = false;
  return *this;
}

Object NewObject::Publish() {
  return AddTo(*fClass, fInstance) && fHasName ? Object(TCIMValue(fReference)) : Object();
}

NamespaceBuilder::NamespaceBuilder() : fNamespace(NZRVQDA20::CreateMemoryNamespace("root/cimv2")) {
  NZRVQDA20::DeclareStandardQualifiers(fNamespace);
  fKey = fNamespace->GetQualifierDecl("Key", Context());
}

const shared_ptr<ICIMClass>& NamespaceBuilder::Declare(const ClassRow& row) {
  const Classes::const_iterator found = fClasses.find(&row);
  return found != fClasses.end() ? found->second : DeclareNew(row);
}

const shared_ptr<ICIMClass>& NamespaceBuilder::Declare(const AssociationRow& row) {
  const Classes::const_iterator found = fClasses.find(&row);
  return found != fClasses.end() ? found->second : DeclareNew(row);
}

void NamespaceBuilder::MarkAsKey(ICIMClass& cls, const char* property, const TCIMValue& typedNull) {
  cls.AddPropertyDecl(property, typedNull, Context())
      ->AddQualifier(fKey, TCIMValue(true), Context());
}

void NamespaceBuilder::AddProperties(ICIMClass& cls, const PropertyRow* properties,
                                     std::size_t count) {
  for (std::size_t at = 0; at < count; ++at) {
    const TCIMValue typedNull(Type(properties[at].type), 0);
    if (properties[at].role == kKey) {
      MarkAsKey(cls, properties[at].name, typedNull);
    } else {
      cls.AddPropertyDecl(properties[at].name, typedNull, Context());
    }
  }
}

const shared_ptr<ICIMClass>& NamespaceBuilder::DeclareNew(const ClassRow& row) {
  const Context none;
  const shared_ptr<ICIMClass> superclass =
      row.superclass != nullptr ? Declare(*row.superclass) : shared_ptr<ICIMClass>();
  const shared_ptr<ICIMClass> cls = fNamespace->CreateClass(row.name, superclass, none);
  if (row.kind == kAbstract) {
    cls->AddQualifier(fNamespace->GetQualifierDecl("Abstract", none), TCIMValue(true), none);
  }
  AddProperties(*cls, row.properties, row.count);
  cls->Commit(none);
  return fClasses[&row] = cls;
}

const shared_ptr<ICIMClass>& NamespaceBuilder::DeclareNew(const AssociationRow& row) {
  const Context none;
  const shared_ptr<ICIMClass> first = Declare(*row.first.of);
  const shared_ptr<ICIMClass> second = Declare(*row.second.of);
  const shared_ptr<ICIMClass> cls =
      fNamespace->CreateClass(row.name, shared_ptr<ICIMClass>(), none);
  cls->AddQualifier(fNamespace->GetQualifierDecl("Association", none), TCIMValue(true), none);
  TCIMValue end(Type(Type::kCIMTypeReference), 0);
  end.SetReferencedClass(first);
  MarkAsKey(*cls, row.first.name, end);
  end.SetReferencedClass(second);
  MarkAsKey(*cls, row.second.name, end);
  AddProperties(*cls, row.properties, row.count);
  cls->Commit(none);
  return fClasses[&row] = cls;
}

NewObject NamespaceBuilder::Create(const ClassRow& row) {
  return NewObject(fNamespace, Declare(row));
}

void NamespaceBuilder::Associate(const AssociationRow& row, const Object& first,
                                 const Object& second, const Properties& more) {
  const shared_ptr<ICIMClass>& cls = Declare(row);
  if (!first.HasName() || !second.HasName()) {
    return;
  }
  const Context none;
  const shared_ptr<ICIMInstance> instance = cls->CreateInstance(none);
  instance->SetProperty(row.first.name, first.Reference(), none);
  instance->SetProperty(row.second.name, second.Reference(), none);
  for (const auto& property : more) {
    if (!property.second.IsNull()) {
      instance->SetProperty(property.first, property.second, none);
    }
  }
  AddTo(*cls, instance);
}

void NamespaceBuilder::Keep(const std::string& role, std::uint32_t number, const Object& object) {
  if (object.HasName()) {
    fKept.insert(std::make_pair(std::make_pair(role, number), object));
  }
}

const Object& NamespaceBuilder::Kept(const std::string& role, std::uint32_t number) const {
  const auto found = fKept.find(std::make_pair(role, number));
  return found != fKept.end() ? found->second : fNone;
}

}  // namespace machine
