#include <qdamemory/mof/MofValues.h>

#include <cmath>
#include <limits>
#include <vector>

#include <qdacore/cim/value/TCIMChar16.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/mof/MofFailure.h>
#include <qdamemory/mof/ObjectPathText.h>

namespace NZRVQDA20 {
namespace mof {

namespace {

typedef TCIMValue::TCIMType Type;

std::string NameOf(Type::ECIMType type) { return Type(type).ToString(); }

[[noreturn]] void FailAsNone(const Literal& literal, Type::ECIMType type) {
  Fail(literal.place, "this is no value of the type " + NameOf(type));
}

template <class T>
TCIMValue Integer(const Literal& literal, Type::ECIMType type) {
  if (literal.kind != Literal::kInteger) {
    FailAsNone(literal, type);
  }
  const std::uint64_t highest = static_cast<std::uint64_t>(std::numeric_limits<T>::max());
  // One more below zero than above it, where there is anything below it.
  const std::uint64_t lowest = std::numeric_limits<T>::is_signed ? highest + 1 : 0;
  if (literal.magnitude > (literal.negative ? lowest : highest)) {
    Fail(literal.place, "this number is beyond the range of " + NameOf(type));
  }
  // Unsigned arithmetic has the two's complement at its lowest value too.
  return TCIMValue(static_cast<T>(literal.negative ? 0 - literal.magnitude : literal.magnitude));
}

double Real(const Literal& literal, Type::ECIMType type) {
  switch (literal.kind) {
    case Literal::kReal:
      return literal.real;
    case Literal::kInteger:
      return static_cast<double>(literal.magnitude) * (literal.negative ? -1 : 1);
    case Literal::kString:
      if (literal.text == "NaN") {
        return std::numeric_limits<double>::quiet_NaN();
      }
      if (literal.text == "INF" || literal.text == "-INF") {
        const double infinity = std::numeric_limits<double>::infinity();
        return literal.text[0] == '-' ? -infinity : infinity;
      }
      break;
    default:
      break;
  }
  FailAsNone(literal, type);
}

TCIMValue Real32(const Literal& literal) {
  const double real = Real(literal, Type::kCIMTypeReal32);
  const float narrow = static_cast<float>(real);
  if (std::isinf(narrow) && !std::isinf(real)) {
    Fail(literal.place, "this number is beyond the range of real32");
  }
  return TCIMValue(narrow);
}

TCIMValue Character(const Literal& literal) {
  const bool isUnit = literal.kind == Literal::kCharacter ||
                      (literal.kind == Literal::kInteger && !literal.negative);
  if (!isUnit || literal.magnitude > 0xFFFF) {
    FailAsNone(literal, Type::kCIMTypeChar16);
  }
  return TCIMValue(TCIMChar16(static_cast<unsigned short>(literal.magnitude)));
}

TCIMValue DateTime(const Literal& literal) {
  try {
    return TCIMValue(TCIMDateTime(literal.text));
  } catch (const TQDAException&) {
    Fail(literal.place, Quoted(literal.text) + " is no datetime (DSP0004, \"Datetime type\")");
  }
}

TCIMValue Reference(const Literal& literal, const boost::shared_ptr<ICIMNamespace>& ns) {
  try {
    TCIMReference reference = ReadObjectPath(literal.text, ns);
    return TCIMValue(reference);
  } catch (const TQDAException& failure) {
    Fail(
        literal.place,
        Quoted(literal.text) + " is no object path of a class that is declared here, with its keys",
        failure.GetStatus().GetStatusCode());
  } catch (Failure& failure) {
    failure.place = literal.place;
    throw;
  }
}

}  // namespace

TCIMValue NullValue(const Slot& slot) {
  const int type = slot.type | (slot.isArray ? Type::kCIMTypeArrayFlag : 0);
  return TCIMValue(Type(static_cast<Type::ECIMType>(type)), slot.maxArraySize);
}

TCIMValue MakeScalar(Type::ECIMType type, const Literal& literal,
                     const boost::shared_ptr<ICIMNamespace>& ns) {
  if (literal.kind == Literal::kNull) {
    return TCIMValue(Type(type), 0);
  }
  switch (type) {
    case Type::kCIMTypeUint8:
      return Integer<unsigned char>(literal, type);
    case Type::kCIMTypeUint16:
      return Integer<unsigned short>(literal, type);
    case Type::kCIMTypeUint32:
      return Integer<unsigned int>(literal, type);
    case Type::kCIMTypeUint64:
      return Integer<unsigned long long>(literal, type);
    case Type::kCIMTypeSint8:
      return Integer<signed char>(literal, type);
    case Type::kCIMTypeSint16:
      return Integer<short>(literal, type);
    case Type::kCIMTypeSint32:
      return Integer<int>(literal, type);
    case Type::kCIMTypeSint64:
      return Integer<long long>(literal, type);
    case Type::kCIMTypeReal32:
      return Real32(literal);
    case Type::kCIMTypeReal64:
      return TCIMValue(Real(literal, type));
    case Type::kCIMTypeChar16:
      return Character(literal);
    case Type::kCIMTypeBoolean:
      if (literal.kind == Literal::kBoolean) {
        return TCIMValue(literal.magnitude != 0);
      }
      break;
    case Type::kCIMTypeString:
      if (literal.kind == Literal::kString) {
        return TCIMValue(literal.text);
      }
      break;
    case Type::kCIMTypeDateTime:
      if (literal.kind == Literal::kString) {
        return DateTime(literal);
      }
      break;
    case Type::kCIMTypeReference:
      if (literal.kind == Literal::kString) {
        return Reference(literal, ns);
      }
      break;
    default:
      break;
  }
  FailAsNone(literal, type);
}

TCIMValue MakeValue(const Slot& slot, const Value& value,
                    const boost::shared_ptr<ICIMNamespace>& ns, const AliasResolver& aliases) {
  const auto element = [&](const Literal& literal) {
    if (literal.kind == Literal::kAlias && slot.type == Type::kCIMTypeReference && aliases) {
      TCIMReference reference = aliases(literal);
      return TCIMValue(reference);
    }
    return MakeScalar(slot.type, literal, ns);
  };
  if (!value.isArray && value.literals[0].kind == Literal::kNull) {
    return NullValue(slot);
  }
  if (value.isArray != slot.isArray) {
    Fail(value.place, slot.isArray ? "an array of values in braces is needed here"
                                   : "one value is needed here, and no array");
  }
  if (!slot.isArray) {
    return element(value.literals[0]);
  }
  std::vector<TCIMValue> elements;
  elements.reserve(value.literals.size());
  for (const Literal& literal : value.literals) {
    elements.push_back(element(literal));
  }
  return TCIMValue(Type(slot.type), slot.maxArraySize, elements);
}

}  // namespace mof
}  // namespace NZRVQDA20
