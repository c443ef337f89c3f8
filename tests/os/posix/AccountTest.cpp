// The account and the machine's name, when they are others than usual.

#include <errno.h>
#include <sched.h>
#include <string.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/support/ChildProcess.h>

namespace {

using namespace NZRVQDA20;
using namespace test_support;

const uid_t kNobody = 65534;

// The effective user counts, whoever the real one is.
QDACORE_CHILD(DropsItsRights) {
  if (!TOSSpecific::IsAdmin() || seteuid(kNobody) != 0) {
    return 1;
  }
  if (TOSSpecific::IsAdmin()) {
    return 2;
  }
  if (seteuid(0) != 0 || !TOSSpecific::IsAdmin()) {
    return 3;
  }
  return setuid(kNobody) == 0 && !TOSSpecific::IsAdmin() ? 0 : 4;
}

TEST(IsAdmin, FollowsTheEffectiveUser) {
  if (geteuid() != 0) {
    EXPECT_FALSE(TOSSpecific::IsAdmin());
    GTEST_SKIP() << "only root can become somebody else";
  }
  EXPECT_EQ(0, RunChild("DropsItsRights").exitCode);
}

const int kNoNameOfItsOwn = 77;

// In a name space of its own, so that nobody else sees the name.
QDACORE_CHILD(HasALongName) {
  const std::string name = arguments.at(0);
  if (unshare(CLONE_NEWUTS) != 0 || sethostname(name.data(), name.size()) != 0) {
    std::fputs(strerror(errno), stdout);
    return kNoNameOfItsOwn;
  }
  std::fputs((TOSSpecific::GetMachineName() + "|" + TOSSpecific::GetOperatingSystemName()).c_str(),
             stdout);
  return 0;
}

TEST(GetMachineName, OfAnyLengthIsWhole) {
  for (const std::size_t length : {1u, 15u, 16u, 17u, 63u, 64u}) {
    const std::string name = std::string(length - 1, 'n') + "z";
    const ChildResult result = RunChild("HasALongName", {}, {name});
    if (result.exitCode == kNoNameOfItsOwn) {
      GTEST_SKIP() << "no machine name of one's own here: " << result.output;
    }
    EXPECT_EQ(name + "|" + name, result.output);
  }
}

}  // namespace
