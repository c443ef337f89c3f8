// A namespace for tests of what asks one: classes with declarations, one instance, a record of
// each call with the context that it was given, and a place to make any call fail.

#ifndef TESTS_CIM_RECORDINGNAMESPACE_H
#define TESTS_CIM_RECORDINGNAMESPACE_H

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>

namespace cim_test {

typedef std::map<std::string, NZRVQDA20::TCIMValue> Context;

// Shared by a namespace and all that it hands out.
struct Record {
  // As "GetClass(Disk) {key=value}", in order.
  std::vector<std::string> calls;
  // Run before a call is served, by its text without the context; what it throws leaves the call.
  std::map<std::string, std::function<void()>> before;

  void Add(const std::string& call, const Context& context);
};

class RecordingPropertyDecl : public NZRVQDA20::ICIMPropertyDecl {
 public:
  RecordingPropertyDecl(const boost::shared_ptr<Record>& record, const std::string& name,
                        NZRVQDA20::TCIMValue::TCIMType type,
                        const NZRVQDA20::TCIMValue& defaultValue);

  const std::string& GetName(Context context) const override;
  NZRVQDA20::TCIMValue::TCIMType GetType(Context context) const override;
  const NZRVQDA20::TCIMValue& GetDefaultValue(Context context) const override;

  // Nobody is to ask these.
  void Commit(Context) override;
  boost::shared_ptr<NZRVQDA20::ICIMQualifier> AddQualifier(
      boost::shared_ptr<NZRVQDA20::ICIMQualifierDecl>, const NZRVQDA20::TCIMValue&,
      Context) override;
  boost::shared_ptr<NZRVQDA20::ICIMQualifier> GetQualifier(const std::string&,
                                                           Context) const override;
  void EnumerateQualifiers(
      boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMQualifier>)>& visit,
      Context) const override;

 private:
  boost::shared_ptr<Record> fRecord;
  std::string fName;
  NZRVQDA20::TCIMValue::TCIMType fType;
  NZRVQDA20::TCIMValue fDefault;
};

class RecordingClass : public NZRVQDA20::ICIMClass {
 public:
  RecordingClass(const boost::shared_ptr<Record>& record, const std::string& name,
                 const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& ns);

  // A property whose default is a null of `type`.
  RecordingClass& With(const std::string& name, NZRVQDA20::TCIMValue::TCIMType::ECIMType type);
  // One whose two answers need not agree.
  RecordingClass& With(const std::string& name, NZRVQDA20::TCIMValue::TCIMType::ECIMType type,
                       const NZRVQDA20::TCIMValue& defaultValue);

  const std::string& GetName(Context context) const override;
  boost::shared_ptr<NZRVQDA20::ICIMNamespace> GetNamespace(Context context) const override;
  boost::shared_ptr<const NZRVQDA20::ICIMPropertyDecl> GetPropertyDecl(
      const std::string& name, Context context) const override;

  // Nobody is to ask these.
  void Commit(Context) override;
  bool IsAssociation(Context) const override;
  bool IsAbstract(Context) const override;
  bool IsRootClass(Context) const override;
  boost::shared_ptr<NZRVQDA20::ICIMClass> GetSuperClass(Context) const override;
  void EnumerateSubClasses(boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMClass>)>&, bool,
                           Context) const override;
  boost::shared_ptr<NZRVQDA20::ICIMPropertyDecl> AddPropertyDecl(const std::string&,
                                                                 const NZRVQDA20::TCIMValue&,
                                                                 Context) override;
  void EnumeratePropertyDecls(
      boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMPropertyDecl>)>&,
      Context) const override;
  void SetStaticProperty(const std::string&, const NZRVQDA20::TCIMValue&, Context) override;
  void EnumerateStaticProperties(boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMProperty>)>&,
                                 Context) const override;
  boost::shared_ptr<NZRVQDA20::ICIMInstance> CreateInstance(Context) override;
  void EnumerateInstances(boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMInstance>)>&, bool,
                          Context) const override;
  boost::shared_ptr<NZRVQDA20::ICIMMethodDecl> AddMethodDecl(const std::string&,
                                                             NZRVQDA20::TCIMValue::TCIMType,
                                                             Context) override;
  void EnumerateMethodDecls(boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMMethodDecl>)>&,
                            Context) const override;
  void AddInstance(boost::shared_ptr<NZRVQDA20::ICIMInstance>) override;
  boost::shared_ptr<NZRVQDA20::ICIMQualifier> AddQualifier(
      boost::shared_ptr<NZRVQDA20::ICIMQualifierDecl>, const NZRVQDA20::TCIMValue&,
      Context) override;
  boost::shared_ptr<NZRVQDA20::ICIMQualifier> GetQualifier(const std::string&,
                                                           Context) const override;
  void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMQualifier>)>&,
                           Context) const override;

 private:
  boost::shared_ptr<Record> fRecord;
  std::string fName;
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fNamespace;
  std::map<std::string, boost::shared_ptr<RecordingPropertyDecl>> fProperties;
};

// An instance that is only passed on.
class OpaqueInstance : public NZRVQDA20::ICIMInstance {
 public:
  boost::shared_ptr<NZRVQDA20::ICIMClass> GetClass(Context) const override;
  boost::shared_ptr<NZRVQDA20::ICIMProperty> GetProperty(const std::string&,
                                                         Context) const override;
  void SetProperty(const std::string&, const NZRVQDA20::TCIMValue&, Context) override;
  void EnumerateProperties(boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMProperty>)>&,
                           Context) const override;
};

class RecordingNamespace : public NZRVQDA20::ICIMNamespace,
                           public boost::enable_shared_from_this<RecordingNamespace> {
 public:
  static boost::shared_ptr<RecordingNamespace> Create();

  // Makes a class, without a note in the record. `of`: the namespace that the class names as its
  // own; this one when empty.
  RecordingClass& Declare(const std::string& name,
                          const boost::shared_ptr<NZRVQDA20::ICIMNamespace>& of =
                              boost::shared_ptr<NZRVQDA20::ICIMNamespace>());
  // A class that was declared, without a note in the record.
  boost::shared_ptr<NZRVQDA20::ICIMClass> Class(const std::string& name) const;

  // What was recorded since the last call of this.
  std::vector<std::string> TakeCalls();

  boost::shared_ptr<Record> record;
  // What GetInstance answers, and the reference that it was given last.
  boost::shared_ptr<NZRVQDA20::ICIMInstance> instance;
  mutable const NZRVQDA20::TCIMReference* askedFor;

  boost::shared_ptr<NZRVQDA20::ICIMClass> GetClass(const std::string& name,
                                                   Context context) const override;
  boost::shared_ptr<NZRVQDA20::ICIMInstance> GetInstance(const NZRVQDA20::TCIMReference& reference,
                                                         Context context) const override;

  // Nobody is to ask these.
  boost::shared_ptr<NZRVQDA20::ICIMClass> CreateClass(const std::string&,
                                                      boost::shared_ptr<NZRVQDA20::ICIMClass>,
                                                      Context) override;
  void EnumerateClasses(boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMClass>)>&,
                        Context) const override;
  boost::shared_ptr<NZRVQDA20::ICIMQualifierDecl> CreateQualifierDecl(const std::string&,
                                                                      const NZRVQDA20::TCIMValue&,
                                                                      std::int32_t, std::int32_t,
                                                                      Context) override;
  boost::shared_ptr<NZRVQDA20::ICIMQualifierDecl> GetQualifierDecl(const std::string&,
                                                                   Context) const override;
  void EnumerateQualifierDecls(
      boost::function<bool(boost::shared_ptr<NZRVQDA20::ICIMQualifierDecl>)>&,
      Context) const override;

 private:
  RecordingNamespace();

  std::map<std::string, boost::shared_ptr<RecordingClass>> fClasses;
};

}  // namespace cim_test

#endif
