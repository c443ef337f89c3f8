// TCIMValue: the handle in which every CIM value crosses a module boundary.
//
// A handle has a declared type (TCIMValue::TCIMType) and, unless it is null, a
// body that it alone owns. The two are separate, so a value can be typed but
// null: a property may be declared uint32 and hold nothing.
//
//   TCIMValue count(std::uint32_t(3));
//   unsigned int n = count;             // 3
//   int wrong = count;                  // throws kQDAStatusTypeMismatch
//   std::string text = count.ToString(10);  // "3"
//
// Conversions are strict by design: a value gives out only the exact type that
// it holds. Nothing widens, narrows or parses on the way out; use ToString for
// text. A char16 value has no conversion at all and is read through ToString.
//
// Failures are TQDAException with one of
//   kQDAStatusValueIsNULL        conversion or text of a null value
//   kQDAStatusTypeMismatch       conversion to another type; copying or parsing a
//                                type that has no values
//   kQDAStatusInvalidProperty    an array given an element of another type
//   kQDAStatusInvalidOpSequence  a referenced class set on a value that has a body
//   kQDAStatusNotSupported       text in a radix that the type is not shown in
//   kQDAStatusNotImplemented     the order of two arrays
// or what TCIMDateTime, TCIMChar16 and TCIMReference throw for what they hold.
//
// Threads: no locks. Two handles never share a body, so distinct handles never
// interfere; one handle belongs to one thread at a time while it is changed.

#ifndef QDACORE_CIM_VALUE_TCIMVALUE_H
#define QDACORE_CIM_VALUE_TCIMVALUE_H

#include <climits>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class ICIMClass;
class ICIMNamespace;
class TCIMRoom;
class TCIMChar16;
class TCIMDateTime;
class TCIMReference;
class TCIMValueImpl;

class TCIMValue {
 public:
  // What a value or a property holds: one 32-bit word, an element type with or
  // without the array flag (DSP0004, "Intrinsic data types"). It knows nothing of
  // values; it only names a type. The numbers cross every module boundary, and
  // values of different types sort by them.
  class TCIMType {
   public:
    enum ECIMType : std::int32_t {
      kCIMTypeNone = 0,
      kCIMTypeBoolean = 1,
      kCIMTypeUint8 = 2,
      kCIMTypeSint8 = 3,
      kCIMTypeUint16 = 4,
      kCIMTypeSint16 = 5,
      kCIMTypeUint32 = 6,
      kCIMTypeSint32 = 7,
      kCIMTypeUint64 = 8,
      kCIMTypeSint64 = 9,
      kCIMTypeReal32 = 10,
      kCIMTypeReal64 = 11,
      kCIMTypeChar16 = 12,
      kCIMTypeString = 13,
      kCIMTypeDateTime = 14,
      kCIMTypeReference = 15,
      // Not a type: set on an element type it makes the array type.
      kCIMTypeArrayFlag = 16
    };

    // Stores `type` as it is, array flag included, unchecked.
    TCIMType(ECIMType type = kCIMTypeNone) : fType(type) {}

    // Reads a spelling such as "uint32"; case does not count, nothing is trimmed.
    // There is no array spelling. An unknown spelling is no failure: it leaves
    // kCIMTypeNone.
    QDACORE_EXPORT TCIMType(std::string text);

    TCIMType(const TCIMType& other) : fType(other.fType) {}
    TCIMType& operator=(const TCIMType& other) {
      fType = other.fType;
      return *this;
    }

    // The stored word unchanged, so for an array type it equals no element type.
    operator ECIMType() const { return fType; }

    // The spelling of the element type. The array flag is not shown: an array of
    // sint32 spells "sint32". This loss is meant.
    // Throws kQDAStatusTypeMismatch for a word that has no spelling.
    QDACORE_EXPORT std::string ToString() const;

   private:
    ECIMType fType;
  };

  // No type, null.
  QDACORE_EXPORT TCIMValue();

  // A value of the argument's type, as by Set.
  QDACORE_EXPORT TCIMValue(bool value);
  QDACORE_EXPORT TCIMValue(unsigned char value);
  QDACORE_EXPORT TCIMValue(signed char value);
  QDACORE_EXPORT TCIMValue(unsigned short value);
  QDACORE_EXPORT TCIMValue(short value);
  QDACORE_EXPORT TCIMValue(unsigned int value);
  QDACORE_EXPORT TCIMValue(int value);
  QDACORE_EXPORT TCIMValue(unsigned long long value);
  QDACORE_EXPORT TCIMValue(long long value);
  QDACORE_EXPORT TCIMValue(float value);
  QDACORE_EXPORT TCIMValue(double value);
  QDACORE_EXPORT TCIMValue(const std::string& value);
  QDACORE_EXPORT TCIMValue(const char* value);
  QDACORE_EXPORT TCIMValue(const TCIMChar16& value);
  QDACORE_EXPORT TCIMValue(const TCIMDateTime& value);
  // Throws kQDAStatusInvalidReference when `value` has no class.
  QDACORE_EXPORT TCIMValue(TCIMReference& value);

  // A typed null. A maximum other than 0 also sets the array flag; an array with
  // no declared maximum needs the flag in `type`.
  QDACORE_EXPORT TCIMValue(TCIMType type, unsigned int maxArraySize);

  // An array, as by the array Set.
  QDACORE_EXPORT TCIMValue(TCIMType type, unsigned int maxArraySize,
                           const std::vector<TCIMValue>& elements);

  // Reads the text form of a key value or literal. `text` is not changed; `ns` is
  // asked only for references. Integers may be written in decimal, hexadecimal
  // ("0x1F") or octal ("017"). As with a stream, white space in front and text
  // behind a number are ignored and no numeric or boolean text is ever rejected:
  // what cannot be read is 0 or false.
  // A char16 comes out as a *string* value that holds the text; that is meant.
  // Throws kQDAStatusTypeMismatch for an array type or no type, and what
  // TCIMDateTime and TCIMReference throw for their texts.
  QDACORE_EXPORT TCIMValue(TCIMType type, std::string& text, boost::shared_ptr<ICIMNamespace> ns);

  QDACORE_EXPORT TCIMValue(const TCIMValue& other);

  // The same, with the body of a scalar other than a reference in `room`, which must outlive the
  // value.
  QDACORE_EXPORT TCIMValue(const TCIMValue& other, TCIMRoom& room);

  QDACORE_EXPORT ~TCIMValue();

  // The same as Set(other).
  QDACORE_EXPORT TCIMValue& operator=(const TCIMValue& other);

  // Each stores the type that belongs to the argument and a new body. The
  // referenced class and the declared maximum stay as they were. When the argument
  // cannot be copied the value is a null of the new type.
  QDACORE_EXPORT void Set(bool value);
  QDACORE_EXPORT void Set(unsigned char value);
  QDACORE_EXPORT void Set(signed char value);
  QDACORE_EXPORT void Set(unsigned short value);
  QDACORE_EXPORT void Set(short value);
  QDACORE_EXPORT void Set(unsigned int value);
  QDACORE_EXPORT void Set(int value);
  QDACORE_EXPORT void Set(unsigned long long value);
  QDACORE_EXPORT void Set(long long value);
  QDACORE_EXPORT void Set(float value);
  QDACORE_EXPORT void Set(double value);
  QDACORE_EXPORT void Set(const std::string& value);
  QDACORE_EXPORT void Set(const char* value);
  QDACORE_EXPORT void Set(const TCIMChar16& value);
  QDACORE_EXPORT void Set(const TCIMDateTime& value);

  // Holds a copy of `value` and also takes over its class as the referenced class.
  // Throws kQDAStatusInvalidReference when it has none; type and body are in place
  // by then.
  QDACORE_EXPORT void Set(TCIMReference& value);

  // An array of copies of `elements`. `type` is the element type (the array flag
  // is added), `maxArraySize` the declared maximum, 0 for none; it is never
  // compared with the count.
  // Throws kQDAStatusInvalidProperty, after an error line in the core log, when an
  // element is of another type. The check comes after the store, so the handle then
  // holds the array all the same; that is meant.
  QDACORE_EXPORT void Set(TCIMType type, unsigned int maxArraySize,
                          const std::vector<TCIMValue>& elements);

  // Copies. Nothing at all changes when the two are equal already; so a char16 over
  // a char16 changes nothing, and a timestamp over an interval throws
  // kQDAStatusInvalidDateTime, as their comparisons would. A scalar leaves the old
  // declared maximum in place; only a scalar reference carries its referenced class.
  // Throws kQDAStatusTypeMismatch when `source` has a type that has no values (such
  // as a handle that was never set) and differs from this one, which then has lost
  // its value and taken that type.
  QDACORE_EXPORT void Set(const TCIMValue& source);

  // A typed null. The maximum is stored only for an array type; the referenced class
  // is kept.
  QDACORE_EXPORT void SetNullValue(TCIMType::ECIMType type, unsigned int maxArraySize);

  // The class that a declared reference refers to. Only while the value is null,
  // otherwise throws kQDAStatusInvalidOpSequence and changes nothing.
  QDACORE_EXPORT void SetReferencedClass(boost::shared_ptr<ICIMClass> cls);
  QDACORE_EXPORT boost::shared_ptr<ICIMClass> GetReferencedClass() const;

  bool IsNull() const { return fBody == 0; }
  // A copy of the type, array flag included.
  TCIMType GetType() const { return fType; }
  bool IsArray() const { return (fType & TCIMType::kCIMTypeArrayFlag) != 0; }
  // The declared maximum of an array; 0 when none was declared.
  unsigned int GetMaxArraySize() const { return fMaxArraySize; }
  // False for an array of references.
  bool IsReference() const { return fType == TCIMType::kCIMTypeReference; }

  // Each throws kQDAStatusValueIsNULL on a null value and kQDAStatusTypeMismatch
  // unless exactly this type is held.
  QDACORE_EXPORT operator bool() const;
  QDACORE_EXPORT operator unsigned char() const;
  QDACORE_EXPORT operator signed char() const;
  QDACORE_EXPORT operator unsigned short() const;
  QDACORE_EXPORT operator short() const;
  QDACORE_EXPORT operator unsigned int() const;
  QDACORE_EXPORT operator int() const;
  QDACORE_EXPORT operator unsigned long long() const;
  QDACORE_EXPORT operator long long() const;
  QDACORE_EXPORT operator float() const;
  QDACORE_EXPORT operator double() const;
  QDACORE_EXPORT operator std::string() const;
  QDACORE_EXPORT operator TCIMDateTime() const;
  QDACORE_EXPORT operator TCIMReference() const;
  // The vector inside the body, of any array: the caller may change it, and it dies
  // with the body.
  QDACORE_EXPORT operator std::vector<TCIMValue>&() const;

#if LONG_MAX > INT_MAX
  // Where long has 64 bits it stands for the 64-bit types, so that std::int64_t
  // and std::uint64_t work on every platform.
  TCIMValue(unsigned long value) : TCIMValue(static_cast<unsigned long long>(value)) {}
  TCIMValue(long value) : TCIMValue(static_cast<long long>(value)) {}
  void Set(unsigned long value) { Set(static_cast<unsigned long long>(value)); }
  void Set(long value) { Set(static_cast<long long>(value)); }
  operator unsigned long() const {
    return static_cast<unsigned long>(static_cast<unsigned long long>(*this));
  }
  operator long() const { return static_cast<long>(static_cast<long long>(*this)); }
#endif

  // The value as text. `base` is the radix of numbers: 10, 16 (unsigned numbers only,
  // zero-filled upper-case digits, no prefix) or 8 (unsigned only). Strings stand
  // unquoted; an array reads "{ 1, 2 }".
  // Throws kQDAStatusValueIsNULL on a null value or element, kQDAStatusNotSupported
  // for a radix that the type cannot be shown in.
  QDACORE_EXPORT std::string ToString(unsigned char base = 10) const;

  // Null values are equal when their types are (and, for references, the referenced
  // classes; for arrays, the declared maxima). Values of different types are never
  // equal; they sort by type number, null values first. Non-null references compare as
  // TCIMReference does; the referenced class and the maximum have no part then. Two arrays have no
  // order: < throws kQDAStatusNotImplemented.
  QDACORE_EXPORT bool operator==(const TCIMValue& other) const;
  QDACORE_EXPORT bool operator<(const TCIMValue& other) const;
  QDACORE_EXPORT bool operator!=(const TCIMValue& other) const;
  QDACORE_EXPORT bool operator>=(const TCIMValue& other) const;
  QDACORE_EXPORT bool operator>(const TCIMValue& other) const;
  QDACORE_EXPORT bool operator<=(const TCIMValue& other) const;

 private:
  // Bodies compare with what another handle holds.
  friend class TCIMValueImpl;
  // Takes over a value that it has just read.
  friend class TCIMReferenceImpl;

  TCIMValueImpl* BeginSet(TCIMType::ECIMType type);
  void DeleteBody();
  // Leaves `source` as this was; this is new and unset.
  void Take(TCIMValue& source);
  const TCIMValueImpl& BodyOfType(TCIMType::ECIMType type) const;

  TCIMType fType;
  TCIMValueImpl* fBody;
  boost::shared_ptr<ICIMClass> fReferencedClass;
  std::uint32_t fMaxArraySize;
};

// Writes type.ToString(); fails as that does.
QDACORE_EXPORT std::ostream& operator<<(std::ostream& stream, const TCIMValue::TCIMType& type);

}  // namespace NZRVQDA20

#endif
