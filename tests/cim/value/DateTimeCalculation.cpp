#include <tests/cim/value/DateTimeCalculation.h>

#include <stdexcept>

#include <qdacore/frame/TQDAException.h>

namespace cim_test {

using namespace NZRVQDA20;

namespace {

unsigned Number(const std::string& text, std::size_t at, std::size_t digits) {
  return static_cast<unsigned>(std::stoul(text.substr(at, digits)));
}

unsigned short Short(const std::string& text, std::size_t at, std::size_t digits) {
  return static_cast<unsigned short>(Number(text, at, digits));
}

std::string CalculateOrThrow(const TCIMDateTime& left, const std::string& operation,
                             const std::string& right) {
  if (operation == "=") {
    return left.ToString();
  }
  const TCIMDateTime other = MakeDateTime(right);
  if (operation == "+") {
    return (left + other).ToString();
  }
  if (operation == "-") {
    return (left - other).ToString();
  }
  if (operation == "==") {
    return left == other ? "true" : "false";
  }
  if (operation == "<") {
    return left < other ? "true" : "false";
  }
  throw std::invalid_argument(operation);
}

}  // namespace

TCIMDateTime MakeDateTime(const std::string& text) {
  if (text.empty()) {
    return TCIMDateTime();
  }
  const unsigned short hour = Short(text, 8, 2);
  const unsigned short minute = Short(text, 10, 2);
  const unsigned short second = Short(text, 12, 2);
  const unsigned micro = Number(text, 15, 6);
  if (text.at(21) == ':') {
    return TCIMDateTime(Number(text, 0, 8), hour, minute, second, micro);
  }
  const int offset = static_cast<int>(Number(text, 22, 3)) * (text.at(21) == '-' ? -1 : 1);
  return TCIMDateTime(Short(text, 0, 4), Short(text, 4, 2), Number(text, 6, 2), hour, minute,
                      second, micro, static_cast<short>(offset));
}

std::string Calculate(const std::string& left, const std::string& operation,
                      const std::string& right) {
  try {
    return CalculateOrThrow(MakeDateTime(left), operation, right);
  } catch (const TQDAException& failure) {
    return failure.what();
  }
}

}  // namespace cim_test
