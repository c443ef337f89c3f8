// What the test modules share: export, and a line on standard output at start and end, which
// tells a test how long a module stays loaded.

#ifndef TESTS_MODULES_MODULEEXPORT_H
#define TESTS_MODULES_MODULEEXPORT_H

#include <cstdio>

#if defined(_WIN32)
#define MODULE_EXPORT extern "C" __declspec(dllexport)
#else
#define MODULE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

class TellsOfItself {
 public:
  explicit TellsOfItself(const char* name) : fName(name) { Say("starts"); }
  ~TellsOfItself() { Say("ends"); }
  TellsOfItself(const TellsOfItself&) = delete;
  TellsOfItself& operator=(const TellsOfItself&) = delete;

 private:
  void Say(const char* what) const {
    std::printf("%s %s\n", fName, what);
    std::fflush(stdout);
  }

  const char* fName;
};

#endif
