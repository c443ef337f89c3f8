// std::cerr, without its header: that would give every source that includes it static data of its
// own. Defined with the other static data.

#ifndef QDACORE_FRAME_INTERNAL_STANDARDERROR_H
#define QDACORE_FRAME_INTERNAL_STANDARDERROR_H

#include <iosfwd>

namespace NZRVQDA20 {

std::ostream& StandardError();

}  // namespace NZRVQDA20

#endif
