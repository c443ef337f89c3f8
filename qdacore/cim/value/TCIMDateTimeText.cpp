// The two texts of a date-time: the 25-character form, in and out, and the one for people.

#include <cstddef>

#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/cim/value/TCIMDateTimeImpl.h>
#include <qdacore/frame/internal/Throw.h>

namespace NZRVQDA20 {

namespace {

const std::size_t kLength = 25;
const std::size_t kPointAt = 14;
const std::size_t kKindAt = 21;

[[noreturn]] void Invalid() { Throw(TQDAStatusCode::kQDAStatusInvalidDateTime); }

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

void RequireForm(const std::string& text) {
  if (text.size() != kLength || text[kPointAt] != '.') {
    Invalid();
  }
  for (std::size_t at = 0; at < kLength; ++at) {
    if (at != kPointAt && at != kKindAt && !IsDigit(text[at])) {
      Invalid();
    }
  }
}

unsigned Number(const std::string& text, std::size_t at, std::size_t digits) {
  unsigned number = 0;
  for (std::size_t end = at + digits; at < end; ++at) {
    number = number * 10 + static_cast<unsigned>(text[at] - '0');
  }
  return number;
}

unsigned short Short(const std::string& text, std::size_t at, std::size_t digits) {
  return static_cast<unsigned short>(Number(text, at, digits));
}

// Writes a number filled with zeros to `width`, which is a minimum, and returns the end.
char* PutNumber(char* end, std::uint32_t number, int width) {
  char digits[10];
  int count = 0;
  do {
    digits[count++] = static_cast<char>('0' + number % 10);
    number /= 10;
  } while (number != 0);
  for (; width > count; --width) {
    *end++ = '0';
  }
  while (count > 0) {
    *end++ = digits[--count];
  }
  return end;
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
  char* end = PutNumber(buffer, fields.fMonth, 2);
  end = PutNumber(PutCharacter(end, '/'), fields.fDay, 2);
  end = PutNumber(PutCharacter(end, '/'), fields.fYear, 4);
  end = PutNumber(PutCharacter(end, ' '), fields.fHour, 2);
  end = PutNumber(PutCharacter(end, ':'), fields.fMinute, 2);
  end = PutNumber(PutCharacter(end, ':'), fields.fSecond, 2);
  return std::string(buffer, end);
}

}  // namespace

void TCIMDateTime::Set(const std::string& text) {
  RequireForm(text);
  const unsigned short hour = Short(text, 8, 2);
  const unsigned short minute = Short(text, 10, 2);
  const unsigned short second = Short(text, 12, 2);
  // Kept modulo 65536, and so are the days of an interval; both are meant.
  const unsigned short microseconds = Short(text, 15, 6);
  const unsigned offset = Number(text, kKindAt + 1, 3);

  switch (text[kKindAt]) {
    case ':':
      if (offset != 0) {
        Invalid();
      }
      Set(Short(text, 0, 8), hour, minute, second, microseconds);
      break;
    case '+':
    case '-':
      Set(Short(text, 0, 4), Short(text, 4, 2), Number(text, 6, 2), hour, minute, second,
          microseconds,
          static_cast<short>(text[kKindAt] == '-' ? -static_cast<int>(offset)
                                                  : static_cast<int>(offset)));
      break;
    default:
      Invalid();
  }
}

std::string TCIMDateTime::ToString() const {
  const TCIMDateTimeImpl& fields = *fBody;
  if (fields.fIsNull) {
    Invalid();
  }
  char buffer[64];
  char* end = buffer;
  if (fields.fIsInterval) {
    end = PutNumber(end, fields.fDay, 8);
  } else {
    end = PutNumber(end, fields.fYear, 4);
    end = PutNumber(end, fields.fMonth, 2);
    end = PutNumber(end, fields.fDay, 2);
  }
  end = PutNumber(end, fields.fHour, 2);
  end = PutNumber(end, fields.fMinute, 2);
  end = PutNumber(end, fields.fSecond, 2);
  end = PutNumber(PutCharacter(end, '.'), fields.fMicroSeconds, 6);
  if (fields.fIsInterval) {
    end = PutNumber(PutCharacter(end, ':'), 0, 3);
  } else {
    const int offset = fields.fUTCOffset;
    end = PutCharacter(end, offset < 0 ? '-' : '+');
    end = PutNumber(end, static_cast<std::uint32_t>(offset < 0 ? -offset : offset), 3);
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
