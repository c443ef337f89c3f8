// An editor and a shell that only say that they ran, and with which two arguments.

#ifndef TESTS_OS_LAUNCHAIDS_H
#define TESTS_OS_LAUNCHAIDS_H

#include <string>
#include <vector>

#include <tests/support/ChildProcess.h>
#include <tests/support/TemporaryFolder.h>

namespace launch_aids {

class Programs {
 public:
  Programs();

  // Runs a child of this program (see QDACORE_CHILD) to which they are the editor and the shell.
  test_support::ChildResult Run(const std::string& child,
                                const std::vector<std::string>& arguments) const;

 private:
  test_support::TemporaryFolder fFolder;
};

}  // namespace launch_aids

#endif
