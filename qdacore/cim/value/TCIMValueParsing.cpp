#include <locale>
#include <sstream>

#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMReference.h>
#include <qdacore/cim/value/TCIMValue.h>
#include <qdacore/cim/value/internal/NumberExtraction.h>
#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

typedef TCIMValue::TCIMType TType;

namespace {

// Real numbers are rare in keys, so the stream itself reads them; the classic locale, so that a
// host's own locale does not decide what a path means.
template <class Real>
Real ExtractReal(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  Real number = 0;
  stream >> number;
  return number;
}

}  // namespace

TCIMValue::TCIMValue(TCIMType type, std::string& text, boost::shared_ptr<ICIMNamespace> ns)
    : TCIMValue() {
  switch (type) {
    case TType::kCIMTypeBoolean:
      Set(ExtractBoolean(text));
      break;
    case TType::kCIMTypeUint8:
      // Read as a wider number, of which the low 8 bits are kept: there is no range check.
      Set(static_cast<unsigned char>(ExtractUnsigned<unsigned int>(text)));
      break;
    case TType::kCIMTypeSint8:
      Set(static_cast<signed char>(ExtractSigned<int>(text)));
      break;
    case TType::kCIMTypeUint16:
      Set(ExtractUnsigned<unsigned short>(text));
      break;
    case TType::kCIMTypeSint16:
      Set(ExtractSigned<short>(text));
      break;
    case TType::kCIMTypeUint32:
      Set(ExtractUnsigned<unsigned int>(text));
      break;
    case TType::kCIMTypeSint32:
      Set(ExtractSigned<int>(text));
      break;
    case TType::kCIMTypeUint64:
      Set(ExtractUnsigned<unsigned long long>(text));
      break;
    case TType::kCIMTypeSint64:
      Set(ExtractSigned<long long>(text));
      break;
    case TType::kCIMTypeReal32:
      Set(ExtractReal<float>(text));
      break;
    case TType::kCIMTypeReal64:
      Set(ExtractReal<double>(text));
      break;
    case TType::kCIMTypeChar16:
      // A settled oddity: what is read as char16 is kept as a string.
    case TType::kCIMTypeString:
      Set(text);
      break;
    case TType::kCIMTypeDateTime:
      Set(TCIMDateTime(text));
      break;
    case TType::kCIMTypeReference: {
      TCIMReference reference(ns, text, std::map<std::string, TCIMValue>());
      Set(reference);
      break;
    }
    default:
      Throw(TQDAStatusCode::kQDAStatusTypeMismatch);
  }
}

}  // namespace NZRVQDA20
