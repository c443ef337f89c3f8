#include <qdacore/cim/value/internal/LocalTimeBase.h>

#include <qdacore/cim/value/internal/CivilTime.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/host/Clock.h>

namespace NZRVQDA20 {

namespace {

// Wider than any time zone's offset.
const std::int64_t kBorder = 30 * 86400;

}  // namespace

LocalTimeBase::LocalTimeBase(const TCIMDateTimeImpl& fields, std::int64_t minute)
    : fFields(fields),
      // A day beyond 31 bits is negative, as it is to the C runtime.
      fCivilSecond(
          CivilSecond(CivilDay(fields.fYear, fields.fMonth, static_cast<std::int32_t>(fields.fDay)),
                      fields.fHour, minute, fields.fSecond)) {}

bool LocalTimeBase::IsFarFromLimits() const {
  return fCivilSecond >= kBorder && fCivilSecond <= host::kLastSecond - kBorder;
}

bool LocalTimeBase::IsFirstDay() const {
  return fFields.fYear == 1970 && fFields.fMonth == 1 && fFields.fDay == 1;
}

bool LocalTimeBase::IsValid() const {
  return IsFarFromLimits() || IsFirstDay() ||
         host::HostClock().SecondFromStandardTime(fCivilSecond) != -1;
}

std::int64_t LocalTimeBase::Seconds() const {
  const std::int64_t second = host::HostClock().SecondFromStandardTime(fCivilSecond);
  if (second != -1) {
    return second;
  }
  if (!IsFirstDay()) {
    Throw(TQDAStatusCode::kQDAStatusInvalidDateTime);
  }
  return 0;
}

bool LocalTimeBase::Equal(const LocalTimeBase& left, const LocalTimeBase& right) {
  if (left.IsFarFromLimits() && right.IsFarFromLimits()) {
    return left.fCivilSecond == right.fCivilSecond;
  }
  const std::int64_t leftSeconds = left.Seconds();
  return leftSeconds == right.Seconds();
}

bool LocalTimeBase::Less(const LocalTimeBase& left, const LocalTimeBase& right) {
  if (left.IsFarFromLimits() && right.IsFarFromLimits()) {
    return left.fCivilSecond < right.fCivilSecond;
  }
  const std::int64_t leftSeconds = left.Seconds();
  return leftSeconds < right.Seconds();
}

}  // namespace NZRVQDA20
