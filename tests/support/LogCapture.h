// The core log of one test: a new core logger that writes everything to a file of its own, and
// what stood in that file. At the end of the scope there is no core logger.

#ifndef TESTS_SUPPORT_LOGCAPTURE_H
#define TESTS_SUPPORT_LOGCAPTURE_H

#include <string>
#include <vector>

#include <tests/support/TemporaryFolder.h>

namespace test_support {

class LogCapture {
 public:
  LogCapture();
  ~LogCapture();
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  // Each line as "[Error] message": tag and message, without "FDR_" and the time. A message with
  // line feeds in it gives several entries. The banner is left out.
  std::vector<std::string> Lines() const;

  // The file as it stands.
  std::string Text() const;

 private:
  TemporaryFolder fFolder;
  std::string fPath;
};

}  // namespace test_support

#endif
