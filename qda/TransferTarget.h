// What an operator writes for a server, made into a target of TOSSpecific's transfers: what those
// would take in a way that nobody means is refused here, with a word why.

#ifndef QDA_TRANSFERTARGET_H
#define QDA_TRANSFERTARGET_H

#include <string>

namespace qda {

// Why `server` ("HOST", "HOST:PORT", "[IPV6-ADDRESS]", each with "/PATH" behind) cannot be uploaded
// to, with the account `user` or, when that is empty, without one. Empty when it can.
std::string WhyNoUploadTarget(const std::string& server, const std::string& user);

// Why a password can be no part of a target. Empty when it can.
std::string WhyNoTargetPassword(const std::string& password);

// The target of an upload. An IPv6 address gets the brackets that it lacks. `user` empty: none.
std::string UploadTargetText(const std::string& server, const std::string& user,
                             const std::string& password);

// Why `server` cannot be downloaded from: it has to be a name or an IPv4 address and nothing more.
// Empty when it can.
std::string WhyNoDownloadTarget(const std::string& server);

// What a path ends in, behind its last separator of either kind.
std::string LastPartOf(const std::string& path);

}  // namespace qda

#endif
