// How output and messages name what a command reads: a provider, or a snapshot in place of one.

#ifndef QDA_SOURCETEXT_H
#define QDA_SOURCETEXT_H

#include <string>

#include <nlohmann/json.hpp>

#include <qda/Options.h>

namespace qda {

// An object with one key: "provider" and its name, or "snapshot" and its file.
nlohmann::ordered_json SourceJson(const SourceOptions& source);

// `provider "machine"` or `snapshot "FILE"`.
std::string SourceText(const SourceOptions& source);

// For the end of what was asked: ` of snapshot "FILE"`; nothing for a provider.
std::string OfSnapshot(const SourceOptions& source);

// What cannot be read: "what the provider serves" or "what it says".
std::string ServedText(const SourceOptions& source);

// For the end of a command that is proposed: " --from FILE"; nothing for a provider.
std::string FromOption(const SourceOptions& source);

}  // namespace qda

#endif
