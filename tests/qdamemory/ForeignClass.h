// A class of some other implementation: a name and perhaps a superclass.

#ifndef TESTS_QDAMEMORY_FOREIGNCLASS_H
#define TESTS_QDAMEMORY_FOREIGNCLASS_H

#include <string>

#include <tests/qdamemory/MemoryTestSupport.h>

namespace memory_test {

class ForeignClass : public ICIMClass {
 public:
  ForeignClass(const std::string& name, const Class& superclass)
      : fName(name), fSuperclass(superclass) {}

  const std::string& GetName(Context) const override { return fName; }
  bool IsRootClass(Context) const override { return !fSuperclass; }
  Class GetSuperClass(Context) const override { return fSuperclass; }

  // None of the rest is asked for.
  boost::shared_ptr<ICIMQualifier> AddQualifier(boost::shared_ptr<ICIMQualifierDecl>,
                                                const TCIMValue&, Context) override {
    return boost::shared_ptr<ICIMQualifier>();
  }
  boost::shared_ptr<ICIMQualifier> GetQualifier(const std::string&, Context) const override {
    return boost::shared_ptr<ICIMQualifier>();
  }
  void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>&,
                           Context) const override {}
  void Commit(Context) override {}
  Namespace GetNamespace(Context) const override { return Namespace(); }
  bool IsAssociation(Context) const override { return false; }
  bool IsAbstract(Context) const override { return false; }
  void EnumerateSubClasses(boost::function<bool(Class)>&, bool, Context) const override {}
  boost::shared_ptr<ICIMPropertyDecl> AddPropertyDecl(const std::string&, const TCIMValue&,
                                                      Context) override {
    return boost::shared_ptr<ICIMPropertyDecl>();
  }
  boost::shared_ptr<const ICIMPropertyDecl> GetPropertyDecl(const std::string&,
                                                            Context) const override {
    return boost::shared_ptr<const ICIMPropertyDecl>();
  }
  void EnumeratePropertyDecls(boost::function<bool(boost::shared_ptr<ICIMPropertyDecl>)>&,
                              Context) const override {}
  void SetStaticProperty(const std::string&, const TCIMValue&, Context) override {}
  void EnumerateStaticProperties(boost::function<bool(boost::shared_ptr<ICIMProperty>)>&,
                                 Context) const override {}
  Instance CreateInstance(Context) override { return Instance(); }
  void EnumerateInstances(boost::function<bool(Instance)>&, bool, Context) const override {}
  boost::shared_ptr<ICIMMethodDecl> AddMethodDecl(const std::string&, Type, Context) override {
    return boost::shared_ptr<ICIMMethodDecl>();
  }
  void EnumerateMethodDecls(boost::function<bool(boost::shared_ptr<ICIMMethodDecl>)>&,
                            Context) const override {}
  void AddInstance(Instance) override {}

 private:
  std::string fName;
  Class fSuperclass;
};

}  // namespace memory_test

#endif
