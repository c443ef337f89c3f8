#include <plugins/machine/SmbiosDate.h>

#include <cstddef>

#include <qdacore/frame/TQDAException.h>

namespace machine {

namespace {

// The decimal number in text[at, at + digits); false when anything there is no digit.
bool ReadNumber(std::string_view text, std::size_t at, std::size_t digits, unsigned int* number) {
  *number = 0;
  for (std::size_t i = at; i < at + digits; ++i) {
    if (text[i] < '0' || text[i] > '9') {
      return false;
    }
    *number = *number * 10 + static_cast<unsigned int>(text[i] - '0');
  }
  return true;
}

unsigned int DaysOf(unsigned int month, unsigned int year) {
  static const unsigned int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return kDays[month - 1] + (month == 2 && isLeap ? 1 : 0);
}

}  // namespace

std::optional<NZRVQDA20::TCIMDateTime> SmbiosDate(std::string_view text) {
  unsigned int month = 0;
  unsigned int day = 0;
  unsigned int year = 0;
  if ((text.size() != 10 && text.size() != 8) || text[2] != '/' || text[5] != '/' ||
      !ReadNumber(text, 0, 2, &month) || !ReadNumber(text, 3, 2, &day) ||
      !ReadNumber(text, 6, text.size() - 6, &year)) {
    return std::nullopt;
  }
  if (text.size() == 8) {
    year += 1900;
  }
  if (month < 1 || month > 12 || day < 1 || day > DaysOf(month, year)) {
    return std::nullopt;
  }
  try {
    return NZRVQDA20::TCIMDateTime(static_cast<unsigned short>(year),
                                   static_cast<unsigned short>(month), day, 0, 0, 0, 0, 0);
  } catch (const NZRVQDA20::TQDAException&) {
    // A year that the date-time type does not reach.
    return std::nullopt;
  }
}

}  // namespace machine
