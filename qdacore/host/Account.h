// The account that the process runs under. Nothing here throws.

#ifndef QDACORE_HOST_ACCOUNT_H
#define QDACORE_HOST_ACCOUNT_H

namespace NZRVQDA20 {
namespace host {

class Account {
 public:
  // Whether the caller holds administrative rights on the host. What cannot be told is false.
  virtual bool IsAdministrator() = 0;

 protected:
  // Never deleted through this: the objects are static, and need no end.
  ~Account() = default;
};

Account& HostAccount();

}  // namespace host
}  // namespace NZRVQDA20

#endif
