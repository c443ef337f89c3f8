#include <qdamemory/internal/ValueContent.h>

#include <vector>

#include <qdacore/cim/value/TCIMStringValueImpl.h>
#include <qdamemory/internal/Mix.h>
#include <qdamemory/internal/StoredValue.h>

namespace NZRVQDA20 {

namespace {

typedef TCIMValue::TCIMType TType;

// Bodies are shown to what derives from them.
class TBodies : private TCIMValueImpl {
 public:
  // `value` is a string and not null.
  static const std::string& Text(const TCIMValue& value) {
    return static_cast<const TCIMStringValueImpl*>(BodyOf(value))->GetText();
  }
};

std::uint64_t Number(const TCIMValue& value) {
  switch (value.GetType()) {
    case TType::kCIMTypeBoolean:
      return value.operator bool();
    case TType::kCIMTypeUint8:
      return value.operator unsigned char();
    case TType::kCIMTypeSint8:
      return static_cast<std::uint64_t>(value.operator signed char());
    case TType::kCIMTypeUint16:
      return value.operator unsigned short();
    case TType::kCIMTypeSint16:
      return static_cast<std::uint64_t>(value.operator short());
    case TType::kCIMTypeUint32:
      return value.operator unsigned int();
    case TType::kCIMTypeSint32:
      return static_cast<std::uint64_t>(value.operator int());
    case TType::kCIMTypeUint64:
      return value.operator unsigned long long();
    case TType::kCIMTypeSint64:
      return static_cast<std::uint64_t>(value.operator long long());
    default:
      return 0;
  }
}

bool IsExactType(TType::ECIMType type) {
  return (type >= TType::kCIMTypeBoolean && type <= TType::kCIMTypeSint64) ||
         type == TType::kCIMTypeString;
}

std::uint64_t HashText(std::uint64_t hash, const std::string& text) {
  const char* bytes = text.data();
  const std::size_t size = text.size();
  hash = Mix(hash, size);
  std::size_t at = 0;
  for (; at + 8 <= size; at += 8) {
    hash = Mix(hash, LoadWord(bytes + at));
  }
  return Mix(hash, LoadShort(bytes + at, size - at));
}

std::uint64_t MixContent(std::uint64_t hash, const TCIMValue& value) {
  hash = Mix(hash, static_cast<std::uint64_t>(value.GetType()) * 2 + (value.IsNull() ? 1 : 0));
  if (value.IsArray()) {
    hash = Mix(hash, value.GetMaxArraySize());
  }
  if (value.IsNull()) {
    return hash;
  }
  if (!value.IsArray()) {
    return value.GetType() == TType::kCIMTypeString ? HashText(hash, TBodies::Text(value))
                                                    : Mix(hash, Number(value));
  }
  const std::vector<TCIMValue>& elements = value;
  hash = Mix(hash, elements.size());
  for (const TCIMValue& element : elements) {
    hash = MixContent(hash, element);
  }
  return hash;
}

}  // namespace

bool HasExactContent(const TCIMValue& value) {
  if (!IsExactType(ElementType(value))) {
    return false;
  }
  if (!value.IsArray() || value.IsNull()) {
    return true;
  }
  // An array may hold elements of other types than its own.
  const std::vector<TCIMValue>& elements = value;
  for (const TCIMValue& element : elements) {
    if (element.IsArray() || !IsExactType(element.GetType())) {
      return false;
    }
  }
  return true;
}

bool IsSameContent(const TCIMValue& left, const TCIMValue& right) {
  if (left.GetType() != right.GetType() || left.IsNull() != right.IsNull() ||
      (left.IsArray() && left.GetMaxArraySize() != right.GetMaxArraySize())) {
    return false;
  }
  if (left.IsNull()) {
    return true;
  }
  if (!left.IsArray()) {
    return left.GetType() == TType::kCIMTypeString ? TBodies::Text(left) == TBodies::Text(right)
                                                   : Number(left) == Number(right);
  }
  const std::vector<TCIMValue>& leftElements = left;
  const std::vector<TCIMValue>& rightElements = right;
  if (leftElements.size() != rightElements.size()) {
    return false;
  }
  for (std::size_t at = 0; at < leftElements.size(); ++at) {
    if (!IsSameContent(leftElements[at], rightElements[at])) {
      return false;
    }
  }
  return true;
}

std::uint64_t HashContent(const TCIMValue& value) { return Finish(MixContent(0, value)); }

}  // namespace NZRVQDA20
