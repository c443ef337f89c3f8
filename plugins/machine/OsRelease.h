// The text of an os-release(5) file. It is written by people and installers, so nothing in it
// is trusted: a line that does not fit the format counts as not there.

#ifndef PLUGINS_MACHINE_OSRELEASE_H
#define PLUGINS_MACHINE_OSRELEASE_H

#include <optional>
#include <string>

namespace machine {

// The value that `text` assigns to `name`, such as "VERSION_ID"; the last one when there are
// several, as a shell would have it. Absent when there is none or when it is empty.
//
// Read are lines of the form NAME=VALUE with white space around them. VALUE is a bare word, or
// stands in '...' (taken literally) or "..." (in which \ takes one of $ " \ ` literally). A bare
// word has none of the characters that mean something to a shell. The text's other bytes are
// delivered as they are.
std::optional<std::string> FindInOsRelease(const std::string& text, const std::string& name);

}  // namespace machine

#endif
