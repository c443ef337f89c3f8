#include <qda/CommandTable.h>

#include <qda/BmcCommand.h>
#include <qda/ClassCommand.h>
#include <qda/ClassesCommand.h>
#include <qda/DiffCommand.h>
#include <qda/GetCommand.h>
#include <qda/IdentifyCommand.h>
#include <qda/InstancesCommand.h>
#include <qda/ProvidersCommand.h>
#include <qda/SmbiosCommand.h>
#include <qda/SnapshotCommand.h>
#include <qda/TransferCommands.h>

namespace qda {

std::vector<const Command*> AllCommands() {
  return {
      // Machine
      &kIdentifyCommand,
      &kSmbiosCommand,
      // Inventory
      &kClassesCommand,
      &kClassCommand,
      &kInstancesCommand,
      &kGetCommand,
      &kSnapshotCommand,
      &kDiffCommand,
      // Plug-ins
      &kProvidersCommand,
      // Network
      &kPutCommand,
      &kFetchCommand,
      &kHostCommand,
      &kBmcCommand,
  };
}

}  // namespace qda
