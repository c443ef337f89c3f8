#include <qdamemory/internal/KeyText.h>

#include <cstring>
#include <map>
#include <utility>
#include <vector>

#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/frame/TQDAException.h>
#include <qdamemory/internal/CIMName.h>
#include <qdamemory/internal/Mix.h>
#include <qdamemory/internal/StoredValue.h>

namespace NZRVQDA20 {

namespace {

typedef TCIMValue::TCIMType TType;

const char kNullMark = '\x7f';

template <class T>
void AppendRaw(std::string& text, T number) {
  char bytes[sizeof(T)];
  std::memcpy(bytes, &number, sizeof(T));
  text.append(bytes, sizeof(T));
}

void AppendString(std::string& text, const std::string& value) {
  AppendRaw(text, value.size());
  text += value;
}

// Minus zero is zero; every other number is its own bits.
template <class T>
void AppendReal(std::string& text, T number) {
  AppendRaw(text, number == T(0) ? T(0) : number);
}

void AppendDateTime(std::string& text, const TCIMDateTime& time) {
  if (time.IsNull()) {
    text += kNullMark;
    return;
  }
  text += time.IsInterval() ? 'i' : 't';
  if (!time.IsInterval()) {
    // An interval set over a timestamp keeps these, without a meaning.
    AppendRaw(text, time.GetYear());
    AppendRaw(text, time.GetMonth());
    AppendRaw(text, time.GetUTCOffset());
  }
  AppendRaw(text, time.GetDay());
  AppendRaw(text, time.GetHour());
  AppendRaw(text, time.GetMinute());
  AppendRaw(text, time.GetSecond());
  AppendRaw(text, time.GetMicroSeconds());
}

void AppendChar16(std::string& text, const TCIMValue& value) {
  std::string digits;
  try {
    digits = value.ToString(10);
  } catch (const TQDAException&) {
    // A value that holds a null character; its text is the only road to that fact.
  }
  AppendString(text, digits);
}

struct TCollectBindings {
  std::map<std::string, std::string>* found;

  bool operator()(const std::pair<std::string, TCIMValue>& binding) const {
    std::string value;
    AppendKeyText(value, binding.second);
    found->insert(std::make_pair(FoldCIMName(binding.first), value));
    return true;
  }
};

void AppendReference(std::string& text, const TCIMReference& reference) {
  std::map<std::string, std::string> bindings;
  const TCollectBindings collect = {&bindings};
  reference.EnumerateKeyBindings(collect);
  AppendRaw(text, reference.GetClass().get());
  AppendRaw(text, bindings.size());
  for (std::map<std::string, std::string>::const_iterator at = bindings.begin();
       at != bindings.end(); ++at) {
    AppendString(text, at->first);
    text += at->second;
  }
}

void AppendScalar(std::string& text, const TCIMValue& value) {
  switch (value.GetType()) {
    case TType::kCIMTypeBoolean:
      return AppendRaw(text, value.operator bool());
    case TType::kCIMTypeUint8:
      return AppendRaw(text, value.operator unsigned char());
    case TType::kCIMTypeSint8:
      return AppendRaw(text, value.operator signed char());
    case TType::kCIMTypeUint16:
      return AppendRaw(text, value.operator unsigned short());
    case TType::kCIMTypeSint16:
      return AppendRaw(text, value.operator short());
    case TType::kCIMTypeUint32:
      return AppendRaw(text, value.operator unsigned int());
    case TType::kCIMTypeSint32:
      return AppendRaw(text, value.operator int());
    case TType::kCIMTypeUint64:
      return AppendRaw(text, value.operator unsigned long long());
    case TType::kCIMTypeSint64:
      return AppendRaw(text, value.operator long long());
    case TType::kCIMTypeReal32:
      return AppendReal(text, value.operator float());
    case TType::kCIMTypeReal64:
      return AppendReal(text, value.operator double());
    case TType::kCIMTypeChar16:
      return AppendChar16(text, value);
    case TType::kCIMTypeString:
      return AppendString(text, value.operator std::string());
    case TType::kCIMTypeDateTime:
      return AppendDateTime(text, value.operator TCIMDateTime());
    case TType::kCIMTypeReference:
      return AppendReference(text, value.operator TCIMReference());
    default:
      return;
  }
}

}  // namespace

void AppendKeyText(std::string& text, const TCIMValue& value) {
  text += static_cast<char>(ElementType(value));
  if (value.IsNull()) {
    text += kNullMark;
    return;
  }
  text += value.IsArray() ? 'a' : 's';
  if (!value.IsArray()) {
    AppendScalar(text, value);
    return;
  }
  const std::vector<TCIMValue>& elements = value;
  AppendRaw(text, elements.size());
  for (std::size_t at = 0; at < elements.size(); ++at) {
    AppendKeyText(text, elements[at]);
  }
}

bool SameKeyText(const TCIMValue& left, const TCIMValue& right) {
  std::string leftText;
  std::string rightText;
  AppendKeyText(leftText, left);
  AppendKeyText(rightText, right);
  return leftText == rightText;
}

std::uint64_t HashKeyText(const std::string& text) {
  const char* bytes = text.data();
  const std::size_t size = text.size();
  std::uint64_t hash = size;
  std::size_t at = 0;
  for (; at + 8 <= size; at += 8) {
    hash = Mix(hash, LoadWord(bytes + at));
  }
  return Finish(Mix(hash, LoadShort(bytes + at, size - at)));
}

}  // namespace NZRVQDA20
