// How a session with a BMC is printed.

#ifndef QDA_BMCOUTPUT_H
#define QDA_BMCOUTPUT_H

#include <string>

#include <qda/BmcSession.h>

namespace qda {

// Two columns, label and value.
std::string BmcTable(const std::string& address, const std::string& user,
                     const BmcSession& session);

// One object. Plain ASCII.
std::string BmcJson(const std::string& address, const std::string& user, const BmcSession& session);

// What went wrong and what to try, for Complain; empty when the session is good.
std::string BmcComplaint(const std::string& address, const BmcSession& session);

}  // namespace qda

#endif
