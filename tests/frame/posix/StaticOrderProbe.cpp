// Catches __cxa_atexit: the linker turns calls of it into calls of __wrap___cxa_atexit.

#include <tests/frame/StaticOrderProbe.h>

namespace {

struct Registered {
  void (*destructor)(void*);
  void* object;
};

const int kMost = 64;
Registered registered[kMost];

void Run(void* numberedSlot) {
  const Registered& slot = *static_cast<const Registered*>(numberedSlot);
  static_order::OnDestruction(static_cast<int>(&slot - registered));
  slot.destructor(slot.object);
}

}  // namespace

extern "C" {

int __real___cxa_atexit(void (*destructor)(void*), void* object, void* module);

int __wrap___cxa_atexit(void (*destructor)(void*), void* object, void* module) {
  if (!static_order::recording) {
    return __real___cxa_atexit(destructor, object, module);
  }
  const int number = static_order::OnRegistration(object);
  if (number >= kMost) {
    return -1;
  }
  registered[number] = {destructor, object};
  return __real___cxa_atexit(Run, &registered[number], module);
}

}  // extern "C"
