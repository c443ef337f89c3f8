#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

void Throw(TQDAStatusCode::EQDAStatusCode status) { throw TQDAException(status); }

}  // namespace NZRVQDA20
