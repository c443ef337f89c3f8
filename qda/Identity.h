// A machine's identity, asked of a namespace.

#ifndef QDA_IDENTITY_H
#define QDA_IDENTITY_H

#include <optional>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/frame/TQDAStatusCode.h>

namespace NZRVQDA20 {
class ICIMNamespace;
}

namespace qda {

// One answer, or the status of the question that had none.
template <class T>
struct Fact {
  std::optional<T> value;
  NZRVQDA20::TQDAStatusCode::EQDAStatusCode status = NZRVQDA20::TQDAStatusCode::kQDAStatusOK;

  // The namespace simply does not know it: there is no such instance, or the value is null.
  bool IsUnknown() const {
    return status == NZRVQDA20::TQDAStatusCode::kQDAStatusNotFound ||
           status == NZRVQDA20::TQDAStatusCode::kQDAStatusValueIsNULL;
  }
};

struct Identity {
  Fact<std::string> machineTypeModel;
  Fact<std::string> machineType;
  Fact<std::string> modelNumber;
  Fact<std::string> serialNumber;
  Fact<std::string> productName;
  Fact<std::string> systemName;
  Fact<std::string> operatingSystemName;
  Fact<std::string> operatingSystemVersion;
  Fact<unsigned short> operatingSystemType;
};

// Asks everything there is to ask. Throws nothing of the library's.
Identity AskIdentity(boost::shared_ptr<NZRVQDA20::ICIMNamespace> ns);

}  // namespace qda

#endif
