#include <cctype>
#include <ostream>

#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

namespace {

// By type number, from 1 on.
const char* const kSpellings[] = {"boolean", "uint8",  "sint8",  "uint16",   "sint16",
                                  "uint32",  "sint32", "uint64", "sint64",   "real32",
                                  "real64",  "char16", "string", "datetime", "reference"};

}  // namespace

TCIMValue::TCIMType::TCIMType(std::string text) : fType(kCIMTypeNone) {
  for (char& character : text) {
    character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  }
  int number = kCIMTypeBoolean;
  for (const char* spelling : kSpellings) {
    if (text == spelling) {
      fType = static_cast<ECIMType>(number);
      return;
    }
    ++number;
  }
}

std::string TCIMValue::TCIMType::ToString() const {
  // Only the element type is spelled; an array shows no mark, on purpose.
  const int element = fType & ~kCIMTypeArrayFlag;
  if (element < kCIMTypeBoolean || element > kCIMTypeReference) {
    Throw(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
  return kSpellings[element - kCIMTypeBoolean];
}

std::ostream& operator<<(std::ostream& stream, const TCIMValue::TCIMType& type) {
  return stream << type.ToString();
}

}  // namespace NZRVQDA20
