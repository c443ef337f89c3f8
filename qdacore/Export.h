// The export macro of the core library. QDACORE_BUILDING is defined only while
// the library's own sources (or a test that links them directly) are compiled.

#ifndef QDACORE_EXPORT_H
#define QDACORE_EXPORT_H

#if defined(_WIN32)
#if defined(QDACORE_BUILDING)
#define QDACORE_EXPORT __declspec(dllexport)
#else
#define QDACORE_EXPORT __declspec(dllimport)
#endif
#else
#define QDACORE_EXPORT __attribute__((visibility("default")))
#endif

#endif
