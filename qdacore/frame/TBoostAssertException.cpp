#include <qdacore/frame/TBoostAssertException.h>

#include <utility>

namespace NZRVQDA20 {

TBoostAssertException::TBoostAssertException(std::string message) : fMessage(std::move(message)) {}

TBoostAssertException::TBoostAssertException(const TBoostAssertException& other)
    : std::exception(other), fMessage(other.fMessage) {}

TBoostAssertException& TBoostAssertException::operator=(const TBoostAssertException& other) {
  std::exception::operator=(other);
  fMessage = other.fMessage;
  return *this;
}

TBoostAssertException::~TBoostAssertException() noexcept {}

const char* TBoostAssertException::what() const noexcept { return fMessage.c_str(); }

}  // namespace NZRVQDA20
