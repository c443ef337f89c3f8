// TCIMChar16Impl: the body behind TCIMChar16. It never changes once made.

#ifndef QDACORE_CIM_VALUE_TCIMCHAR16IMPL_H
#define QDACORE_CIM_VALUE_TCIMCHAR16IMPL_H

#include <cstdint>

namespace NZRVQDA20 {

class TCIMChar16Impl {
 public:
  TCIMChar16Impl(bool isNull, std::uint16_t value) : fIsNull(isNull), fValue(value) {}

  bool IsNull() const { return fIsNull != 0; }
  std::uint16_t GetValue() const { return fValue; }

 private:
  std::uint8_t fIsNull;
  std::uint16_t fValue;
};

}  // namespace NZRVQDA20

#endif
