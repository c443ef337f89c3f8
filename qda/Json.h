// How JSON is written, the same for every command.

#ifndef QDA_JSON_H
#define QDA_JSON_H

#include <string>

#include <nlohmann/json.hpp>

namespace qda {

// Indented, with a line feed at the end, in plain ASCII, so that a terminal and a reader with
// another character set are as safe as a file. Bytes that are no UTF-8 read U+FFFD.
inline std::string JsonText(const nlohmann::ordered_json& json) {
  return json.dump(2, ' ', true, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

}  // namespace qda

#endif
