#include <qda/SourceText.h>

namespace qda {

nlohmann::ordered_json SourceJson(const SourceOptions& source) {
  nlohmann::ordered_json json;
  if (source.fromFile.empty()) {
    json["provider"] = source.provider;
  } else {
    json["snapshot"] = source.fromFile;
  }
  return json;
}

std::string SourceText(const SourceOptions& source) {
  return source.fromFile.empty() ? "provider \"" + source.provider + "\""
                                 : "snapshot \"" + source.fromFile + "\"";
}

std::string OfSnapshot(const SourceOptions& source) {
  return source.fromFile.empty() ? "" : " of " + SourceText(source);
}

std::string ServedText(const SourceOptions& source) {
  return source.fromFile.empty() ? "what the provider serves" : "what it says";
}

std::string FromOption(const SourceOptions& source) {
  return source.fromFile.empty() ? "" : " --from " + source.fromFile;
}

}  // namespace qda
