// TOSSpecific: all that depends on the host, as static operations, the same on every
// platform. It has no instances.
//
// Failures are TQDAException; each operation names its status. Threads: no state and no
// locks; blocking calls run on the caller's thread.

#ifndef QDACORE_OS_TOSSPECIFIC_H
#define QDACORE_OS_TOSSPECIFIC_H

#include <string>
#include <vector>

#include <qdacore/Export.h>
#include <qdacore/cim/value/TCIMDateTime.h>
#include <qdacore/logging/ILogger.h>

namespace NZRVQDA20 {

class INamespaceConsumer;

class TOSSpecific {
 public:
  // The file names of plug-ins, on every platform.
  QDACORE_EXPORT static const std::string kDynamicModuleExtension;  // ".dll"
  QDACORE_EXPORT static const std::string kQDAPluginExtension;      // "pi"
  QDACORE_EXPORT static const std::string kPluginExtension;         // ".pi.dll"
  QDACORE_EXPORT static const std::string kSpecificationExtension;  // ".properties.xml"
  QDACORE_EXPORT static const std::string kRegistrationExtension;   // ".registration.xml"
  // A single backslash, on every platform.
  QDACORE_EXPORT static const std::string kFileSeparator;
  QDACORE_EXPORT static const std::string libx86IntrAddrFile;  // "intr_address.tmp"

  // --- Log -----------------------------------------------------------------------------

  // The time now as a timestamp: local fields, microseconds to the millisecond, and the
  // offset from UTC that is in force.
  QDACORE_EXPORT static TCIMDateTime GetLocalTime();

  // Writes to the debugger's output; on Linux to standard error.
  QDACORE_EXPORT static void OutputLogString(std::string text);

  // Writes one event of the source "VXTP" to the system's event log; on Linux to syslog under
  // that ident, after which a host that logs there itself must call openlog again. Errors and
  // warnings keep their kind, all else is information. Where there is no event log it is dropped;
  // never fails.
  QDACORE_EXPORT static void LogSELEvent(const char* text, ILogger::EQDALogSeverity severity,
                                         int eventId);

  // --- Plug-ins ------------------------------------------------------------------------
  //
  //   kind                 file                       found in
  //   namespace provider   NAME.nsp.dll               the root directory
  //   namespace consumer   NAME.nsc.dll               the root directory
  //   plain plug-in        FOLDER/FILE.EXTENSION.dll  folders one level below a directory
  //
  // Modules are found and loaded, never unloaded. What a module's start-up does is all that
  // loading runs; it may use the registry, so loading must not overlap with that.

  // The directory of the running program's file, with no separator at the end. Throws
  // kQDAStatusFileSystemError when the path is not to be had or has 512 characters or more.
  QDACORE_EXPORT static std::string GetQDARootPath();

  // The names (without directory and ending) of the provider and consumer modules in the root
  // directory, in the order of the file system. None is an empty list. Throws
  // kQDAStatusFileSystemError when the directory cannot be searched.
  QDACORE_EXPORT static std::vector<std::string> FindNSPs();
  QDACORE_EXPORT static std::vector<std::string> FindNSCs();

  // The full paths of the files that end in "." + extension + ".dll" in the folders directly
  // below `directory`; without `extension`, ".pi.dll". Folders whose names begin with a dot
  // are passed over. Throws kQDAStatusFileSystemError when `directory` or one of its folders
  // cannot be searched, also when it is missing.
  QDACORE_EXPORT static std::vector<std::string> FindPlugins(std::string directory);
  QDACORE_EXPORT static std::vector<std::string> FindPlugins(std::string directory,
                                                             std::string extension);

  // Loads a module from `path` as it stands. Throws kQDAStatusFileSystemError, with nothing
  // logged, when it does not load.
  QDACORE_EXPORT static void LoadPluginLibrary(std::string path);

  // Loads the provider module of that name, as FindNSPs gives it. Whether it registered
  // anything is not looked at. Throws kQDAStatusFileSystemError, after an error line in the
  // core log, when it does not load.
  QDACORE_EXPORT static void LoadNSPLibrary(std::string name);

  // Loads the consumer module of that name and returns what its factory makes, which may be
  // null; the caller deletes it. Throws, after an error line in the core log,
  //   kQDAStatusFileSystemError  the module does not load
  //   kQDAStatusNotFound         it exports no NAME_CreateINamespaceConsumer (it stays loaded)
  QDACORE_EXPORT static INamespaceConsumer* LoadNSCLibrary(std::string name);

  // The path of a plug-in's description file: up to the first "." + extension + ".dll" of
  // `pluginPath`, which may stand in a folder's name, and then the ending. Text only. Throws
  // kQDAStatusFail when the ending is not there. The registration path has no short form.
  QDACORE_EXPORT static std::string BuildSpecificationPath(std::string pluginPath);
  QDACORE_EXPORT static std::string BuildSpecificationPath(std::string pluginPath,
                                                           std::string extension);
  QDACORE_EXPORT static std::string BuildRegistrationPath(std::string pluginPath,
                                                          std::string extension);

  // --- Paths, files and directories ----------------------------------------------------

  // --- Processes and capture -----------------------------------------------------------

  // --- File transfer -------------------------------------------------------------------

  // --- SMBIOS machine identification ---------------------------------------------------

  // --- Host services -------------------------------------------------------------------

  // --- Text ----------------------------------------------------------------------------

 private:
  static std::vector<std::string> FindNSServices(std::string kind);

  // One line at kLogDebug in the core log: "TOSSpecific debug output: " and `text`. Without a core
  // logger it is lost.
  static void DebugOut(std::string text);
};

}  // namespace NZRVQDA20

#endif
