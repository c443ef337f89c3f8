// Finding and loading plug-in modules.

#include <optional>

#include <qdacore/frame/internal/Throw.h>
#include <qdacore/host/Modules.h>
#include <qdacore/host/Paths.h>
#include <qdacore/logging/internal/CoreLog.h>
#include <qdacore/os/TOSSpecific.h>
#include <qdacore/os/internal/CallerPath.h>
#include <qdacore/os/internal/DirectorySearch.h>
#include <qdacore/os/internal/FileSteps.h>
#include <qdacore/plugin/INamespaceConsumer.h>

namespace NZRVQDA20 {

namespace {

const char kProviderKind[] = "nsp";
const char kConsumerKind[] = "nsc";
const char kFactorySuffix[] = "_CreateINamespaceConsumer";
const std::size_t kServiceEndingLength = 8;  // ".nsp.dll"

// What every loader gives for a name that no file can have.
const unsigned long kModuleNotFound = 126;

std::string Join(const std::string& directory, const std::string& name) {
  return directory + host::PathSeparator() + name;
}

// A name that holds a NUL would be cut there, and another file loaded.
host::Outcome LoadModule(const std::string& path, host::Modules::Module& module) {
  if (HoldsNul(path)) {
    return {host::Situation::kNoFile, kModuleNotFound};
  }
  return host::HostModules().Load(path, module);
}

std::string ServiceModulePath(const std::string& name, const char* kind) {
  return Join(TOSSpecific::GetQDARootPath(),
              name + "." + kind + TOSSpecific::kDynamicModuleExtension);
}

// Appends the paths of the files in `folder` that match. A folder without any is passed over.
void AppendMatches(const std::string& folder, const std::string& pattern,
                   std::vector<std::string>& paths) {
  DirectorySearch search(folder, pattern);
  if (search.Opening().situation == host::Situation::kNoFile) {
    return;
  }
  if (!search.Opening().Done()) {
    FileSystemError();
  }
  do {
    paths.push_back(Join(folder, std::string(search.Entry().name)));
  } while (search.Next().Done());
}

// `pluginPath` up to the first ending of a plug-in, wherever that stands, and then `ending`.
std::string DescriptionPath(const std::string& pluginPath, const std::string& extension,
                            const std::string& ending) {
  const std::size_t at = pluginPath.find("." + extension + TOSSpecific::kDynamicModuleExtension);
  if (at == std::string::npos) {
    Throw(TQDAStatusCode::kQDAStatusFail);
  }
  return pluginPath.substr(0, at) + ending;
}

}  // namespace

std::string TOSSpecific::GetQDARootPath() {
  char buffer[512];
  const std::size_t length = host::HostModules().ProgramPath(buffer, sizeof buffer);
  // A full buffer means that the path was cut.
  if (length == 0 || length >= sizeof buffer) {
    FileSystemError();
  }
  const std::string path(buffer, length);
  return path.substr(0, path.rfind(host::PathSeparator()));
}

std::vector<std::string> TOSSpecific::FindNSPs() { return FindNSServices(kProviderKind); }

std::vector<std::string> TOSSpecific::FindNSCs() { return FindNSServices(kConsumerKind); }

std::vector<std::string> TOSSpecific::FindNSServices(std::string kind) {
  std::vector<std::string> names;
  DirectorySearch search(GetQDARootPath(), "*." + kind + kDynamicModuleExtension);
  if (search.Opening().situation == host::Situation::kNoFile) {
    return names;
  }
  if (!search.Opening().Done()) {
    FileSystemError();
  }
  do {
    // No further test: a directory of such a name counts too. (A short alias of a file can match
    // the pattern and be shorter than the ending; it leaves nothing.)
    const std::string_view name = search.Entry().name;
    names.emplace_back(name.size() > kServiceEndingLength
                           ? name.substr(0, name.size() - kServiceEndingLength)
                           : std::string_view());
  } while (search.Next().Done());
  return names;
}

std::vector<std::string> TOSSpecific::FindPlugins(std::string directory) {
  return FindPlugins(directory, kQDAPluginExtension);
}

std::vector<std::string> TOSSpecific::FindPlugins(std::string directory, std::string extension) {
  const std::string pattern = "*." + extension + kDynamicModuleExtension;
  std::vector<std::string> paths;
  std::string root = directory;
  std::optional<DirectorySearch> search;
  TryBothSeparators(directory, [&](const std::string& attempted) {
    root = attempted;
    search.emplace(attempted, "*");
    return search->Opening();
  });
  DirectorySearch& folders = *search;
  if (!folders.Opening().Done()) {
    FileSystemError();
  }
  do {
    const host::FoundEntry& entry = folders.Entry();
    if (entry.isDirectory && entry.name[0] != '.') {
      AppendMatches(Join(root, std::string(entry.name)), pattern, paths);
    }
  } while (folders.Next().Done());
  return paths;
}

void TOSSpecific::LoadPluginLibrary(std::string path) {
  const host::Outcome outcome = TryBothSeparators(path, [](const std::string& attempted) {
    host::Modules::Module module = nullptr;
    return LoadModule(attempted, module);
  });
  if (!outcome.Done()) {
    FileSystemError();
  }
  // The handle is dropped: the module stays loaded for the life of the process.
}

void TOSSpecific::LoadNSPLibrary(std::string name) {
  host::Modules::Module module = nullptr;
  const host::Outcome outcome = LoadModule(ServiceModulePath(name, kProviderKind), module);
  if (!outcome.Done()) {
    LogAndThrow(ILogger::kLogError,
                "Couldn't load NSP: " + name + " error: " + std::to_string(outcome.number),
                TQDAStatusCode::kQDAStatusFileSystemError);
  }
}

INamespaceConsumer* TOSSpecific::LoadNSCLibrary(std::string name) {
  const std::string path = ServiceModulePath(name, kConsumerKind);
  host::Modules::Module module = nullptr;
  if (!LoadModule(path, module).Done()) {
    // No error number here, unlike its sibling above.
    LogAndThrow(ILogger::kLogError, "Couldn't load NSC: " + name,
                TQDAStatusCode::kQDAStatusFileSystemError);
  }
  typedef INamespaceConsumer* (*Factory)();
  const Factory factory =
      reinterpret_cast<Factory>(host::HostModules().Find(module, name + kFactorySuffix));
  if (!factory) {
    LogAndThrow(ILogger::kLogError, "Couldn't find '" + name + kFactorySuffix + "' in " + path,
                TQDAStatusCode::kQDAStatusNotFound);
  }
  return factory();
}

std::string TOSSpecific::BuildSpecificationPath(std::string pluginPath) {
  return BuildSpecificationPath(pluginPath, kQDAPluginExtension);
}

std::string TOSSpecific::BuildSpecificationPath(std::string pluginPath, std::string extension) {
  return DescriptionPath(pluginPath, extension, kSpecificationExtension);
}

std::string TOSSpecific::BuildRegistrationPath(std::string pluginPath, std::string extension) {
  return DescriptionPath(pluginPath, extension, kRegistrationExtension);
}

}  // namespace NZRVQDA20
