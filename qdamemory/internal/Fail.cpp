#include <qdamemory/internal/Fail.h>

#include <qdacore/frame/TQDAException.h>

namespace NZRVQDA20 {

void Fail(TQDAStatusCode::EQDAStatusCode status) { throw TQDAException(status); }

}  // namespace NZRVQDA20
