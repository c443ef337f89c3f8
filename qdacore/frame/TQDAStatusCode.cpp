#include <qdacore/frame/TQDAStatusCode.h>

namespace NZRVQDA20 {

const std::string& TQDAStatusCode::TranslateStatusCode() const {
  // No range check is promised; this one only keeps a stray number inside the table.
  const bool known = fCode >= kQDAStatusOK && fCode <= fdrStatusEnd;
  return fgStatusNames[known ? fCode : fdrStatusEnd];
}

}  // namespace NZRVQDA20
