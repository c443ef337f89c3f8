// Comparison, sums and differences of date-times.

#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMDateTimeImpl.h>
#include <qdacore/cim/value/internal/LocalTimeBase.h>
#include <qdacore/frame/internal/Throw.h>
#include <qdacore/host/Clock.h>

namespace NZRVQDA20 {

namespace {

const std::int64_t kMicro = 1000000;

[[noreturn]] void Invalid() { Throw(TQDAStatusCode::kQDAStatusInvalidDateTime); }

std::int64_t Absolute(std::int64_t number) { return number < 0 ? -number : number; }

void RequireBothSet(const TCIMDateTimeImpl& left, const TCIMDateTimeImpl& right) {
  if (left.fIsNull || right.fIsNull) {
    Invalid();
  }
}

void RequireOneKind(const TCIMDateTimeImpl& left, const TCIMDateTimeImpl& right) {
  RequireBothSet(left, right);
  if (left.fIsInterval != right.fIsInterval) {
    Invalid();
  }
}

// The offset taken off, so that one instant written at two offsets is equal.
LocalTimeBase UtcBase(const TCIMDateTimeImpl& fields) {
  return LocalTimeBase(fields, static_cast<std::int64_t>(fields.fMinute) - fields.fUTCOffset);
}

// In 32 bits, which wrap from day 49711 on; that is meant.
std::uint32_t IntervalSeconds(const TCIMDateTimeImpl& fields) {
  return ((fields.fDay * 24u + fields.fHour) * 60u + fields.fMinute) * 60u + fields.fSecond;
}

std::int64_t IntervalTotal(const TCIMDateTimeImpl& fields) {
  return static_cast<std::int64_t>(IntervalSeconds(fields)) * kMicro + fields.fMicroSeconds;
}

TCIMDateTime IntervalFromTotal(std::int64_t total) {
  const std::int64_t seconds = total / kMicro;
  const std::int64_t minutes = seconds / 60;
  const std::int64_t hours = minutes / 60;
  return TCIMDateTime(
      static_cast<unsigned int>(hours / 24), static_cast<unsigned short>(hours % 24),
      static_cast<unsigned short>(minutes % 60), static_cast<unsigned short>(seconds % 60),
      static_cast<unsigned int>(total % kMicro));
}

// A timestamp's fields as they stand; its offset has no part, for the result keeps it.
std::int64_t FieldSeconds(const TCIMDateTimeImpl& timestamp) {
  return LocalTimeBase(timestamp, timestamp.fMinute).Seconds();
}

TCIMDateTime TimestampFromTotal(std::int64_t total, std::int16_t utcOffset) {
  std::int64_t seconds = Absolute(total / kMicro);
  host::LocalReading reading;
  if (!host::HostClock().ReadLocal(seconds, reading)) {
    Invalid();
  }
  if (reading.daylight) {
    // The time base knew no daylight saving, so the hour that it puts in goes out again.
    seconds -= 3600;
    if (!host::HostClock().ReadLocal(seconds, reading)) {
      Invalid();
    }
  }
  return TCIMDateTime(
      static_cast<unsigned short>(reading.year), static_cast<unsigned short>(reading.month),
      static_cast<unsigned int>(reading.day), static_cast<unsigned short>(reading.hour),
      static_cast<unsigned short>(reading.minute), static_cast<unsigned short>(reading.second),
      static_cast<unsigned int>(Absolute(total % kMicro)), utcOffset);
}

TCIMDateTime TimestampPlusInterval(const TCIMDateTimeImpl& timestamp,
                                   const TCIMDateTimeImpl& interval) {
  const std::int64_t total =
      FieldSeconds(timestamp) * kMicro + timestamp.fMicroSeconds + IntervalTotal(interval);
  return TimestampFromTotal(total, timestamp.fUTCOffset);
}

// The two microsecond counts stand apart because one caller exchanges them.
TCIMDateTime TimestampMinusInterval(const TCIMDateTimeImpl& timestamp,
                                    std::uint32_t timestampMicroSeconds,
                                    const TCIMDateTimeImpl& interval,
                                    std::uint32_t intervalMicroSeconds) {
  const std::int64_t from = FieldSeconds(timestamp) * kMicro + timestampMicroSeconds;
  const std::int64_t less =
      static_cast<std::int64_t>(IntervalSeconds(interval)) * kMicro + intervalMicroSeconds;
  return TimestampFromTotal(Absolute(from - less), timestamp.fUTCOffset);
}

std::int64_t UtcTotal(const TCIMDateTimeImpl& timestamp) {
  const std::int64_t seconds =
      FieldSeconds(timestamp) - static_cast<std::int64_t>(timestamp.fUTCOffset) * 60;
  return seconds * kMicro + timestamp.fMicroSeconds;
}

TCIMDateTime TimestampDifference(const TCIMDateTimeImpl& left, const TCIMDateTimeImpl& right) {
  // The time now is fetched and not used; that is how this path has always begun.
  static_cast<void>(host::HostClock().Now());
  const std::int64_t leftTotal = UtcTotal(left);
  return IntervalFromTotal(Absolute(leftTotal - UtcTotal(right)));
}

}  // namespace

bool TCIMDateTime::operator==(const TCIMDateTime& other) const {
  const TCIMDateTimeImpl& left = *fBody;
  const TCIMDateTimeImpl& right = *other.fBody;
  RequireOneKind(left, right);
  const bool sameSecond = left.fIsInterval ? IntervalSeconds(left) == IntervalSeconds(right)
                                           : LocalTimeBase::Equal(UtcBase(left), UtcBase(right));
  return sameSecond && left.fMicroSeconds == right.fMicroSeconds;
}

bool TCIMDateTime::operator<(const TCIMDateTime& other) const {
  const TCIMDateTimeImpl& left = *fBody;
  const TCIMDateTimeImpl& right = *other.fBody;
  RequireOneKind(left, right);
  if (left.fIsInterval) {
    const std::uint32_t leftSeconds = IntervalSeconds(left);
    const std::uint32_t rightSeconds = IntervalSeconds(right);
    return leftSeconds != rightSeconds ? leftSeconds < rightSeconds
                                       : left.fMicroSeconds < right.fMicroSeconds;
  }
  const LocalTimeBase leftBase = UtcBase(left);
  const LocalTimeBase rightBase = UtcBase(right);
  return LocalTimeBase::Equal(leftBase, rightBase) ? left.fMicroSeconds < right.fMicroSeconds
                                                   : LocalTimeBase::Less(leftBase, rightBase);
}

TCIMDateTime TCIMDateTime::operator+(const TCIMDateTime& other) const {
  const TCIMDateTimeImpl& left = *fBody;
  const TCIMDateTimeImpl& right = *other.fBody;
  RequireBothSet(left, right);
  if (left.fIsInterval && right.fIsInterval) {
    return IntervalFromTotal(IntervalTotal(left) + IntervalTotal(right));
  }
  if (!left.fIsInterval && !right.fIsInterval) {
    Invalid();
  }
  return left.fIsInterval ? TimestampPlusInterval(right, left) : TimestampPlusInterval(left, right);
}

TCIMDateTime TCIMDateTime::operator-(const TCIMDateTime& other) const {
  const TCIMDateTimeImpl& left = *fBody;
  const TCIMDateTimeImpl& right = *other.fBody;
  RequireBothSet(left, right);
  if (left.fIsInterval && right.fIsInterval) {
    return IntervalFromTotal(Absolute(IntervalTotal(left) - IntervalTotal(right)));
  }
  if (!left.fIsInterval && !right.fIsInterval) {
    return TimestampDifference(left, right);
  }
  if (left.fIsInterval) {
    // Not refused, and the two microsecond counts trade places; both are meant.
    return TimestampMinusInterval(right, left.fMicroSeconds, left, right.fMicroSeconds);
  }
  return TimestampMinusInterval(left, left.fMicroSeconds, right, right.fMicroSeconds);
}

long long TCIMDateTime::GetDifference(TCIMDateTime&, TCIMDateTime&) {
  Throw(TQDAStatusCode::kQDAStatusNotImplemented);
}

}  // namespace NZRVQDA20
