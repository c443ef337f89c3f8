#include <qdacore/host/posix/CurlLibrary.h>

#include <dlfcn.h>

namespace NZRVQDA20 {
namespace host {
namespace curl {

namespace {

template <class Function>
bool Find(void* module, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(module, name));
  return function != nullptr;
}

}  // namespace

Loading Load(Library& library) {
  // The one that the binary interface's fourth version has everywhere.
  void* const module = dlopen("libcurl.so.4", RTLD_NOW | RTLD_LOCAL);
  if (!module) {
    return Loading::kNoLibrary;
  }
  const bool found = Find(module, "curl_easy_init", library.easyInit) &&
                     Find(module, "curl_easy_cleanup", library.easyCleanup) &&
                     Find(module, "curl_easy_setopt", library.easySetopt) &&
                     Find(module, "curl_easy_perform", library.easyPerform) &&
                     Find(module, "curl_easy_getinfo", library.easyGetinfo) &&
                     Find(module, "curl_easy_escape", library.easyEscape) &&
                     Find(module, "curl_free", library.free);
  return found ? Loading::kLoaded : Loading::kNoFunction;
}

}  // namespace curl
}  // namespace host
}  // namespace NZRVQDA20
