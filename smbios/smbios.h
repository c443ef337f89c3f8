// smbios: the machine's SMBIOS structures (DMTF DSP0134), one at a time.
//
// Where the table comes from is settled when it is loaded. With the environment
// variable QDA_SMBIOS_DUMP unset or empty it is this machine's firmware; otherwise
// the variable names a file, which is opened for reading only: a dump with its
// entry point, as `dmidecode --dump-bin` writes it, or a bare structure table.
//
//   void* handle = nullptr;
//   if (smBiosLoad(nullptr, &handle).GetStatusCode() == TQDAStatusCode::kQDAStatusOK && handle) {
//     unsigned char system[1024];
//     int size = sizeof system;
//     if (smBiosGetFirst(handle, 1, system, &size).GetStatusCode() == TQDAStatusCode::kQDAStatusOK)
//       product = smbios::StringField(system, size, 5);  // <smbios/SmbiosFields.h>
//     smBiosClose(&handle);
//   }
//
// A structure is delivered as it stands in the table: the formatted area (whose
// length is its second byte), the strings, each closed by a NUL, and one more NUL
// behind the last string. A structure without strings has two NULs there. Both
// closing NULs are delivered and counted.
//
// What the table says is not to be trusted. The library checks where structures
// begin and end, and nothing else: fields and string numbers are the reader's to
// check, or those of <smbios/SmbiosFields.h>.
//
// The functions never throw. Their status is passed by value and needs no link to
// the core library. Any number of threads may read through one handle at once;
// none may while it is closed. Loading reads the environment, so no other thread
// may change that meanwhile.

#ifndef SMBIOS_SMBIOS_H
#define SMBIOS_SMBIOS_H

#include <qdacore/frame/TQDAStatusCode.h>

// SMBIOS_BUILDING is defined only while the library's own sources (or a test that
// links them directly) are compiled.
#if defined(_WIN32)
#if defined(SMBIOS_BUILDING)
#define SMBIOS_EXPORT __declspec(dllexport)
#else
#define SMBIOS_EXPORT __declspec(dllimport)
#endif
#else
#define SMBIOS_EXPORT __attribute__((visibility("default")))
#endif

namespace NZRVQDA20 {
class TPluginManagerProvider;
}

// Stands for every structure type in smBiosGetNext.
enum { kSmBiosAnyType = -1 };

// C linkage is for the plain names only: the status is a C++ class on both sides.
#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#elif defined(_MSC_VER)
#pragma warning(push)
#pragma warning(disable : 4190)
#endif

extern "C" {

// Reads the whole table and stores a handle to it in `*handle`; the caller closes
// it with smBiosClose. `provider` is not used and may be null. `*handle` is null
// whenever there is nothing to close.
//   kQDAStatusOK            loaded; or, with a null handle, a machine whose firmware
//                           has no SMBIOS table, as in most containers
//   kQDAStatusFileNotFound  the dump file is not there
//   kQDAStatusAccessDenied  the dump file or the firmware's table may not be read
//   kQDAStatusOutOfMemory   no memory for the table
//   kQDAStatusFail          `handle` is null; the dump file is no ordinary file, is larger
//                           than 16 MiB or holds no SMBIOS table; its entry point has a bad
//                           checksum; the table has no whole structure; a read failed
SMBIOS_EXPORT NZRVQDA20::TQDAStatusCode smBiosLoad(
    NZRVQDA20::TPluginManagerProvider const* provider, void** handle);

// Copies the first structure of `type` (0 to 255) into `buffer`. `*size` goes in as
// the buffer's capacity in bytes and comes out as the number of bytes delivered,
// which is 0 for every status but kQDAStatusOK. The buffer is written on
// kQDAStatusOK only, and no further than the structure reaches.
//   kQDAStatusOK            delivered
//   kQDAStatusNoMoreItems   the table has no structure of this type
//   kQDAStatusFail          a null argument, a capacity below 1, or a structure larger
//                           than the buffer
SMBIOS_EXPORT NZRVQDA20::TQDAStatusCode smBiosGetFirst(void* handle, int type, void* buffer,
                                                       int* size);

// The same for the structure number `index`, from 0, among those of `type` in table
// order; kSmBiosAnyType counts all of them. So a walk asks for 0, 1, 2 and so on
// until kQDAStatusNoMoreItems, setting `*size` anew each time. With kSmBiosAnyType a
// step takes the same time whatever the table's size; the end-of-table structure
// (type 127) is delivered too and is always the last. 64 KiB take every structure of
// a table before SMBIOS 3.0, and every one seen in practice; larger ones can be
// passed over, for each index stands for itself.
SMBIOS_EXPORT NZRVQDA20::TQDAStatusCode smBiosGetNext(void* handle, int type, unsigned int index,
                                                      void* buffer, int* size);

// The SMBIOS version that the table's entry point states, such as 2 and 8.
//   kQDAStatusOK            both stored
//   kQDAStatusNotFound      not stated, as in a bare table: 0 and 0 are stored
//   kQDAStatusFail          a null argument; nothing is stored
SMBIOS_EXPORT NZRVQDA20::TQDAStatusCode smBiosGetVersion(void* handle, int* major, int* minor);

// Frees the table and sets `*handle` to null. Closing a null handle is harmless.
//   kQDAStatusOK            closed, or nothing to close
//   kQDAStatusFail          `handle` itself is null
SMBIOS_EXPORT NZRVQDA20::TQDAStatusCode smBiosClose(void** handle);

}  // extern "C"

#if defined(__clang__)
#pragma clang diagnostic pop
#elif defined(_MSC_VER)
#pragma warning(pop)
#endif

#endif
