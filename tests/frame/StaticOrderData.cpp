// The library's static data between two marks, and a look at it from outside.

// Before the first mark: the runtime's own streams are no datum of the library.
#include <iostream>

#include <tests/frame/StaticOrderProbe.h>

namespace {

struct Begin {
  Begin() { static_order::recording = true; }
};
const Begin begin;

}  // namespace

#include <qdacore/StaticData.cpp>

namespace {

struct End {
  End() { static_order::recording = false; }
};
const End end;

using namespace NZRVQDA20;

// Access is not checked in an explicit instantiation: each hands a private member out through a
// friend of that name.
template <class Tag, typename Tag::Type member>
struct HandOut {
  friend typename Tag::Type Get(Tag) { return member; }
};

struct SystemClass {
  typedef const std::string* Type;
  friend Type Get(SystemClass);
};
template struct HandOut<SystemClass, &TCIMSchemaHelper::kSystemCreationClassName>;

struct OperatingSystemClass {
  typedef const std::string* Type;
  friend Type Get(OperatingSystemClass);
};
template struct HandOut<OperatingSystemClass, &TCIMSchemaHelper::kOperatingSystemCreationClassName>;

struct StatusNames {
  typedef const std::string (*Type)[44];
  friend Type Get(StatusNames);
};
template struct HandOut<StatusNames, &TQDAStatusCode::fgStatusNames>;

struct Registry {
  typedef boost::shared_ptr<TNamespaceProviderManager>* Type;
  friend Type Get(Registry);
};
template struct HandOut<Registry, &TNamespaceProviderManager::fgInstance>;

// Static memory is zero until something is built in it, and no string is all zeros.
char StateOf(const void* object, unsigned size) {
  const volatile unsigned char* bytes = static_cast<const volatile unsigned char*>(object);
  for (unsigned at = 0; at < size; ++at) {
    if (bytes[at] != 0) {
      return '1';
    }
  }
  return '0';
}

}  // namespace

namespace static_order {

bool recording;

const void* AddressOfRow(int row) {
  switch (row) {
    case 1:
      return Get(SystemClass());
    case 2:
      return &TCIMSchemaHelper::kPluginNSPName;
    case 3:
      return &TCIMSchemaHelper::kCMPINSPName;
    case 4:
      return &TCIMSchemaHelper::kContextName;
    case 5:
      return Get(OperatingSystemClass());
    case 6:
      return Get(StatusNames());
    case 7:
      return &TOSSpecific::kDynamicModuleExtension;
    case 8:
      return &TOSSpecific::kQDAPluginExtension;
    case 9:
      return &TOSSpecific::kPluginExtension;
    case 10:
      return &TOSSpecific::kSpecificationExtension;
    case 11:
      return &TOSSpecific::kRegistrationExtension;
    case 12:
      return &TOSSpecific::kFileSeparator;
    case 13:
      return &TOSSpecific::libx86IntrAddrFile;
    default:
      return Get(Registry());
  }
}

void WriteState(char (&state)[kRows]) {
  for (int row = 1; row < kRows; ++row) {
    state[row - 1] = StateOf(AddressOfRow(row), sizeof(std::string));
  }
  for (const std::string& name : *Get(StatusNames())) {
    if (StateOf(&name, sizeof name) != state[5]) {
      state[5] = '?';
    }
  }
  state[kRows - 1] = '\0';
}

}  // namespace static_order
