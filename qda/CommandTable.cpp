#include <qda/CommandTable.h>

#include <qda/IdentifyCommand.h>
#include <qda/ProvidersCommand.h>

namespace qda {

std::vector<const Command*> AllCommands() {
  return {
      &kIdentifyCommand,
      &kProvidersCommand,
  };
}

}  // namespace qda
