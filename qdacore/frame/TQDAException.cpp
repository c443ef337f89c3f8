#include <qdacore/frame/TQDAException.h>

namespace NZRVQDA20 {

TQDAException::TQDAException(TQDAStatusCode status) : fStatus(status) {}

TQDAException::TQDAException(TQDAStatusCode::EQDAStatusCode status) : fStatus(status) {}

TQDAException::TQDAException(const TQDAException& other)
    : std::exception(other), fStatus(other.fStatus) {}

TQDAException& TQDAException::operator=(const TQDAException& other) {
  std::exception::operator=(other);
  fStatus = other.fStatus;
  return *this;
}

TQDAException::~TQDAException() noexcept {}

const char* TQDAException::what() const noexcept { return fStatus.TranslateStatusCode().c_str(); }

TQDAStatusCode TQDAException::GetStatus() const { return fStatus; }

}  // namespace NZRVQDA20
