#include <cstdio>
#include <string>

#include <tests/frame/LibraryLoadProbe.h>

namespace NZRVQDA20 {
class ILogger;
}

using namespace library_load_probe;

int main(int argc, char** argv) {
  if (argc != 2) {
    return 2;
  }
  Prepare();
  const int threads = CountThreads();
  const int files = CountOpenFiles();
  void* library = Load(argv[1]);
  if (!library) {
    std::puts("not loaded");
    return 1;
  }
  std::puts("loaded");

  const void* extension = Find(library, "_ZN9NZRVQDA2011TOSSpecific16kPluginExtensionB5cxx11E");
  if (extension) {
    std::printf("kPluginExtension is %s\n", static_cast<const std::string*>(extension)->c_str());
  }
  typedef NZRVQDA20::ILogger* (*GetCoreLogger)();
  if (void* get = Find(library, "_ZN9NZRVQDA2011TRootObject13GetCoreLoggerEv")) {
    std::printf("core logger is %s\n", reinterpret_cast<GetCoreLogger>(get)() ? "there" : "null");
  }
  // A boost::shared_ptr is two pointers.
  void* const* registry = static_cast<void* const*>(
      Find(library, "_ZN9NZRVQDA2025TNamespaceProviderManager10fgInstanceE"));
  if (registry) {
    std::printf("registry is %s\n", registry[0] || registry[1] ? "there" : "empty");
  }
  std::puts(CountThreads() == threads ? "no new thread" : "a new thread");
  std::puts(CountOpenFiles() == files ? "no new file" : "a new file");
  std::puts(DeclinesThreadNotices(library) ? "no thread notices" : "thread notices");
  std::puts(Unload(library, argv[1]) ? "unloaded" : "still loaded");
  return 0;
}
