// The machine's serial number.

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/identity/internal/SingleInstance.h>

namespace NZRVQDA20 {

std::string TCIMSchemaHelper::GetRawSerialNumberString(boost::shared_ptr<ICIMNamespace> ns) {
  return PropertyOfSingleInstance(ns, kSystemCreationClassName, "SerialNumber");
}

std::string TCIMSchemaHelper::GetSerialNumber(boost::shared_ptr<ICIMNamespace> ns) {
  std::string serialNumber = GetRawSerialNumberString(ns);
  serialNumber.erase(serialNumber.find_last_not_of(' ') + 1);
  return serialNumber;
}

std::string TCIMSchemaHelper::GetSerialNumber_vmwesxi(boost::shared_ptr<ICIMNamespace> ns) {
  return FirstPropertyText(ns, "OMC_Chassis", "SerialNumber");
}

}  // namespace NZRVQDA20
