// The export macro of the in-memory namespace library. QDAMEMORY_BUILDING is defined only
// while the library's own sources are compiled.

#ifndef QDAMEMORY_EXPORT_H
#define QDAMEMORY_EXPORT_H

#if defined(_WIN32)
#if defined(QDAMEMORY_BUILDING)
#define QDAMEMORY_EXPORT __declspec(dllexport)
#else
#define QDAMEMORY_EXPORT __declspec(dllimport)
#endif
#else
#define QDAMEMORY_EXPORT __attribute__((visibility("default")))
#endif

#endif
