#include <tests/frame/LibraryLoadProbe.h>

#include <dirent.h>
#include <dlfcn.h>
#include <sys/resource.h>

namespace library_load_probe {

namespace {

int CountEntries(const char* path) {
  DIR* directory = opendir(path);
  if (!directory) {
    return -1;
  }
  int count = 0;
  while (readdir(directory)) {
    ++count;
  }
  closedir(directory);
  return count;
}

}  // namespace

// One byte to a file, whichever, ends the process. Our own output goes into a pipe.
void Prepare() {
  const struct rlimit none = {0, 0};
  setrlimit(RLIMIT_FSIZE, &none);
}

void* Load(const char* path) { return dlopen(path, RTLD_NOW | RTLD_LOCAL); }

void* Find(void* library, const char* name) { return dlsym(library, name); }

// There are none on this host.
bool DeclinesThreadNotices(void*) { return true; }

bool Unload(void* library, const char* path) {
  return dlclose(library) == 0 && !dlopen(path, RTLD_NOW | RTLD_NOLOAD);
}

int CountThreads() { return CountEntries("/proc/self/task"); }

int CountOpenFiles() { return CountEntries("/proc/self/fd"); }

}  // namespace library_load_probe
