// Texts as firmware has them: strings side by side in a block, and versions with brackets and
// dashes. No host call is in here.

#include <cstddef>
#include <cstdint>
#include <cstring>

#include <qdacore/os/TOSSpecific.h>

namespace NZRVQDA20 {

bool TOSSpecific::getBIDString(char* source, char* target, int sourceLength, int index) {
  if (sourceLength < 1 || !source || !target) {
    return false;
  }
  int number = 1;
  int start = 0;
  int end = 0;
  for (;; ++end) {
    if (end == sourceLength) {
      return false;
    }
    if (source[end] != '\0') {
      continue;
    }
    if (number == index) {
      break;
    }
    ++number;
    start = end + 1;
  }
  // The first string comes without its NUL and all others with it: callers clear the target.
  const int size = end - start + (number == 1 ? 0 : 1);
  std::memmove(target, source + start, static_cast<std::size_t>(size));
  return true;
}

bool TOSSpecific::removeNonAlpaNumeric(std::string& text) {
  const std::size_t opening = text.find('[');
  if (opening != std::string::npos) {
    text.erase(0, opening + 1);
  }
  const std::size_t closing = text.find(']');
  if (closing != std::string::npos) {
    text.erase(closing);
  }
  return true;
}

bool TOSSpecific::breakApartVersion(std::string& first, std::string& second) {
  std::size_t dash = first.find('-');
  if (dash == std::string::npos) {
    return true;
  }
  const std::size_t next = first.find('-', dash + 1);
  if (next != std::string::npos) {
    dash = next;
  }
  first.erase(0, dash + 1);
  // Nothing to cut from a text that ends before it; only one that differs from the other can.
  if (dash < second.size()) {
    second.erase(dash);
  }
  return true;
}

std::vector<std::string> TOSSpecific::multiStringTok(char* text, unsigned long long length,
                                                     char delimiter) {
  std::vector<std::string> strings;
  // As an address, which for a length below two lies before the text, and so does one that wraps
  // around: nothing ends before it then.
  const std::uintptr_t begin = reinterpret_cast<std::uintptr_t>(text);
  const std::uintptr_t endMark = begin + static_cast<std::uintptr_t>(length) - 2;
  if (!text || endMark <= begin) {
    return strings;
  }
  const char* start = text;
  const char* const mark = text + (endMark - begin);
  // The delimiter counts for the first string only, and not behind a NUL.
  const char* stop = start;
  while (stop < mark && *stop != delimiter && *stop != '\0') {
    ++stop;
  }
  if (stop < mark && *stop != delimiter) {
    return strings;
  }
  while (stop < mark) {
    strings.emplace_back(start, stop);
    start = stop + 1;
    stop =
        static_cast<const char*>(std::memchr(start, '\0', static_cast<std::size_t>(mark - start)));
    if (!stop) {
      break;
    }
  }
  return strings;
}

}  // namespace NZRVQDA20
