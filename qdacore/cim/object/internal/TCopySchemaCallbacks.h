// The callbacks by which a schema moves, one for each kind of element that a namespace or a class
// enumerates. All return true. Each holds its target namespace weakly and takes hold of it at each
// use, as TCopyValueCallbacks.h tells.

#ifndef QDACORE_CIM_OBJECT_INTERNAL_TCOPYSCHEMACALLBACKS_H
#define QDACORE_CIM_OBJECT_INTERNAL_TCOPYSCHEMACALLBACKS_H

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace NZRVQDA20 {
class ICIMClass;
class ICIMMethodDecl;
class ICIMNamedElement;
class ICIMNamespace;
class ICIMParameterDecl;
class ICIMProperty;
class ICIMPropertyDecl;
class ICIMQualifier;
class ICIMQualifierDecl;
}  // namespace NZRVQDA20

class TCopyQualifierDecls {
 public:
  explicit TCopyQualifierDecls(const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target)
      : fTarget(target) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMQualifierDecl> declaration);

 private:
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
};

// A root class and all that descends from it.
class TCopyClassTree {
 public:
  // `associations`: which of the two walks this is.
  TCopyClassTree(const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target, bool associations,
                 bool skipProductInstances)
      : fTarget(target), fAssociations(associations), fSkipProductInstances(skipProductInstances) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMClass> root);

 private:
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
  bool fAssociations;
  bool fSkipProductInstances;
};

// One class, when it belongs to this walk, and its product instances.
class TCopyClass {
 public:
  TCopyClass(const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target, bool associations,
             bool skipProductInstances)
      : fTarget(target), fAssociations(associations), fSkipProductInstances(skipProductInstances) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMClass> source);

 private:
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
  bool fAssociations;
  bool fSkipProductInstances;
};

class TCopyQualifier {
 public:
  TCopyQualifier(const boost::weak_ptr<NZRVQDA20::ICIMNamedElement>& element,
                 const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target)
      : fElement(element), fTarget(target) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMQualifier> source);

 private:
  boost::weak_ptr<NZRVQDA20::ICIMNamedElement> fElement;
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
};

class TCopyPropertyDecl {
 public:
  TCopyPropertyDecl(const boost::shared_ptr<NZRVQDA20::ICIMClass>& cls,
                    const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target)
      : fClass(cls), fTarget(target) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMPropertyDecl> source);

 private:
  boost::shared_ptr<NZRVQDA20::ICIMClass> fClass;
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
};

class TCopyStaticProperty {
 public:
  TCopyStaticProperty(const boost::shared_ptr<NZRVQDA20::ICIMClass>& cls,
                      const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target)
      : fClass(cls), fTarget(target) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMProperty> source);

 private:
  boost::shared_ptr<NZRVQDA20::ICIMClass> fClass;
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
};

class TCopyMethodDecl {
 public:
  TCopyMethodDecl(const boost::shared_ptr<NZRVQDA20::ICIMClass>& cls,
                  const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target)
      : fClass(cls), fTarget(target) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMMethodDecl> source);

 private:
  boost::shared_ptr<NZRVQDA20::ICIMClass> fClass;
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
};

class TCopyParameterDecl {
 public:
  TCopyParameterDecl(const boost::weak_ptr<NZRVQDA20::ICIMMethodDecl>& method,
                     const boost::weak_ptr<NZRVQDA20::ICIMNamespace>& target)
      : fMethod(method), fTarget(target) {}

  bool operator()(boost::shared_ptr<NZRVQDA20::ICIMParameterDecl> source);

 private:
  boost::weak_ptr<NZRVQDA20::ICIMMethodDecl> fMethod;
  boost::weak_ptr<NZRVQDA20::ICIMNamespace> fTarget;
};

#endif
