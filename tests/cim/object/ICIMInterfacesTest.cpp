// The reserved places of the object interfaces, and the bases that callers cast between.

#include <type_traits>

#include <gtest/gtest.h>

#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <tests/cim/RecordingNamespace.h>
#include <tests/support/ExpectStatus.h>

namespace {

using namespace NZRVQDA20;
using cim_test::Context;

// Each interface with its pure operations filled in, and nothing else.

class Method : public ICIMMethodDecl {
 public:
  const std::string& GetName(Context) const override { return name; }
  TCIMValue::TCIMType GetType(Context) const override { return TCIMValue::TCIMType(); }
  boost::shared_ptr<ICIMParameterDecl> AddParameterDecl(const std::string&, TCIMValue::TCIMType,
                                                        Context) override {
    return boost::shared_ptr<ICIMParameterDecl>();
  }
  void EnumerateParameterDecls(boost::function<bool(boost::shared_ptr<ICIMParameterDecl>)>&,
                               Context) const override {}
  boost::shared_ptr<ICIMQualifier> AddQualifier(boost::shared_ptr<ICIMQualifierDecl>,
                                                const TCIMValue&, Context) override {
    return boost::shared_ptr<ICIMQualifier>();
  }
  boost::shared_ptr<ICIMQualifier> GetQualifier(const std::string&, Context) const override {
    return boost::shared_ptr<ICIMQualifier>();
  }
  void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>&,
                           Context) const override {}

  std::string name;
};

class Parameter : public ICIMParameterDecl {
 public:
  void Commit(Context) override {}
  const std::string& GetName(Context) const override { return name; }
  TCIMValue::TCIMType GetType(Context) const override { return TCIMValue::TCIMType(); }
  boost::shared_ptr<ICIMQualifier> AddQualifier(boost::shared_ptr<ICIMQualifierDecl>,
                                                const TCIMValue&, Context) override {
    return boost::shared_ptr<ICIMQualifier>();
  }
  boost::shared_ptr<ICIMQualifier> GetQualifier(const std::string&, Context) const override {
    return boost::shared_ptr<ICIMQualifier>();
  }
  void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>&,
                           Context) const override {}

  std::string name;
};

class Property : public ICIMProperty {
 public:
  const TCIMValue& GetValue(Context) const override { return value; }
  boost::shared_ptr<const ICIMPropertyDecl> GetPropertyDecl(Context) const override {
    return boost::shared_ptr<const ICIMPropertyDecl>();
  }
  std::string ToString() const override { return ""; }

  TCIMValue value;
};

class Qualifier : public ICIMQualifier {
 public:
  void Commit(Context) override {}
  boost::shared_ptr<const ICIMQualifierDecl> GetQualifierDecl(Context) const override {
    return boost::shared_ptr<const ICIMQualifierDecl>();
  }
  const TCIMValue& GetValue(Context) const override { return value; }

  TCIMValue value;
};

class QualifierDecl : public ICIMQualifierDecl {
 public:
  void Commit(Context) override {}
  const std::string& GetName(Context) const override { return name; }
  const TCIMValue& GetValue(Context) const override { return value; }
  std::int32_t GetFirstAttribute(Context) const override { return 0; }
  std::int32_t GetSecondAttribute(Context) const override { return 0; }

  std::string name;
  TCIMValue value;
};

template <class Interface>
void ExpectNotImplemented(Interface& object,
                          std::initializer_list<void (Interface::*)()> operations) {
  for (const auto operation : operations) {
    EXPECT_STATUS(kQDAStatusNotImplemented, (object.*operation)());
  }
}

TEST(ICIMInterfaces, ReservedPlacesOfANamespace) {
  typedef ICIMNamespace I;
  const boost::shared_ptr<ICIMNamespace> object = cim_test::RecordingNamespace::Create();
  ExpectNotImplemented<I>(
      *object, {&I::Reserved2, &I::Reserved3, &I::Reserved4, &I::Reserved8, &I::Reserved12});
}

TEST(ICIMInterfaces, ReservedPlacesOfAClass) {
  typedef ICIMClass I;
  const boost::shared_ptr<cim_test::RecordingNamespace> ns = cim_test::RecordingNamespace::Create();
  ns->Declare("Cls");
  ExpectNotImplemented<I>(
      *ns->Class("Cls"),
      {&I::Reserved2, &I::Reserved4, &I::Reserved5, &I::Reserved13, &I::Reserved14, &I::Reserved15,
       &I::Reserved16, &I::Reserved20, &I::Reserved26, &I::Reserved28, &I::Reserved29,
       &I::Reserved30, &I::Reserved31, &I::Reserved32, &I::Reserved33, &I::Reserved34,
       &I::Reserved35});
}

TEST(ICIMInterfaces, ReservedPlacesOfANamedElement) {
  typedef ICIMNamedElement I;
  const boost::shared_ptr<cim_test::RecordingNamespace> ns = cim_test::RecordingNamespace::Create();
  ns->Declare("Cls");
  Method method;
  ICIMNamedElement* const elements[] = {ns->Class("Cls").get(), &method};
  for (ICIMNamedElement* element : elements) {
    ExpectNotImplemented<I>(*element,
                            {&I::ReservedElement2, &I::ReservedElement3, &I::ReservedElement5});
  }
}

TEST(ICIMInterfaces, ReservedPlacesOfAPropertyDeclaration) {
  typedef ICIMPropertyDecl I;
  cim_test::RecordingPropertyDecl object(boost::shared_ptr<cim_test::Record>(), "A",
                                         TCIMValue::TCIMType(), TCIMValue());
  ExpectNotImplemented<I>(object, {&I::Reserved8, &I::Reserved10, &I::Reserved12, &I::Reserved14});
}

TEST(ICIMInterfaces, ReservedPlacesOfAnInstance) {
  typedef ICIMInstance I;
  cim_test::OpaqueInstance object;
  ExpectNotImplemented<I>(object, {&I::Reserved2, &I::Reserved3, &I::Reserved4, &I::Reserved5,
                                   &I::Reserved6, &I::Reserved7, &I::Reserved9, &I::Reserved10});
}

TEST(ICIMInterfaces, ReservedPlacesOfAMethodDeclaration) {
  typedef ICIMMethodDecl I;
  Method object;
  ExpectNotImplemented<I>(object, {&I::Reserved8, &I::Reserved9, &I::Reserved11, &I::Reserved14});
}

TEST(ICIMInterfaces, ReservedPlacesOfAParameterDeclaration) {
  typedef ICIMParameterDecl I;
  Parameter object;
  ExpectNotImplemented<I>(object, {&I::Reserved8, &I::Reserved11});
}

TEST(ICIMInterfaces, ReservedPlacesOfAProperty) {
  typedef ICIMProperty I;
  Property object;
  ExpectNotImplemented<I>(object, {&I::Reserved2, &I::Reserved3, &I::Reserved4, &I::Reserved6,
                                   &I::Reserved7, &I::Reserved9, &I::Reserved10, &I::Reserved11,
                                   &I::Reserved12, &I::Reserved13, &I::Reserved14, &I::Reserved15});
}

TEST(ICIMInterfaces, ReservedPlacesOfAQualifier) {
  typedef ICIMQualifier I;
  Qualifier object;
  ExpectNotImplemented<I>(object, {&I::Reserved2, &I::Reserved4, &I::Reserved5, &I::Reserved6,
                                   &I::Reserved7, &I::Reserved8});
}

TEST(ICIMInterfaces, ReservedPlacesOfAQualifierDeclaration) {
  typedef ICIMQualifierDecl I;
  QualifierDecl object;
  ExpectNotImplemented<I>(object, {&I::Reserved2, &I::Reserved4, &I::Reserved6, &I::Reserved7,
                                   &I::Reserved8, &I::Reserved10, &I::Reserved12, &I::Reserved13});
}

TEST(ICIMInterfaces, ReservedPlaceCanBeGivenAMeaning) {
  class Meaningful : public cim_test::OpaqueInstance {
   public:
    void Reserved2() override { called = true; }
    bool called = false;
  };
  Meaningful object;
  static_cast<ICIMInstance&>(object).Reserved2();
  EXPECT_TRUE(object.called);
}

TEST(ICIMInterfaces, ClassesAreElementsAndNamedElements) {
  const boost::shared_ptr<cim_test::RecordingNamespace> ns = cim_test::RecordingNamespace::Create();
  ns->Declare("Cls");
  const boost::shared_ptr<ICIMClass> cls = ns->Class("Cls");
  const boost::shared_ptr<ICIMElement> element = cls;
  const boost::shared_ptr<ICIMNamedElement> named = cls;
  EXPECT_EQ(cls, boost::dynamic_pointer_cast<ICIMClass>(element));
  EXPECT_EQ(cls, boost::dynamic_pointer_cast<ICIMClass>(named));
  EXPECT_FALSE(boost::dynamic_pointer_cast<ICIMInstance>(element));
}

TEST(ICIMInterfaces, BasesAreAsDeclared) {
  EXPECT_TRUE((std::is_base_of<ICIMElement, ICIMInstance>::value));
  EXPECT_FALSE((std::is_base_of<ICIMNamedElement, ICIMInstance>::value));
  EXPECT_TRUE((std::is_base_of<ICIMNamedElement, ICIMPropertyDecl>::value));
  EXPECT_TRUE((std::is_base_of<ICIMNamedElement, ICIMMethodDecl>::value));
  EXPECT_TRUE((std::is_base_of<ICIMNamedElement, ICIMParameterDecl>::value));
  EXPECT_FALSE((std::is_base_of<ICIMElement, ICIMPropertyDecl>::value));
  EXPECT_FALSE((std::is_base_of<ICIMNamedElement, ICIMProperty>::value));
}

}  // namespace
