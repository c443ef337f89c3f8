#include <unistd.h>

#include <qdacore/host/HostServices.h>

namespace NZRVQDA20 {
namespace host {
namespace {

class PosixAccount final : public Account {
 public:
  bool IsAdministrator() override { return geteuid() == 0; }
};

}  // namespace

Account& SystemAccount() {
  static PosixAccount account;
  return account;
}

}  // namespace host
}  // namespace NZRVQDA20
