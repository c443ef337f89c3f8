// TQDAException: what every failure of the library is thrown as.
//
// It carries one status and nothing else: no message, no file, no cause. What
// more there is to say is in the core log, written before the throw. Thrown and
// copied by value; catch it by reference, as TQDAException or std::exception.

#ifndef QDACORE_FRAME_TQDAEXCEPTION_H
#define QDACORE_FRAME_TQDAEXCEPTION_H

#include <exception>

#include <qdacore/Export.h>
#include <qdacore/frame/TQDAStatusCode.h>

namespace NZRVQDA20 {

class QDACORE_EXPORT TQDAException : public std::exception {
 public:
  TQDAException(TQDAStatusCode status);
  TQDAException(TQDAStatusCode::EQDAStatusCode status);
  TQDAException(const TQDAException& other);
  TQDAException& operator=(const TQDAException& other);

  virtual ~TQDAException() noexcept;

  // The enumerator's name of the status. The characters stand in the library's
  // name table, so they outlive the exception.
  virtual const char* what() const noexcept;

  TQDAStatusCode GetStatus() const;

 private:
  TQDAStatusCode fStatus;
};

}  // namespace NZRVQDA20

#endif
