// The host's loader of dynamic modules. Nothing here throws anything of ours.

#ifndef QDACORE_HOST_MODULES_H
#define QDACORE_HOST_MODULES_H

#include <cstddef>
#include <string>

#include <qdacore/host/Situation.h>

namespace NZRVQDA20 {
namespace host {

class Modules {
 public:
  typedef void* Module;
  typedef void (*Symbol)();

  // Writes the path of the running program's file into `buffer`, of `size` characters, and
  // returns how many it wrote, with no promise of a closing NUL. 0: not to be had. `size`: the
  // path may be cut.
  virtual std::size_t ProgramPath(char* buffer, std::size_t size) = 0;

  // Loads a module, which stays loaded: nothing here unloads it.
  virtual Outcome Load(const std::string& path, Module& module) = 0;

  // Null when the module does not export `name`.
  virtual Symbol Find(Module module, const std::string& name) = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Modules() = default;
};

Modules& HostModules();

}  // namespace host
}  // namespace NZRVQDA20

#endif
