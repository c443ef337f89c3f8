// qda providers

#ifndef QDA_PROVIDERSCOMMAND_H
#define QDA_PROVIDERSCOMMAND_H

#include <qda/Options.h>

namespace qda {

// Loads every provider module and prints what became of it. Returns the exit code: kExitFailed
// when one did not load. Needs a core logger.
int RunProviders(const Options& options);

}  // namespace qda

#endif
