// TCIMSchemaHelper: questions about a machine, answered from a CIM namespace. Each answer is
// one property of one instance, or is cut out of one. Nothing here touches the operating
// system, so the same code serves the machine it runs on and a namespace filled elsewhere.
//
// The forms that end in _vmwesxi are for a namespace that describes a VMware ESXi host. The
// caller, who knows what it is looking at, chooses; they never throw TQDAException and report
// every failure as "Unknown".
//
// The plain forms pass on whatever the provider throws, and throw
//   kQDAStatusNotFound       the class has not exactly one instance, or lacks the property
//   kQDAStatusValueIsNULL    the property is null
//   kQDAStatusTypeMismatch   the property is of another type
//
// Threads: no state, no locks; as safe as the namespace.

#ifndef QDACORE_IDENTITY_TCIMSCHEMAHELPER_H
#define QDACORE_IDENTITY_TCIMSCHEMAHELPER_H

#include <map>
#include <string>

#include <boost/shared_ptr.hpp>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMValue.h>

namespace NZRVQDA20 {

class ICIMNamespace;

class TCIMSchemaHelper {
 public:
  // The context key that names the provider wanted, and values for it. No query here sends
  // kCMPINSPName.
  QDACORE_EXPORT static const std::string kContextName;
  QDACORE_EXPORT static const std::string kPluginNSPName;
  QDACORE_EXPORT static const std::string kCMPINSPName;

  // Names of classes; the namespace is not looked at and may be empty.
  QDACORE_EXPORT static std::string GetSystemCreationClassName(boost::shared_ptr<ICIMNamespace> ns);
  QDACORE_EXPORT static std::string GetOperatingSystemCreationClassName(
      boost::shared_ptr<ICIMNamespace> ns);

  // ZRVSG_ComputerSystem: Name, ProductName.
  QDACORE_EXPORT static std::string GetSystemName(boost::shared_ptr<ICIMNamespace> ns);
  QDACORE_EXPORT static std::string GetSystemProductName(boost::shared_ptr<ICIMNamespace> ns);

  // ZRVSG_OperatingSystem: Name, Version, OSType (the number of CIM_OperatingSystem.OSType's
  // value map, unmapped).
  QDACORE_EXPORT static std::string GetOperatingSystemName(boost::shared_ptr<ICIMNamespace> ns);
  QDACORE_EXPORT static std::string GetOperatingSystemVersion(boost::shared_ptr<ICIMNamespace> ns);
  QDACORE_EXPORT static unsigned short GetOperatingSystemType(boost::shared_ptr<ICIMNamespace> ns);

  // The first CIM_PhysicalElement.Model that holds both "-[" and "]-".
  QDACORE_EXPORT static std::string GetSystemProductName_vmwesxi(
      boost::shared_ptr<ICIMNamespace> ns);
  // The first VMware_HypervisorSoftwareIdentity.LargeBuildNumber, so a build number and not a
  // name; meant.
  QDACORE_EXPORT static std::string GetOperatingSystemName_vmwesxi(
      boost::shared_ptr<ICIMNamespace> ns);

  // The machine type and model, or MTM: four characters of machine type and three of model,
  // cut out of the product name.

  // The product name itself. Throws kQDAStatusNotFound, after a debug line in the core log,
  // also when it is null or no string.
  QDACORE_EXPORT static std::string GetRawMTMString(boost::shared_ptr<ICIMNamespace> ns);

  // Seven characters. A machine that knows its type but not its model has the model "xxx". The
  // shapes that are known:
  //   ZRV Tserver k7265-[1234AC1]   and likewise k410; the whole name, model blanks kept
  //   ZRV Tserver k7310- 2468AC1 -  the whole name
  //   anything -[1234AC1] anything  blanks for a model become "xxx"
  //   anything -[1234] anything     1234xxx
  //   1234AC1                       the whole name
  // Trailing blanks of the name do not count. Throws kQDAStatusInvalidFormat for any other
  // shape, and what GetRawMTMString throws.
  QDACORE_EXPORT static std::string GetMTM(boost::shared_ptr<ICIMNamespace> ns);

  // What stands between "-[" and "]-" in the product name of an ESXi host, unchecked.
  QDACORE_EXPORT static std::string GetMTM_vmwesxi(boost::shared_ptr<ICIMNamespace> ns);

  // Characters 0 to 3, and 4 to 6, of GetMTM.
  QDACORE_EXPORT static std::string GetMachineType(boost::shared_ptr<ICIMNamespace> ns);
  QDACORE_EXPORT static std::string GetModelNumber(boost::shared_ptr<ICIMNamespace> ns);

  // ZRVSG_ComputerSystem.SerialNumber untouched; the same without trailing spaces; and the
  // SerialNumber of the first OMC_Chassis that has it.
  QDACORE_EXPORT static std::string GetRawSerialNumberString(boost::shared_ptr<ICIMNamespace> ns);
  QDACORE_EXPORT static std::string GetSerialNumber(boost::shared_ptr<ICIMNamespace> ns);
  QDACORE_EXPORT static std::string GetSerialNumber_vmwesxi(boost::shared_ptr<ICIMNamespace> ns);

  // Which collector made the namespace: ZRVSG_QDAProduct, whose record TCIMCopy::CopyClasses
  // carries along. Several records are no failure here.

  // Version of the last record, such as "2.05.9". `context` is sent with kContextName set to
  // kPluginNSPName. Throws kQDAStatusNotFound when there is no record, and what the provider
  // throws.
  QDACORE_EXPORT static std::string GetDataSourceVersion(boost::shared_ptr<ICIMNamespace> ns,
                                                         std::map<std::string, TCIMValue> context);

  // Build of the first record that has one, as decimal text, or an empty text. `context` is sent
  // as it is. No TQDAException leaves it; but a provider that fails to give the class, otherwise
  // than by kQDAStatusNotFound, makes a failed assertion (AssertionFailed.h), which under the
  // policies that do not throw TQDAException does what they say.
  QDACORE_EXPORT static std::string GetDataSourceBuild(boost::shared_ptr<ICIMNamespace> ns,
                                                       std::map<std::string, TCIMValue> context);

  // The fields of the version, as text with their leading zeros: all before the first dot, what
  // stands between the first and the second, and all behind the last. Each throws what
  // GetDataSourceVersion throws, and kQDAStatusNotFound when a dot that it needs is missing; the
  // major one after a debug line in the core log.
  QDACORE_EXPORT static std::string GetDataSourceMajorVersion(
      boost::shared_ptr<ICIMNamespace> ns, std::map<std::string, TCIMValue> context);
  QDACORE_EXPORT static std::string GetDataSourceMinorVersion(
      boost::shared_ptr<ICIMNamespace> ns, std::map<std::string, TCIMValue> context);
  QDACORE_EXPORT static std::string GetDataSourceBuildVersion(boost::shared_ptr<ICIMNamespace> ns);

 private:
  static const std::string kSystemCreationClassName;
  static const std::string kOperatingSystemCreationClassName;

  // The code in a product name that has no trailing spaces; throws kQDAStatusInvalidFormat.
  static std::string ExtractMTM(const std::string& name);

  // Format checks that choose a road through GetMTM; neither looks at the length.
  static bool IsValidMachineType(const std::string& text);
  static bool IsValidMTM(const std::string& text);
};

}  // namespace NZRVQDA20

#endif
