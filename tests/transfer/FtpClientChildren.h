// A transfer in a process of its own, beside an FTP client of the test's.

#ifndef TESTS_TRANSFER_FTPCLIENTCHILDREN_H
#define TESTS_TRANSFER_FTPCLIENTCHILDREN_H

#include <string>
#include <vector>

#include <tests/os/ProgramCopy.h>

namespace transfer_test {

typedef std::vector<std::string> Lines;

// "Uploads" or "Downloads" as the child's name. Its output, line by line: what the client prints,
// then "true" or "false", then the core log.
class FtpClientCopy {
 public:
  // `client`: the test module that stands in the client's place; empty: a file that is none.
  explicit FtpClientCopy(const std::string& client);

  // `answers` are the words that the client goes by, on Windows.
  Lines Run(const std::string& child, const std::string& target,
            const std::string& answers = "") const;

 private:
  ProgramCopy fProgram;
};

// The module that lacks the function of that number; 0: it lacks none.
std::string ClientThatLacks(int function);

}  // namespace transfer_test

#endif
