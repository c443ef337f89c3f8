// All static data of the library, top to bottom in the one order in which it is built at load
// and, backwards, released at the end. The order is a contract; nothing else in the library
// may have static data that needs building. No service is made here: the logger and the
// registry come into being when a host asks for them.

// First, because it starts the runtime's own streams: before all of the below, and it ends behind.
#include <iostream>

#include <qdacore/frame/TQDAStatusCode.h>
#include <qdacore/frame/internal/StandardError.h>
#include <qdacore/identity/TCIMSchemaHelper.h>
#include <qdacore/ipmi/IIPMILan.h>
#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/plugin/TNamespaceProviderManager.h>

namespace NZRVQDA20 {

// Null from the start, and never released by the library: the host owns the logger's end.
ILogger* fgCoreLogger = nullptr;
IIPMILan* IIPMILan::fgipmilanInstance = nullptr;

const std::string TCIMSchemaHelper::kSystemCreationClassName = "ZRVSG_ComputerSystem";
const std::string TCIMSchemaHelper::kPluginNSPName = "plugin";
const std::string TCIMSchemaHelper::kCMPINSPName = "cmpi";
const std::string TCIMSchemaHelper::kContextName = "nspID";
const std::string TCIMSchemaHelper::kOperatingSystemCreationClassName = "ZRVSG_OperatingSystem";

const std::string TQDAStatusCode::fgStatusNames[] = {
#define QDACORE_STATUS(value, name) #name,
#include <qdacore/frame/StatusNames.inc>
#undef QDACORE_STATUS
};

const std::string TOSSpecific::kDynamicModuleExtension = ".dll";
const std::string TOSSpecific::kQDAPluginExtension = "pi";
// Made of the two above, which must stand before it.
const std::string TOSSpecific::kPluginExtension =
    "." + kQDAPluginExtension + kDynamicModuleExtension;
const std::string TOSSpecific::kSpecificationExtension = ".properties.xml";
const std::string TOSSpecific::kRegistrationExtension = ".registration.xml";
const std::string TOSSpecific::kFileSeparator = "\\";
const std::string TOSSpecific::libx86IntrAddrFile = "intr_address.tmp";

// Empty; only its release at the end is arranged here, so that it comes first of all.
boost::shared_ptr<TNamespaceProviderManager> TNamespaceProviderManager::fgInstance;

std::ostream& StandardError() { return std::cerr; }

}  // namespace NZRVQDA20
