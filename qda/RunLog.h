// RunLog: the core log of one run of the program, from Initialize to the closing banner.
//
// Without a log file the log goes nowhere: what a failure has to say stands in the program's own
// message, and lines of the log between them would only confuse. It is sent to the null device,
// for a logger without any file writes to standard error on Linux. The logger keeps its messages
// all the same, and the program's failures quote them.

#ifndef QDA_RUNLOG_H
#define QDA_RUNLOG_H

#include <string>

#include <qda/Options.h>

namespace qda {

class RunLog {
 public:
  // Throws TQDAException with kQDAStatusAccessDenied or kQDAStatusFileSystemError when the log
  // file cannot be opened.
  explicit RunLog(const RunOptions& options);

  // Ends the core logger, which writes the closing banner.
  ~RunLog();

  RunLog(const RunLog&) = delete;
  RunLog& operator=(const RunLog&) = delete;

  // The messages of `severity` and of more serious kinds that the log has kept since the last call,
  // joined by "; ". Empties the list.
  static std::string TakeKept(NZRVQDA20::ILogger::EQDALogSeverity severity);
};

}  // namespace qda

#endif
