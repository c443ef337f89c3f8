// Child processes, the pipes to them, and the reading of a handle until its end, be it a pipe's or
// a file's. Each operation is one step that the caller must be able to tell from the others when
// it fails. Nothing here throws anything of ours.

#ifndef QDACORE_HOST_PROCESSES_H
#define QDACORE_HOST_PROCESSES_H

#include <cstddef>
#include <string>

#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {
namespace host {

class Processes {
 public:
  // A descriptor; on Windows a handle, of which no more than 32 bits ever count. Nothing closes
  // one but Close, MakePrivate (the one that it replaces) and Release.
  typedef int Handle;
  enum : Handle { kNoHandle = -1 };

  struct Pipe {
    Handle readEnd = kNoHandle;
    Handle writeEnd = kNoHandle;
  };

  // What the child begins with; its error output is its output.
  struct StandardHandles {
    Handle input;
    Handle output;
  };

  // Whether a child that has a window shows it. Without windows there is no difference.
  enum class Window { kAsItLikes, kHidden };

  enum : int { kNoExitCode = -1 };

  // A child from Start to Release. Its members are the host's own.
  struct Child {
    Handle process = kNoHandle;
    Handle thread = kNoHandle;
    int exitCode = kNoExitCode;
  };

  struct ReadResult {
    bool done;
    // Also of a failed read.
    std::size_t count;
    // For ErrorText, when it is not done.
    unsigned long error;
  };

  // Asks for our own standard output; what comes of it is not used.
  virtual void AskForStandardOutput() = 0;

  // A new pipe, of the host's size. A child may inherit both ends; on Linux descriptors are
  // private from the start, and a child gets them by being handed them.
  virtual bool MakePipe(Pipe& pipe) = 0;

  // Puts a handle that no child inherits in place of `end`, which is closed. When that fails
  // `end` is what it was.
  virtual bool MakePrivate(Handle& end) = 0;

  // Starts a child with our environment and working directory. `commandLine` holds no NUL; it is
  // the program, and behind blanks its arguments, as the host takes a line apart. False when it
  // cannot be started, for whatever reason, and then there is no child.
  virtual bool Start(const std::string& commandLine, Window window, const StandardHandles& handles,
                     Child& child) = 0;

  virtual bool Close(Handle handle) = 0;

  // Opens an existing file, which a folder is not, for reading.
  virtual Outcome OpenFile(const std::string& path, Handle& handle) = 0;

  // How many bytes a reader should be ready for: the size of a file; 0 when the host does not say.
  // The truth may be another.
  virtual std::size_t ExpectedSize(Handle handle) = 0;

  // Reads up to `size` bytes; waits until there are some. At the end it is done, with none, or, at
  // a pipe that nobody writes to any more, failed with none.
  virtual ReadResult Read(Handle handle, char* buffer, std::size_t size) = 0;

  // The host's words for the error of a read; empty when it has none.
  virtual std::string ErrorText(unsigned long error) = 0;

  // Waits for the child's end, for however long.
  virtual void Wait(Child& child) = 0;

  // After Wait: the child's exit code; on Linux 128 and the signal's number for a child that a
  // signal ended. kNoExitCode when the host does not tell it.
  virtual int ExitCode(const Child& child) = 0;

  // Closes the child's handles: of the process, then of the thread. It may still run.
  virtual void Release(Child& child) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Processes() = default;
};

Processes& HostProcesses();

}  // namespace host
}  // namespace NZRVQDA20

#endif
