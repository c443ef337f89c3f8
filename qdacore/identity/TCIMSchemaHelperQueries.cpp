// One property of one instance: names of the system and of its operating system.

#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/identity/internal/SingleInstance.h>

namespace NZRVQDA20 {

namespace {

// Both brackets, anywhere and in any order.
bool HasBothBrackets(const std::string& text) {
  return text.find("-[") != std::string::npos && text.find("]-") != std::string::npos;
}

}  // namespace

std::string TCIMSchemaHelper::GetSystemCreationClassName(boost::shared_ptr<ICIMNamespace>) {
  return kSystemCreationClassName;
}

std::string TCIMSchemaHelper::GetOperatingSystemCreationClassName(
    boost::shared_ptr<ICIMNamespace>) {
  return kOperatingSystemCreationClassName;
}

std::string TCIMSchemaHelper::GetSystemName(boost::shared_ptr<ICIMNamespace> ns) {
  return PropertyOfSingleInstance(ns, kSystemCreationClassName, "Name");
}

std::string TCIMSchemaHelper::GetSystemProductName(boost::shared_ptr<ICIMNamespace> ns) {
  return PropertyOfSingleInstance(ns, kSystemCreationClassName, "ProductName");
}

std::string TCIMSchemaHelper::GetOperatingSystemName(boost::shared_ptr<ICIMNamespace> ns) {
  return PropertyOfSingleInstance(ns, kOperatingSystemCreationClassName, "Name");
}

std::string TCIMSchemaHelper::GetOperatingSystemVersion(boost::shared_ptr<ICIMNamespace> ns) {
  return PropertyOfSingleInstance(ns, kOperatingSystemCreationClassName, "Version");
}

unsigned short TCIMSchemaHelper::GetOperatingSystemType(boost::shared_ptr<ICIMNamespace> ns) {
  return PropertyOfSingleInstance(ns, kOperatingSystemCreationClassName, "OSType");
}

std::string TCIMSchemaHelper::GetSystemProductName_vmwesxi(boost::shared_ptr<ICIMNamespace> ns) {
  return FirstPropertyText(ns, "CIM_PhysicalElement", "Model", HasBothBrackets);
}

std::string TCIMSchemaHelper::GetOperatingSystemName_vmwesxi(boost::shared_ptr<ICIMNamespace> ns) {
  return FirstPropertyText(ns, "VMware_HypervisorSoftwareIdentity", "LargeBuildNumber");
}

}  // namespace NZRVQDA20
