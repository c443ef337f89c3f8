#include <tests/identity/StubNamespace.h>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>

namespace identity_stub {

using namespace NZRVQDA20;

namespace {

typedef std::map<std::string, TCIMValue> Context;
template <class T>
using Pointer = boost::shared_ptr<T>;
template <class T>
using Visitor = boost::function<bool(boost::shared_ptr<T>)>;

std::string Text(const Context& context) {
  std::string text = "{";
  for (const auto& entry : context) {
    text += entry.first + "=" + static_cast<std::string>(entry.second);
  }
  return text + "}";
}

void Happen(const Failure& failure) {
  if (failure) {
    failure();
  }
}

[[noreturn]] void NotFound() { throw TQDAException(TQDAStatusCode::kQDAStatusNotFound); }

// No query may come here.
[[noreturn]] void Unexpected() { throw TQDAException(TQDAStatusCode::kQDAStatusNotImplemented); }

class Property : public ICIMProperty {
 public:
  Property(Data& data, const TCIMValue& value) : fData(data), fValue(value) {}

  const TCIMValue& GetValue(Context context) const override {
    fData.calls.push_back("GetValue " + Text(context));
    Happen(fData.getValue);
    return fValue;
  }
  Pointer<const ICIMPropertyDecl> GetPropertyDecl(Context) const override { Unexpected(); }
  std::string ToString() const override {
    fData.calls.push_back("ToString");
    return fValue.ToString();
  }

 private:
  Data& fData;
  TCIMValue fValue;
};

class Instance : public ICIMInstance {
 public:
  Instance(Data& data, const Properties& properties) : fData(data), fProperties(properties) {}

  Pointer<ICIMClass> GetClass(Context) const override { Unexpected(); }
  Pointer<ICIMProperty> GetProperty(const std::string& name, Context context) const override {
    fData.calls.push_back("GetProperty " + name + " " + Text(context));
    Happen(fData.getProperty);
    const auto found = fProperties.find(name);
    if (found == fProperties.end()) {
      NotFound();
    }
    return Pointer<ICIMProperty>(new Property(fData, found->second));
  }
  void SetProperty(const std::string&, const TCIMValue&, Context) override { Unexpected(); }
  void EnumerateProperties(Visitor<ICIMProperty>&, Context) const override { Unexpected(); }

 private:
  Data& fData;
  Properties fProperties;
};

class Class : public ICIMClass {
 public:
  Class(Data& data, const std::string& name) : fData(data), fName(name) {}

  void EnumerateInstances(Visitor<ICIMInstance>& visit, bool deep, Context context) const override {
    fData.calls.push_back(std::string("EnumerateInstances ") + (deep ? "deep " : "shallow ") +
                          Text(context));
    Happen(fData.enumerateInstances);
    for (const Properties& properties : fData.classes[fName]) {
      if (!visit(Pointer<ICIMInstance>(new Instance(fData, properties)))) {
        return;
      }
    }
  }

  void Commit(Context) override { Unexpected(); }
  const std::string& GetName(Context) const override { Unexpected(); }
  Pointer<ICIMNamespace> GetNamespace(Context) const override { Unexpected(); }
  bool IsAssociation(Context) const override { Unexpected(); }
  bool IsAbstract(Context) const override { Unexpected(); }
  bool IsRootClass(Context) const override { Unexpected(); }
  Pointer<ICIMClass> GetSuperClass(Context) const override { Unexpected(); }
  void EnumerateSubClasses(Visitor<ICIMClass>&, bool, Context) const override { Unexpected(); }
  Pointer<ICIMPropertyDecl> AddPropertyDecl(const std::string&, const TCIMValue&,
                                            Context) override {
    Unexpected();
  }
  Pointer<const ICIMPropertyDecl> GetPropertyDecl(const std::string&, Context) const override {
    Unexpected();
  }
  void EnumeratePropertyDecls(Visitor<ICIMPropertyDecl>&, Context) const override { Unexpected(); }
  void SetStaticProperty(const std::string&, const TCIMValue&, Context) override { Unexpected(); }
  void EnumerateStaticProperties(Visitor<ICIMProperty>&, Context) const override { Unexpected(); }
  Pointer<ICIMInstance> CreateInstance(Context) override { Unexpected(); }
  Pointer<ICIMMethodDecl> AddMethodDecl(const std::string&, TCIMValue::TCIMType, Context) override {
    Unexpected();
  }
  void EnumerateMethodDecls(Visitor<ICIMMethodDecl>&, Context) const override { Unexpected(); }
  void AddInstance(Pointer<ICIMInstance>) override { Unexpected(); }
  Pointer<ICIMQualifier> AddQualifier(Pointer<ICIMQualifierDecl>, const TCIMValue&,
                                      Context) override {
    Unexpected();
  }
  Pointer<ICIMQualifier> GetQualifier(const std::string&, Context) const override { Unexpected(); }
  void EnumerateQualifiers(Visitor<ICIMQualifier>&, Context) const override { Unexpected(); }

 private:
  Data& fData;
  std::string fName;
};

class Namespace : public ICIMNamespace {
 public:
  explicit Namespace(Data& data) : fData(data) {}

  Pointer<ICIMClass> GetClass(const std::string& name, Context context) const override {
    fData.calls.push_back("GetClass " + name + " " + Text(context));
    Happen(fData.getClass);
    if (fData.classes.count(name) == 0) {
      NotFound();
    }
    return Pointer<ICIMClass>(new Class(fData, name));
  }

  Pointer<ICIMClass> CreateClass(const std::string&, Pointer<ICIMClass>, Context) override {
    Unexpected();
  }
  void EnumerateClasses(Visitor<ICIMClass>&, Context) const override { Unexpected(); }
  Pointer<ICIMQualifierDecl> CreateQualifierDecl(const std::string&, const TCIMValue&, std::int32_t,
                                                 std::int32_t, Context) override {
    Unexpected();
  }
  Pointer<ICIMQualifierDecl> GetQualifierDecl(const std::string&, Context) const override {
    Unexpected();
  }
  void EnumerateQualifierDecls(Visitor<ICIMQualifierDecl>&, Context) const override {
    Unexpected();
  }
  Pointer<ICIMInstance> GetInstance(const TCIMReference&, Context) const override { Unexpected(); }

 private:
  Data& fData;
};

}  // namespace

boost::shared_ptr<ICIMNamespace> MakeNamespace(Data& data) {
  return boost::shared_ptr<ICIMNamespace>(new Namespace(data));
}

}  // namespace identity_stub
