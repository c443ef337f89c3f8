// The process's own environment. Nothing here throws anything of ours; names and values are bytes
// and hold no NUL.

#ifndef QDACORE_HOST_ENVIRONMENT_H
#define QDACORE_HOST_ENVIRONMENT_H

#include <string>

#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {
namespace host {

class Environment {
 public:
  // Reads a variable whole, however long it is. Done when it is set to some text. Otherwise the
  // number is 203 for a variable that is not set, 0 for one that is set and empty, and `value` is
  // untouched.
  virtual Outcome Read(const std::string& name, std::string& value) = 0;

  // Sets a variable, also to an empty text, in place of what it was. An impossible name has the
  // number 87.
  virtual Outcome Write(const std::string& name, const std::string& value) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Environment() = default;
};

Environment& HostEnvironment();

}  // namespace host
}  // namespace NZRVQDA20

#endif
