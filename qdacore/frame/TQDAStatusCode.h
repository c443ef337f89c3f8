// TQDAStatusCode: the one word in which every failure of the library is told.
//
// A status is one signed 32-bit number from 0 (kQDAStatusOK) to 43
// (fdrStatusEnd). It is passed by value across every module boundary, so its
// form is settled: one member, no base, no virtual operation. Failures are
// thrown as a TQDAException that carries a status; a status is returned only by
// TLogger::Initialize and by the functions of <smbios/smbios.h>.
//
// Everything but the translation into a name is inline, so that a module that
// only hands statuses on need not link the core library.

#ifndef QDACORE_FRAME_TQDASTATUSCODE_H
#define QDACORE_FRAME_TQDASTATUSCODE_H

#include <cstdint>
#include <string>

#include <qdacore/Export.h>

namespace NZRVQDA20 {

class TQDAStatusCode {
 public:
  enum EQDAStatusCode : std::int32_t {
#define QDACORE_STATUS(value, name) name = value,
#include <qdacore/frame/StatusNames.inc>
#undef QDACORE_STATUS
  };

  // There is no default status: a status always says something.
  TQDAStatusCode(EQDAStatusCode code) : fCode(code) {}
  TQDAStatusCode(const TQDAStatusCode& other) : fCode(other.fCode) {}

  // Both assignments return a copy, not a reference.
  TQDAStatusCode operator=(EQDAStatusCode code) {
    fCode = code;
    return *this;
  }
  TQDAStatusCode operator=(const TQDAStatusCode& other) {
    fCode = other.fCode;
    return *this;
  }

  // Not const, as plug-ins know it.
  EQDAStatusCode GetStatusCode() { return fCode; }

  // The enumerator's own name, such as "kQDAStatusNotFound". The text belongs to
  // the library and lives as long as it is loaded. A number outside 0 to 43 is
  // the caller's mistake; it reads as the closing entry, "fdrStatusEnd".
  // Never fails; any thread.
  QDACORE_EXPORT const std::string& TranslateStatusCode() const;

 private:
  // Built at load, in value order, and read-only from then on.
  static const std::string fgStatusNames[];

  EQDAStatusCode fCode;
};

}  // namespace NZRVQDA20

#endif
