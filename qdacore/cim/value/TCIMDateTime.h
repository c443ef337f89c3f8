// TCIMDateTime: the CIM datetime type (DSP0004, "Datetime type"), which is two things
// in one class: a timestamp, a date and time at an offset from UTC, or an interval, a
// length of time. Which one it is decides how it is read, printed, compared and added.
//
// Text is exactly 25 characters:
//
//   timestamp  yyyymmddhhmmss.mmmmmmsutc   20240102030405.000006+060
//   interval   ddddddddhhmmss.mmmmmm:000   00000001020304.000005:000
//
// with s the sign of the offset and utc its minutes. Where this type departs from
// DSP0004, on purpose:
//   * no asterisks: every digit must be there;
//   * read from text, microseconds and the days of an interval are kept modulo 65536
//     (123456 microseconds become 57920); the constructors from numbers do not do this;
//   * the fields of a timestamp are kept as given and only have to add up to a time
//     between the start of 1970 and the end of 3000, in UTC, the fields read as local
//     standard time: 31 February is accepted and stays;
//   * the length of an interval is counted in 32 bits of seconds, which wrap from day 49711,
//     before it is compared or added.
//
// Every failure but one is TQDAException with kQDAStatusInvalidDateTime, nothing is
// logged, and a Set that failed changes nothing.
//
// Threads: distinct objects never share a body. Arithmetic, and whatever is near the ends of
// the range, reads the process's time zone.

#ifndef QDACORE_CIM_VALUE_TCIMDATETIME_H
#define QDACORE_CIM_VALUE_TCIMDATETIME_H

#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class TCIMDateTimeImpl;

class QDACORE_EXPORT TCIMDateTime {
 public:
  // Null.
  TCIMDateTime();

  // A timestamp. `utcOffset` is in minutes east of UTC.
  TCIMDateTime(unsigned short year, unsigned short month, unsigned int day, unsigned short hour,
               unsigned short minute, unsigned short second, unsigned int microseconds,
               short utcOffset);

  // An interval. Hours below 24, minutes and seconds below 60, microseconds at most
  // 999999; any number of days.
  TCIMDateTime(unsigned int days, unsigned short hours, unsigned short minutes,
               unsigned short seconds, unsigned int microseconds);

  TCIMDateTime(const std::string& text);

  // A body of its own. The precision flag is not carried: it is false in the copy.
  TCIMDateTime(const TCIMDateTime& other);
  TCIMDateTime& operator=(const TCIMDateTime& other);
  ~TCIMDateTime();

  // As the constructors. An interval set over a timestamp keeps year, month and offset.
  void Set(unsigned short year, unsigned short month, unsigned int day, unsigned short hour,
           unsigned short minute, unsigned short second, unsigned int microseconds,
           short utcOffset);
  void Set(unsigned int days, unsigned short hours, unsigned short minutes, unsigned short seconds,
           unsigned int microseconds);
  void Set(const std::string& text);

  // The stored fields, with no check of any kind.
  unsigned short GetYear() const;
  unsigned short GetMonth() const;
  // Day of the month, or the days of an interval.
  unsigned int GetDay() const;
  unsigned short GetHour() const;
  unsigned short GetMinute() const;
  unsigned short GetSecond() const;
  unsigned int GetMicroSeconds() const;
  // Minutes east of UTC as 16 bits without a sign: -60 reads 65476.
  unsigned short GetUTCOffset() const;
  bool IsInterval() const;
  bool IsNull() const;
  // A bit that is stored and has no effect.
  bool GetPrecision() const;
  void SetPrecision(bool precision);

  // Leaves no body at all: after this, anything but destruction and assignment to the
  // object is a failed assertion, IsNull included. For a plain null assign
  // TCIMDateTime().
  void Clear();

  // The 25-character form; an interval of more than 99999999 days is longer and cannot be
  // read back. Throws when null.
  std::string ToString() const;

  // For people: "01/02/2024 03:04:05", or "1 day 2 hours 3 minutes ", each part ending in
  // a blank and parts of 0 left out. Throws when null.
  std::string ToUIString() const;

  // The same instant at two offsets is equal. Throw when either is null and when one is a
  // timestamp and the other an interval.
  bool operator==(const TCIMDateTime& other) const;
  bool operator<(const TCIMDateTime& other) const;

  // timestamp + interval, interval + timestamp: a timestamp at the timestamp's offset.
  // interval + interval: an interval. Two timestamps cannot be added.
  TCIMDateTime operator+(const TCIMDateTime& other) const;

  // Two of a kind: an interval, the absolute difference. timestamp - interval: a timestamp.
  // interval - timestamp is taken as timestamp - interval with the two microsecond fields
  // exchanged; that is meant.
  TCIMDateTime operator-(const TCIMDateTime& other) const;

  // Always throws kQDAStatusNotImplemented.
  static long long GetDifference(TCIMDateTime& left, TCIMDateTime& right);

 private:
  // Shares the body, for the life of the longest holder.
  boost::shared_ptr<TCIMDateTimeImpl> GetBody() const;

  void SetBody(TCIMDateTimeImpl* body);
  void ReleaseBody();

  // Without a count, because the handle alone owns the body, until GetBody shares it: two atomic
  // operations would be most of the cost of a date-time.
  mutable boost::shared_ptr<TCIMDateTimeImpl> fBody;
};

}  // namespace NZRVQDA20

#endif
