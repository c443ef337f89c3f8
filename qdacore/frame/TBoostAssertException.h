// TBoostAssertException: a failed assertion as text. Thrown only when the
// environment variable QDA_BOOST_ASSERT is "throwboost" (see AssertionFailed.h).
// It is no TQDAException, so a handler for that class does not see it.

#ifndef QDACORE_FRAME_TBOOSTASSERTEXCEPTION_H
#define QDACORE_FRAME_TBOOSTASSERTEXCEPTION_H

#include <exception>
#include <string>

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TBoostAssertException : public std::exception {
 public:
  TBoostAssertException(std::string message);
  TBoostAssertException(const TBoostAssertException& other);
  TBoostAssertException& operator=(const TBoostAssertException& other);

  virtual ~TBoostAssertException() noexcept;

  // The message. The characters belong to this object.
  virtual const char* what() const noexcept;

 private:
  std::string fMessage;
};

}  // namespace NZRVQDA20

#endif
