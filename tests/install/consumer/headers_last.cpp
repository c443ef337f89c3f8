// The system's own headers behind ours.
#include <qdacore/qdacore.h>

#if defined(_WIN32)
#include <windows.h>
#endif

bool NamesAClassBeforeTheSystem(NZRVQDA20::TCIMReference& reference) {
  try {
    return !reference.GetClassName().empty();
  } catch (const NZRVQDA20::TQDAException&) {
    return false;
  }
}
