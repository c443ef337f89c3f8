// Catches atexit: the linker turns calls of it into calls of __wrap_atexit. The functions that are
// registered have no arguments, so each gets a function of its own to stand for it.

#include <tests/frame/StaticOrderProbe.h>

#include <utility>

namespace {

typedef void (*Function)();

const int kMost = 64;
Function registered[kMost];

template <int number>
void Run() {
  static_order::OnDestruction(number);
  registered[number]();
}

template <int... numbers>
Function Runner(int number, std::integer_sequence<int, numbers...>) {
  const Function all[] = {Run<numbers>...};
  return all[number];
}

}  // namespace

extern "C" {

int __real_atexit(Function function);

int __wrap_atexit(Function function) {
  if (!static_order::recording) {
    return __real_atexit(function);
  }
  const int number = static_order::OnRegistration(nullptr);
  if (number >= kMost) {
    return -1;
  }
  registered[number] = function;
  return __real_atexit(Runner(number, std::make_integer_sequence<int, kMost>()));
}

}  // extern "C"
