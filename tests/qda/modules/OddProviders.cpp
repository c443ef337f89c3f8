// Providers that a host must cope with, all in one module.

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/frame/TRootObject.h>
#include <qdacore/plugin/INamespaceProviderManager.h>
#include <qdacore/plugin/INamespaceSource.h>
#include <qdamemory/MemoryNamespace.h>
#include <tests/qda/modules/NamedSource.h>

namespace {

using boost::shared_ptr;
using namespace NZRVQDA20;

typedef std::map<std::string, TCIMValue> Context;

// Has a name and no namespace that a host could ask for.
class MuteProvider : public INamespaceProvider {
 public:
  const std::string& GetName(Context) const override { return fName; }

 private:
  const std::string fName = "mute";
};

typedef odd_modules::NamedSource Source;

class NullSource : public Source {
 public:
  NullSource() : Source("null") {}
  shared_ptr<ICIMNamespace> GetNamespace(Context) override { return shared_ptr<ICIMNamespace>(); }
};

class RefusingSource : public Source {
 public:
  RefusingSource() : Source("refusing") {}
  shared_ptr<ICIMNamespace> GetNamespace(Context) override {
    throw TQDAException(TQDAStatusCode::kQDAStatusCimomConnectFailure);
  }
};

class EmptySource : public Source {
 public:
  EmptySource() : Source("empty") {}
  shared_ptr<ICIMNamespace> GetNamespace(Context) override { return CreateMemoryNamespace("root"); }
};

void AddInstance(const shared_ptr<ICIMNamespace>& ns, const char* className,
                 const std::map<std::string, TCIMValue>& values) {
  const shared_ptr<ICIMClass> cls = ns->CreateClass(className, shared_ptr<ICIMClass>(), Context());
  for (const auto& value : values) {
    cls->AddPropertyDecl(value.first, TCIMValue(value.second.GetType(), 0), Context())
        ->Commit(Context());
  }
  cls->Commit(Context());
  const shared_ptr<ICIMInstance> instance = cls->CreateInstance(Context());
  for (const auto& value : values) {
    instance->SetProperty(value.first, value.second, Context());
  }
  cls->AddInstance(instance);
}

// A type and model that can be told, and other facts of the wrong type.
class MistypedSource : public Source {
 public:
  MistypedSource() : Source("mistyped") {}
  shared_ptr<ICIMNamespace> GetNamespace(Context) override {
    const shared_ptr<ICIMNamespace> ns = CreateMemoryNamespace("root");
    AddInstance(ns, "ZRVSG_ComputerSystem",
                {{"ProductName", TCIMValue("5678XYZ")}, {"SerialNumber", TCIMValue(17)}});
    AddInstance(ns, "ZRVSG_OperatingSystem", {{"OSType", TCIMValue("LINUX")}});
    return ns;
  }
};

template <class Provider>
void Register() {
  TRootObject::GetNamespaceProviderManager()->RegisterNamespaceProvider(
      shared_ptr<INamespaceProvider>(new Provider));
}

struct Registration {
  Registration() {
    Register<MuteProvider>();
    Register<NullSource>();
    Register<RefusingSource>();
    Register<EmptySource>();
    Register<MistypedSource>();
  }
};

const Registration registration;

}  // namespace
