// What the probe asks its host for. The probe is not linked to the library: it finds everything
// by the names that the Itanium C++ ABI gives, which GCC and Clang use on every platform.

#ifndef TESTS_FRAME_LIBRARYLOADPROBE_H
#define TESTS_FRAME_LIBRARYLOADPROBE_H

namespace library_load_probe {

// Called before the load; from then on, where the host can do it, writing a file is fatal.
void Prepare();
void* Load(const char* path);
void* Find(void* library, const char* name);
// Whether the library asks not to be told of the start and end of threads.
bool DeclinesThreadNotices(void* library);
// False when the library is still there afterwards.
bool Unload(void* library, const char* path);
int CountThreads();
int CountOpenFiles();

}  // namespace library_load_probe

#endif
