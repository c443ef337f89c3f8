#include <qdacore/frame/TRootObject.h>

namespace NZRVQDA20 {

TRootObject& TRootObject::operator=(const TRootObject&) { return *this; }

}  // namespace NZRVQDA20
