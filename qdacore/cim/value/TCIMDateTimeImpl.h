// TCIMDateTimeImpl: the fields behind TCIMDateTime, kept as given.

#ifndef QDACORE_CIM_VALUE_TCIMDATETIMEIMPL_H
#define QDACORE_CIM_VALUE_TCIMDATETIMEIMPL_H

#include <cstdint>

namespace NZRVQDA20 {

class TCIMDateTimeImpl {
 public:
  std::uint8_t fIsNull = 1;
  std::uint16_t fYear = 0;
  std::uint16_t fMonth = 0;
  std::uint32_t fDay = 0;
  std::uint16_t fHour = 0;
  std::uint16_t fMinute = 0;
  std::uint16_t fSecond = 0;
  std::uint32_t fMicroSeconds = 0;
  std::int16_t fUTCOffset = 0;
  std::uint8_t fIsInterval = 0;
  std::uint8_t fPrecision = 0;
};

}  // namespace NZRVQDA20

#endif
