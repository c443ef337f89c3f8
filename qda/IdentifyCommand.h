// qda identify

#ifndef QDA_IDENTIFYCOMMAND_H
#define QDA_IDENTIFYCOMMAND_H

#include <qda/Options.h>

namespace qda {

// Asks a provider for the machine's identity and prints it. Returns the exit code: kExitFailed,
// with all the facts printed that are known, also when only the machine type and model could not
// be told. Needs a core logger.
int RunIdentify(const Options& options);

}  // namespace qda

#endif
