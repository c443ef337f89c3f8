// The keyboard, and programs that take the console over. Nothing here throws anything of ours.

#ifndef QDACORE_HOST_CONSOLE_H
#define QDACORE_HOST_CONSOLE_H

#include <string>

namespace NZRVQDA20 {
namespace host {

class Console {
 public:
  // Whether ReadKey would return at once with a key.
  virtual bool IsKeyWaiting() = 0;

  // Waits for a key, which is not echoed and needs no line end. 0 to 255; -1 when there is no
  // keyboard or it has come to its end.
  virtual int ReadKey() = 0;

  // What starts the user's text editor, and the user's shell, at the head of a command line.
  virtual std::string Editor() = 0;
  virtual std::string Shell() = 0;

  // Has the system's command interpreter run `command`, and waits for its end. How it ends is not
  // told.
  virtual void Run(const std::string& command) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Console() = default;
};

Console& HostConsole();

}  // namespace host
}  // namespace NZRVQDA20

#endif
