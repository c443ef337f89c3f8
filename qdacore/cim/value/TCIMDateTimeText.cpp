// The two texts of a date-time: the 25-character form, in and out, and the one for people.

#include <algorithm>
#include <cstddef>
#include <cstring>

#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMDateTimeImpl.h>
#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

namespace {

const std::size_t kLength = 25;
const std::size_t kPointAt = 14;
const std::size_t kKindAt = 21;

[[noreturn]] void Invalid() { Throw(TQDAStatusCode::kQDAStatusInvalidDateTime); }

// Reads groups of digits and remembers whether any character was none.
class DigitReader {
 public:
  DigitReader(const std::string& text) : fText(text), fBad(0) {}

  unsigned Number(std::size_t at, std::size_t digits) {
    unsigned number = 0;
    for (const std::size_t end = at + digits; at < end; ++at) {
      const unsigned digit = static_cast<unsigned char>(fText[at]) - static_cast<unsigned>('0');
      fBad |= digit > 9;
      number = number * 10 + digit;
    }
    return number;
  }

  unsigned short Short(std::size_t at, std::size_t digits) {
    return static_cast<unsigned short>(Number(at, digits));
  }

  bool AllWereDigits() const { return fBad == 0; }

 private:
  const std::string& fText;
  unsigned fBad;
};

const char kPairs[] =
    "0001020304050607080910111213141516171819202122232425262728293031323334353637383940414243444546"
    "4748"
    "4950515253545556575859606162636465666768697071727374757677787980818283848586878889909192939495"
    "969798"
    "99";

// Writes a number filled with zeros to `Width` digits, which is a minimum, and returns the end.
template <int Width>
char* PutNumber(char* end, std::uint32_t number) {
  std::uint32_t rest = number;
  int at = Width;
  for (; at >= 2; rest /= 100) {
    at -= 2;
    std::memcpy(end + at, kPairs + rest % 100 * 2, 2);
  }
  if (at == 1) {
    end[0] = static_cast<char>('0' + rest % 10);
    rest /= 10;
  }
  if (rest == 0) {
    return end + Width;
  }
  const std::string wide = std::to_string(number);
  return std::copy(wide.begin(), wide.end(), end);
}

char* PutCharacter(char* end, char character) {
  *end++ = character;
  return end;
}

void AddPart(std::string& text, std::uint32_t number, const char* unit) {
  if (number == 0) {
    return;
  }
  text += std::to_string(number);
  text += ' ';
  text += unit;
  if (number != 1) {
    text += 's';
  }
  text += ' ';
}

std::string IntervalForPeople(const TCIMDateTimeImpl& fields) {
  std::string text;
  AddPart(text, fields.fDay, "day");
  AddPart(text, fields.fHour, "hour");
  AddPart(text, fields.fMinute, "minute");
  AddPart(text, fields.fSecond, "second");
  AddPart(text, fields.fMicroSeconds / 1000, "millisecond");
  AddPart(text, fields.fMicroSeconds % 1000, "microsecond");
  return text;
}

std::string TimestampForPeople(const TCIMDateTimeImpl& fields) {
  char buffer[64];
  char* end = PutNumber<2>(buffer, fields.fMonth);
  end = PutNumber<2>(PutCharacter(end, '/'), fields.fDay);
  end = PutNumber<4>(PutCharacter(end, '/'), fields.fYear);
  end = PutNumber<2>(PutCharacter(end, ' '), fields.fHour);
  end = PutNumber<2>(PutCharacter(end, ':'), fields.fMinute);
  end = PutNumber<2>(PutCharacter(end, ':'), fields.fSecond);
  return std::string(buffer, end);
}

}  // namespace

void TCIMDateTime::Set(const std::string& text) {
  // Without a body even a bad text is a failed assertion.
  static_cast<void>(*fBody);
  if (text.size() != kLength || text[kPointAt] != '.') {
    Invalid();
  }
  DigitReader digits(text);
  const char kind = text[kKindAt];
  const unsigned offset = digits.Number(kKindAt + 1, 3);
  const unsigned short hour = digits.Short(8, 2);
  const unsigned short minute = digits.Short(10, 2);
  const unsigned short second = digits.Short(12, 2);
  // Kept modulo 65536, and so are the days of an interval; both are meant.
  const unsigned short microseconds = digits.Short(15, 6);

  if (kind == ':') {
    const unsigned short days = digits.Short(0, 8);
    if (!digits.AllWereDigits() || offset != 0) {
      Invalid();
    }
    Set(days, hour, minute, second, microseconds);
    return;
  }
  const unsigned short year = digits.Short(0, 4);
  const unsigned short month = digits.Short(4, 2);
  const unsigned day = digits.Number(6, 2);
  if (!digits.AllWereDigits() || (kind != '+' && kind != '-')) {
    Invalid();
  }
  const int minutesEast = kind == '-' ? -static_cast<int>(offset) : static_cast<int>(offset);
  Set(year, month, day, hour, minute, second, microseconds, static_cast<short>(minutesEast));
}

std::string TCIMDateTime::ToString() const {
  const TCIMDateTimeImpl& fields = *fBody;
  if (fields.fIsNull) {
    Invalid();
  }
  char buffer[64];
  char* end = buffer;
  if (fields.fIsInterval) {
    end = PutNumber<8>(end, fields.fDay);
  } else {
    end = PutNumber<4>(end, fields.fYear);
    end = PutNumber<2>(end, fields.fMonth);
    end = PutNumber<2>(end, fields.fDay);
  }
  end = PutNumber<2>(end, fields.fHour);
  end = PutNumber<2>(end, fields.fMinute);
  end = PutNumber<2>(end, fields.fSecond);
  end = PutNumber<6>(PutCharacter(end, '.'), fields.fMicroSeconds);
  if (fields.fIsInterval) {
    end = PutNumber<3>(PutCharacter(end, ':'), 0);
  } else {
    const int offset = fields.fUTCOffset;
    end = PutCharacter(end, offset < 0 ? '-' : '+');
    end = PutNumber<3>(end, static_cast<std::uint32_t>(offset < 0 ? -offset : offset));
  }
  return std::string(buffer, end);
}

std::string TCIMDateTime::ToUIString() const {
  const TCIMDateTimeImpl& fields = *fBody;
  if (fields.fIsNull) {
    Invalid();
  }
  return fields.fIsInterval ? IntervalForPeople(fields) : TimestampForPeople(fields);
}

}  // namespace NZRVQDA20
