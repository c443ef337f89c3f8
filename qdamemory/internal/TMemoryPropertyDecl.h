// TMemoryPropertyDecl: the declaration of a property. It belongs to its class; what is given
// out shares ownership of the class.

#ifndef QDAMEMORY_INTERNAL_TMEMORYPROPERTYDECL_H
#define QDAMEMORY_INTERNAL_TMEMORYPROPERTYDECL_H

#include <cstdint>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/cim/object/ICIMPropertyDecl.h>
#include <qdamemory/internal/Context.h>
#include <qdamemory/internal/Fail.h>
#include <qdamemory/internal/PlainNull.h>
#include <qdamemory/internal/TQualifierList.h>

namespace NZRVQDA20 {

class TMemoryClass;

class TMemoryPropertyDecl final : public ICIMPropertyDecl {
 public:
  // `hash`: HashCIMName(name). `overridden`: the inherited declaration of that name, or null.
  // `slot`: the place of the property's value in an instance.
  TMemoryPropertyDecl(TMemoryClass& cls, const std::string& name, std::uint32_t hash,
                      const TCIMValue& defaultValue, const TMemoryPropertyDecl* overridden,
                      std::uint32_t slot)
      : fClass(cls),
        fName(name),
        fDefaultValue(KeepDefault(defaultValue)),
        fQualifiers(overridden == 0 ? 0 : &overridden->fQualifiers),
        fHash(hash),
        fSlot(slot),
        fIsKey(overridden != 0 && overridden->fIsKey),
        fIsCommitted(false) {}
  virtual ~TMemoryPropertyDecl();

  virtual boost::shared_ptr<ICIMQualifier> AddQualifier(
      boost::shared_ptr<ICIMQualifierDecl> declaration, const TCIMValue& value, TContext context);
  virtual boost::shared_ptr<ICIMQualifier> GetQualifier(const std::string& name,
                                                        TContext context) const;
  virtual void EnumerateQualifiers(boost::function<bool(boost::shared_ptr<ICIMQualifier>)>& visit,
                                   TContext context) const;
  virtual void Commit(TContext context);
  virtual const std::string& GetName(TContext context) const;
  virtual TCIMValue::TCIMType GetType(TContext context) const;
  virtual const TCIMValue& GetDefaultValue(TContext context) const;

  const std::string& Name() const { return fName; }
  std::uint32_t Hash() const { return fHash; }
  const TCIMValue& DefaultValue() const { return *fDefaultValue; }
  TCIMValue::TCIMType Type() const { return fDefaultValue->GetType(); }
  std::uint32_t Slot() const { return fSlot; }
  // By its own Key qualifier, or else as what it overrides.
  bool IsKey() const { return fIsKey; }
  // As it is given out.
  boost::shared_ptr<const ICIMPropertyDecl> Share() const;

  // Throws kQDAStatusTypeMismatch unless `value` is of the declared type, and
  // kQDAStatusInvalidReference when it refers to a class other than the declared one and those
  // that derive from it.
  void RequireFits(const TCIMValue& value) const {
    if (value.GetType() != Type()) {
      Fail(TQDAStatusCode::kQDAStatusTypeMismatch);
    }
    // Only a scalar names its class; and a reference property may be declared without one.
    if (value.IsReference() && !value.IsNull()) {
      RequireRefersTo(value);
    }
  }
  // Keeps `value`, which fits, in `slot`. A null reference is given the declared class.
  void StoreTo(TCIMValue& slot, const TCIMValue& value) const;

  // See ReleaseReferences.
  void Release();

 private:
  TMemoryPropertyDecl(const TMemoryPropertyDecl&);
  TMemoryPropertyDecl& operator=(const TMemoryPropertyDecl&);

  void RequireRefersTo(const TCIMValue& value) const;

  // What stands for `value` as the default: mostly there already, otherwise a new copy.
  static const TCIMValue* KeepDefault(const TCIMValue& value) {
    const TCIMValue* const plain = PlainNull(value);
    return plain == 0 ? CopyOf(value) : plain;
  }
  static const TCIMValue* CopyOf(const TCIMValue& value);
  // Null when it is a plain one.
  TCIMValue* OwnDefault() const;

  TMemoryClass& fClass;
  std::string fName;
  // Its own, or one of the nulls of PlainNull.h.
  const TCIMValue* const fDefaultValue;
  TQualifierList fQualifiers;
  const std::uint32_t fHash;
  // Together, because a schema has many declarations.
  const std::uint32_t fSlot : 30;
  std::uint32_t fIsKey : 1;
  std::uint32_t fIsCommitted : 1;
};

}  // namespace NZRVQDA20

#endif
