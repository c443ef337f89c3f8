#include <tests/frame/LibraryLoadProbe.h>

#include <windows.h>

#include <tlhelp32.h>

#include <cstring>

namespace library_load_probe {

void Prepare() {}

void* Load(const char* path) { return LoadLibraryA(path); }

void* Find(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

// By its import: the loader itself may not heed the call, as for a module with a thread-local
// section, which MinGW's runtime gives to every module.
bool DeclinesThreadNotices(void* library) {
  const char* image = static_cast<const char*>(library);
  const IMAGE_DOS_HEADER& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(image);
  const IMAGE_NT_HEADERS& headers =
      *reinterpret_cast<const IMAGE_NT_HEADERS*>(image + dos.e_lfanew);
  const IMAGE_DATA_DIRECTORY& imports =
      headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  for (const IMAGE_IMPORT_DESCRIPTOR* module =
           reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(image + imports.VirtualAddress);
       module->Name != 0; ++module) {
    for (const IMAGE_THUNK_DATA* thunk =
             reinterpret_cast<const IMAGE_THUNK_DATA*>(image + module->OriginalFirstThunk);
         thunk->u1.AddressOfData != 0; ++thunk) {
      if (!IMAGE_SNAP_BY_ORDINAL(thunk->u1.Ordinal) &&
          std::strcmp("DisableThreadLibraryCalls",
                      reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(image + thunk->u1.AddressOfData)
                          ->Name) == 0) {
        return true;
      }
    }
  }
  return false;
}

bool Unload(void* library, const char* path) {
  return FreeLibrary(static_cast<HMODULE>(library)) && !GetModuleHandleA(path);
}

int CountThreads() {
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  THREADENTRY32 entry = {};
  entry.dwSize = sizeof entry;
  int count = 0;
  for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
    count += entry.th32OwnerProcessID == GetCurrentProcessId();
  }
  CloseHandle(snapshot);
  return count;
}

// Handles of all kinds are counted on this host, and a load makes some of its own.
int CountOpenFiles() { return 0; }

}  // namespace library_load_probe
