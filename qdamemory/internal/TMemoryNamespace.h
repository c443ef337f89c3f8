// TMemoryNamespace: a namespace: its classes, their roots, its qualifier declarations.

#ifndef QDAMEMORY_INTERNAL_TMEMORYNAMESPACE_H
#define QDAMEMORY_INTERNAL_TMEMORYNAMESPACE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/TNameTable.h>

namespace NZRVQDA20 {

class TMemoryClass;
class TQualifierDeclPool;

class TMemoryNamespace final : public ICIMNamespace,
                               public boost::enable_shared_from_this<TMemoryNamespace> {
 public:
  explicit TMemoryNamespace(const std::string& name);
  virtual ~TMemoryNamespace();

  virtual boost::shared_ptr<ICIMClass> CreateClass(const std::string& name,
                                                   boost::shared_ptr<ICIMClass> superclass,
                                                   TContext context);
  virtual boost::shared_ptr<ICIMClass> GetClass(const std::string& name, TContext context) const;
  virtual void EnumerateClasses(boost::function<bool(boost::shared_ptr<ICIMClass>)>& visit,
                                TContext context) const;
  virtual boost::shared_ptr<ICIMQualifierDecl> CreateQualifierDecl(const std::string& name,
                                                                   const TCIMValue& value,
                                                                   std::int32_t firstAttribute,
                                                                   std::int32_t secondAttribute,
                                                                   TContext context);
  virtual boost::shared_ptr<ICIMQualifierDecl> GetQualifierDecl(const std::string& name,
                                                                TContext context) const;
  virtual void EnumerateQualifierDecls(
      boost::function<bool(boost::shared_ptr<ICIMQualifierDecl>)>& visit, TContext context) const;
  virtual boost::shared_ptr<ICIMInstance> GetInstance(const TCIMReference& reference,
                                                      TContext context) const;

  const std::string& Name() const { return fName; }
  const boost::shared_ptr<TQualifierDeclPool>& DeclPool() const { return fDeclPool; }
  // The class that was created as the `number`-th, counted from 0, as the namespace holds it.
  const boost::shared_ptr<TMemoryClass>& ClassAt(std::size_t number) const {
    return fClasses[number];
  }
  std::size_t ClassCount() const { return fClasses.size(); }

  // The serial of the instance published last; 0 when there is none.
  std::uint64_t LastInstanceSerial() const { return fLastInstanceSerial; }
  std::uint64_t TakeInstanceSerial() { return ++fLastInstanceSerial; }

 private:
  TMemoryNamespace(const TMemoryNamespace&);
  TMemoryNamespace& operator=(const TMemoryNamespace&);

  boost::shared_ptr<TMemoryClass> OwnSuperClass(
      const boost::shared_ptr<ICIMClass>& superclass) const;

  std::string fName;
  boost::shared_ptr<TQualifierDeclPool> fDeclPool;
  // In order of creation; fTable has the same positions.
  std::vector<boost::shared_ptr<TMemoryClass> > fClasses;
  TNameTable<TMemoryClass> fTable;
  TMemoryClass* fFirstRoot;
  TMemoryClass* fLastRoot;
  std::uint64_t fLastInstanceSerial;
};

}  // namespace NZRVQDA20

#endif
