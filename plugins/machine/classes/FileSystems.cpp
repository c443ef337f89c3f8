// Local file systems.

#include <cstdint>
#include <string>

#include <plugins/machine/classes/BaseClasses.h>
#include <plugins/machine/classes/Families.h>

namespace machine {

namespace {

const PropertyRow kFileSystemProperties[] = {{"CSCreationClassName", kString, kKey},
                                             {"CSName", kString, kKey},
                                             {"CreationClassName", kString, kKey},
                                             {"Name", kString, kKey},
                                             {"Root", kString},
                                             {"FileSystemType", kString},
                                             {"BlockSize", kUint64},
                                             {"FileSystemSize", kUint64},
                                             {"AvailableSpace", kUint64},
                                             {"ReadOnly", kBoolean},
                                             {"CaseSensitive", kBoolean},
                                             {"CasePreserved", kBoolean},
                                             {"MaxFileNameLength", kUint32},
                                             {"PersistenceType", kUint16}};
const ClassRow kFileSystem("CIM_FileSystem", &kLogicalElement, kFileSystemProperties);
const ClassRow kLocalFileSystem("CIM_LocalFileSystem", &kFileSystem);

const AssociationRow kHostedFileSystem = {
    "CIM_HostedFileSystem", {"GroupComponent", &kSystem}, {"PartComponent", &kFileSystem}};
const AssociationRow kResidesOnExtent = {
    "CIM_ResidesOnExtent", {"Antecedent", &kStorageExtent}, {"Dependent", &kLogicalElement}};

Object Add(NamespaceBuilder& builder, const MachineFacts& facts, const FileSystemFacts& found) {
  return builder.Create(kLocalFileSystem)
      .Key("CSCreationClassName", kZrvComputerSystem.name)
      .Key("CSName", facts.operatingSystem.hostName)
      .Key("CreationClassName", kLocalFileSystem.name)
      .Key("Name", found.root)
      .Set("Root", found.root)
      .Set("FileSystemType", found.fileSystemType)
      .Set("BlockSize", found.blockSize)
      .Set("FileSystemSize", found.fileSystemSize)
      .Set("AvailableSpace", found.availableSpace)
      .Set("ReadOnly", found.readOnly)
      .Set("CaseSensitive", found.caseSensitive)
      .Set("CasePreserved", found.casePreserved)
      .Set("MaxFileNameLength", found.maxFileNameLength)
      .Set("PersistenceType", found.persistenceType)
      .Publish();
}

// The extent of the drive; one without a name when there is none.
const Object& ExtentOf(const NamespaceBuilder& builder, const MachineFacts& facts,
                       const std::string& drive) {
  std::uint32_t number = 0;
  for (const DiskFacts& disk : facts.host.disks) {
    if (disk.deviceId == drive) {
      break;
    }
    ++number;
  }
  return builder.Kept(kExtentRole, number);
}

}  // namespace

void AddFileSystems(NamespaceBuilder& builder, const MachineFacts& facts) {
  builder.Declare(kLocalFileSystem);
  builder.Declare(kHostedFileSystem);
  builder.Declare(kResidesOnExtent);
  for (const FileSystemFacts& found : facts.host.fileSystems) {
    const Object object = Add(builder, facts, found);
    builder.Associate(kHostedFileSystem, builder.Kept(kSystemRole), object);
    builder.Associate(kResidesOnExtent, ExtentOf(builder, facts, found.drive), object);
  }
}

}  // namespace machine
