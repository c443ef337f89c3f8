// A libcurl that lacks one of the functions that transfers need: LACKS says which, by its place
// below. With 0 it has them all, and does not start.

#include <tests/modules/ModuleExport.h>

#if LACKS != 1
MODULE_EXPORT void* curl_easy_init() { return nullptr; }
#endif
#if LACKS != 2
MODULE_EXPORT void curl_easy_cleanup(void*) {}
#endif
#if LACKS != 3
MODULE_EXPORT int curl_easy_setopt(void*, int, ...) { return 1; }
#endif
#if LACKS != 4
MODULE_EXPORT int curl_easy_perform(void*) { return 1; }
#endif
#if LACKS != 5
MODULE_EXPORT int curl_easy_getinfo(void*, int, ...) { return 1; }
#endif
#if LACKS != 6
MODULE_EXPORT char* curl_easy_escape(void*, const char*, int) { return nullptr; }
#endif
#if LACKS != 7
MODULE_EXPORT void curl_free(void*) {}
#endif
