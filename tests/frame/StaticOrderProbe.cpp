#include <tests/frame/StaticOrderProbe.h>

#include <cstdio>

#include <qdacore/plugin/INamespaceProvider.h>
#include <qdacore/plugin/TNamespaceProviderManager.h>

namespace static_order {

namespace {

// Plain data, because it is used before anything of this file is built.
int registrations;
char states[kRows][kRows];
bool wrongObject;

class Provider : public NZRVQDA20::INamespaceProvider {
 public:
  ~Provider() override { std::puts("provider in the registry"); }
  const std::string& GetName(std::map<std::string, NZRVQDA20::TCIMValue>) const override {
    return fName;
  }

 private:
  std::string fName = "provider";
};

}  // namespace

int OnRegistration(const void* object) {
  const int number = ++registrations;
  if (number <= kRows) {
    WriteState(states[number - 1]);
    wrongObject = wrongObject || (object && object != AddressOfRow(number));
  }
  return number;
}

void OnDestruction(int number) { std::printf("release %d\n", number); }

}  // namespace static_order

int main() {
  using namespace static_order;
  for (int number = 0; number < kRows; ++number) {
    std::printf("build %d: %s\n", number + 1, states[number]);
  }
  std::printf("%d in all\n", registrations);
  std::puts(wrongObject ? "a destructor of another object" : "each its own destructor");
  NZRVQDA20::TNamespaceProviderManager::GetInstance()->RegisterNamespaceProvider(
      boost::shared_ptr<NZRVQDA20::INamespaceProvider>(new Provider));
  return 0;
}
