#include <tests/machine/win32/Wmic.h>

#include <algorithm>
#include <cstdlib>

#include <plugins/machine/HostText.h>
#include <tests/support/ChildProcess.h>

namespace machine_test {

std::vector<std::string> AskWmic(const std::string& alias, const std::string& property) {
  const char* const root = std::getenv("SystemRoot");
  std::string text;
  for (const char* folder : {"\\system32\\wbem\\wmic.exe", "\\system32\\wmic.exe"}) {
    text = test_support::RunProgram((root ? root : "C:\\windows") + std::string(folder),
                                    {alias, "get", property})
               .output;
    if (!text.empty()) {
      break;
    }
  }
  // UTF-16 with a mark in front, of which the ASCII is enough.
  text.erase(std::remove_if(text.begin(), text.end(),
                            [](char c) { return c == '\0' || static_cast<signed char>(c) < 0; }),
             text.end());
  std::vector<std::string> values;
  std::string_view rest = text;
  std::string_view line;
  bool isHead = true;
  while (machine::TakeLine(&rest, &line)) {
    const std::string_view value = machine::Trimmed(line);
    if (!isHead && !value.empty()) {
      values.emplace_back(value);
    }
    isHead = false;
  }
  return values;
}

}  // namespace machine_test
