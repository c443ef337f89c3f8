// How an identity is printed.

#ifndef QDA_IDENTITYOUTPUT_H
#define QDA_IDENTITYOUTPUT_H

#include <string>

#include <qda/Identity.h>
#include <qda/Options.h>

namespace qda {

// Two columns, label and value; what is not known reads "unknown".
std::string IdentityTable(const Identity& identity);

// One object; what is not known is null. Plain ASCII: all else is escaped, and bytes that are no
// UTF-8 read U+FFFD.
std::string IdentityJson(const Identity& identity, const SourceOptions& source);

}  // namespace qda

#endif
