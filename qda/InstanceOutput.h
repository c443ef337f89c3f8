// How an instance is printed.

#ifndef QDA_INSTANCEOUTPUT_H
#define QDA_INSTANCEOUTPUT_H

#include <string>

#include <nlohmann/json.hpp>

#include <qda/InstancePath.h>

namespace NZRVQDA20 {
class ICIMInstance;
}

namespace qda {

// The path, then a line a property: name, type, value. A value that cannot be read reads as its
// status, and is counted in `*unread`. Throws TQDAException when the properties cannot be
// enumerated.
std::string InstanceTable(const InstancePath& path, const NZRVQDA20::ICIMInstance& instance,
                          unsigned int* unread);

// "path" (null when it has none), "class", "properties": an object of "type" and "value" for each,
// with a "status" where the value cannot be read.
nlohmann::ordered_json InstanceJson(const InstancePath& path,
                                    const NZRVQDA20::ICIMInstance& instance, unsigned int* unread);

}  // namespace qda

#endif
