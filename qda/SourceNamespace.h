// The namespace that a command reads: from the modules beside the program to what a provider
// serves.

#ifndef QDA_SOURCENAMESPACE_H
#define QDA_SOURCENAMESPACE_H

#include <string>

#include <boost/shared_ptr.hpp>

#include <qda/Options.h>

namespace NZRVQDA20 {
class ICIMNamespace;
}

namespace qda {

// Loads the provider's module, looks the provider up and asks it. An empty pointer after what is in
// the way has been told on standard error; a module that does not load is told and passed over, for
// the provider may be in another one. Throws TQDAException when the program's folder cannot be
// searched. Needs a core logger.
//
// With a snapshot as the source, that file is read and no module loaded.
//
// `scope` tells the provider how much is wanted, as the entry "scope" of the context: "system" is
// what identifies the machine, which the machine provider reads much faster than everything.
// Providers that know no scope serve all they have. Empty: everything, and no such entry.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> OpenNamespace(const SourceOptions& source,
                                                          const std::string& scope = "");

// Loads the provider modules: all of them, or no more than it takes to have `provider`, as
// LoadProviderModulesFor does, when it is not empty. What is in the way is told on standard error.
// Throws TQDAException when the program's folder cannot be searched. Needs a core logger.
void LoadModules(const std::string& provider);

// The last two steps of OpenNamespace: the provider is looked up and asked. Its module is loaded.
boost::shared_ptr<NZRVQDA20::ICIMNamespace> OpenLoadedNamespace(const std::string& provider,
                                                                const std::string& scope = "");

// Makes `file` the table that is read in place of the firmware's, for everything in this process;
// an empty name changes nothing. False, after a message, when the system refuses.
bool UseSmbiosDump(const std::string& file);

// What the log has kept of warnings and errors, as the end of a message: ": TEXT", or nothing.
std::string KeptWarnings();

}  // namespace qda

#endif
