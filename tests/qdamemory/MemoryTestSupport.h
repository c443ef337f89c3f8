// What the tests of the in-memory namespace share: short ways to build a schema and to read an
// enumeration as a list of names.

#ifndef TESTS_QDAMEMORY_MEMORYTESTSUPPORT_H
#define TESTS_QDAMEMORY_MEMORYTESTSUPPORT_H

#include <map>
#include <string>
#include <vector>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qdacore/cim/object/ICIMClass.h>
#include <qdacore/cim/object/ICIMInstance.h>
#include <qdacore/cim/object/ICIMMethodDecl.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/cim/object/ICIMParameterDecl.h>
#include <qdacore/cim/object/ICIMProperty.h>
#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdacore/cim/object/ICIMQualifier.h>
#include <qdacore/cim/object/ICIMQualifierDecl.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMValue.h>
#include <qdamemory/MemoryNamespace.h>
#include <qdamemory/StandardQualifiers.h>
#include <tests/support/ExpectStatus.h>

namespace memory_test {

using namespace NZRVQDA20;
using testing::ElementsAre;
using testing::IsEmpty;

typedef std::map<std::string, TCIMValue> Context;
typedef boost::shared_ptr<ICIMNamespace> Namespace;
typedef boost::shared_ptr<ICIMClass> Class;
typedef boost::shared_ptr<ICIMInstance> Instance;
typedef std::vector<std::string> Names;
typedef TCIMValue::TCIMType Type;

// The empty context that every call gets.
Context None();

// A null of that type; with `array`, an array of it.
TCIMValue Null(Type::ECIMType type, bool array = false);
TCIMValue NullReferenceTo(const Class& cls);

// A namespace with the standard qualifiers.
Namespace MakeNamespace();

// An open class, and one that is committed at once.
Class Open(const Namespace& ns, const std::string& name, const Class& superclass = Class());
Class Make(const Namespace& ns, const std::string& name, const Class& superclass = Class());

boost::shared_ptr<ICIMPropertyDecl> Add(const Class& cls, const std::string& name,
                                        const TCIMValue& defaultValue);
// The same with the qualifier Key.
boost::shared_ptr<ICIMPropertyDecl> AddKey(const Class& cls, const std::string& name,
                                           const TCIMValue& defaultValue);
// A qualifier by name, of the class's namespace.
void Qualify(const Class& cls, ICIMNamedElement& element, const std::string& name,
             const TCIMValue& value);

// A committed class with one string key.
Class MakeKeyed(const Namespace& ns, const std::string& name, const std::string& key = "ID",
                const Class& superclass = Class());

// An instance with one property set; Publish adds it as well.
Instance Create(const Class& cls, const std::string& name, const TCIMValue& value);
Instance Publish(const Class& cls, const std::string& name, const TCIMValue& value);

// The instance that a path names, or an empty pointer.
Instance Resolve(const Namespace& ns, const std::string& path);
TCIMValue ReferenceValue(const Namespace& ns, const std::string& path);

TCIMValue ValueOf(const Instance& instance, const std::string& name);
std::string TextOf(const Instance& instance, const std::string& name);

Names RootsOf(const Namespace& ns);
Names SubClassesOf(const Class& cls, bool deep);
Names PropertiesOf(const Class& cls);
Names PropertiesOf(const Instance& instance);
Names StaticPropertiesOf(const Class& cls);
Names MethodsOf(const Class& cls);
Names ParametersOf(const ICIMMethodDecl& method);
Names QualifiersOf(const ICIMNamedElement& element);
Names QualifierDeclsOf(const Namespace& ns);
// The texts of one property of the instances.
Names InstancesOf(const Class& cls, bool deep, const std::string& property = "ID");

}  // namespace memory_test

#endif
