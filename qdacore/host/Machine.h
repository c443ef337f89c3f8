// The machine's name, and waiting on it. Nothing here throws anything of ours.

#ifndef QDACORE_HOST_MACHINE_H
#define QDACORE_HOST_MACHINE_H

#include <string>

namespace NZRVQDA20 {
namespace host {

class Machine {
 public:
  // False, with `name` untouched, when the name is not to be had.
  virtual bool ReadName(std::string& name) = 0;

  // Blocks the calling thread for that time, signals or not.
  virtual void Sleep(unsigned int milliseconds) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Machine() = default;
};

Machine& HostMachine();

}  // namespace host
}  // namespace NZRVQDA20

#endif
