// Progress of something that blocks: a line on standard error that is written over, as long as a
// terminal watches there. Nowhere else does it say anything.

#ifndef QDA_PROGRESS_H
#define QDA_PROGRESS_H

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>

namespace qda {

// "12.3 MiB" and the like.
std::string RoundedSizeText(std::uintmax_t bytes);

class Progress {
 public:
  // Says "DOING, 3 s" from half a second on; "DOING: 1.2 MiB, 3 s" when `growingFile` names a
  // file, whose size is meant. A thread of its own writes it; it touches neither the log nor
  // standard output.
  explicit Progress(const std::string& doing, const std::string& growingFile = "");

  // Wipes the line.
  ~Progress();

  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

 private:
  void Show();

  const std::string fDoing;
  const std::string fGrowingFile;
  std::mutex fMutex;
  std::condition_variable fChanged;
  bool fIsDone = false;
  std::thread fThread;
};

}  // namespace qda

#endif
