#include <qda/Identity.h>

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>
#include <qdacore/identity/TCIMSchemaHelper.h>

namespace qda {

using boost::shared_ptr;
using NZRVQDA20::ICIMNamespace;
using NZRVQDA20::TCIMSchemaHelper;
using NZRVQDA20::TQDAException;

namespace {

template <class T>
Fact<T> Ask(T (*query)(shared_ptr<ICIMNamespace>), const shared_ptr<ICIMNamespace>& ns) {
  Fact<T> fact;
  try {
    fact.value = query(ns);
  } catch (const TQDAException& failure) {
    fact.status = failure.GetStatus().GetStatusCode();
  }
  return fact;
}

}  // namespace

Identity AskIdentity(shared_ptr<ICIMNamespace> ns) {
  Identity identity;
  identity.machineTypeModel = Ask(TCIMSchemaHelper::GetMTM, ns);
  identity.machineType = Ask(TCIMSchemaHelper::GetMachineType, ns);
  identity.modelNumber = Ask(TCIMSchemaHelper::GetModelNumber, ns);
  identity.serialNumber = Ask(TCIMSchemaHelper::GetSerialNumber, ns);
  identity.productName = Ask(TCIMSchemaHelper::GetSystemProductName, ns);
  identity.systemName = Ask(TCIMSchemaHelper::GetSystemName, ns);
  identity.operatingSystemName = Ask(TCIMSchemaHelper::GetOperatingSystemName, ns);
  identity.operatingSystemVersion = Ask(TCIMSchemaHelper::GetOperatingSystemVersion, ns);
  identity.operatingSystemType = Ask(TCIMSchemaHelper::GetOperatingSystemType, ns);
  return identity;
}

}  // namespace qda
