// The system's own headers before ours.
#if defined(_WIN32)
#include <windows.h>
#endif

#include <qdacore/qdacore.h>

bool NamesAClassAfterTheSystem(NZRVQDA20::TCIMReference& reference) {
  try {
    return !reference.GetClassName().empty();
  } catch (const NZRVQDA20::TQDAException&) {
    return false;
  }
}
