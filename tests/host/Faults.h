// Fails the n-th host call, for every n: one loop goes through every failure path of an operation.
//
//   class FaultyClock : public ForwardingClock {         // forwards what is not to fail now
//     bool ReadLocalNow(host::LocalNow& now) override {
//       return !fPlan.Fails("ReadLocalNow") && ForwardingClock::ReadLocalNow(now);
//     }
//     ...
//   };
//
//   const int calls = FailEachCall(kDenied, [](FaultPlan& plan) {
//     FaultyClock clock(plan);
//     ScopedHost host(...);
//     const std::string status = ThrownStatus([] { ... });
//     if (plan.Reached()) { what has to hold when plan.FailedCall() fails }
//     else { what has to hold when nothing does }
//   });
//   EXPECT_EQ(3, calls);   // the loop did reach what it was written for

#ifndef TESTS_HOST_FAULTS_H
#define TESTS_HOST_FAULTS_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <qdacore/host/Situation.h>

namespace host_fakes {

using namespace NZRVQDA20;

// Every way in which a host call can say that it failed, with the number that is shown for it.
const host::Outcome kExists = {host::Situation::kExists, 183};
const host::Outcome kDenied = {host::Situation::kDenied, 5};
const host::Outcome kNotReady = {host::Situation::kNotReady, 21};
const host::Outcome kNoFile = {host::Situation::kNoFile, 2};
const host::Outcome kNoPath = {host::Situation::kNoPath, 3};
const host::Outcome kOther = {host::Situation::kOther, 31};

inline std::vector<host::Outcome> AllFailures() {
  return {kExists, kDenied, kNotReady, kNoFile, kNoPath, kOther};
}

// Which call of a run fails, and what was called.
class FaultPlan {
 public:
  // Call number `failAt`, from 1, fails with `failure`; 0: none does.
  FaultPlan(int failAt, const host::Outcome& failure) : fFailAt(failAt), fFailure(failure) {}
  FaultPlan(const FaultPlan&) = delete;
  FaultPlan& operator=(const FaultPlan&) = delete;

  // For a forwarding seam, once in each call that can fail: true when this one has to.
  bool Fails(const std::string& call) {
    fCalls.push_back(call);
    return Reached() && fCalls.size() == static_cast<std::size_t>(fFailAt);
  }

  // The call that had to fail was made.
  bool Reached() const { return fFailAt > 0 && fCalls.size() >= static_cast<std::size_t>(fFailAt); }

  const host::Outcome& Failure() const { return fFailure; }

  // The calls so far that could fail, in order.
  const std::vector<std::string>& Calls() const { return fCalls; }

  // As it was given to Fails; only when Reached.
  const std::string& FailedCall() const { return fCalls.at(static_cast<std::size_t>(fFailAt) - 1); }

 private:
  const int fFailAt;
  const host::Outcome fFailure;
  std::vector<std::string> fCalls;
};

// Runs `run(plan)` with its first call failing, then with its second, and so on, until a run does
// not reach its failure. Returns how many calls can fail in that untouched run.
template <class Run>
int FailEachCall(const host::Outcome& failure, Run run) {
  const int most = 1000;
  for (int failAt = 1; failAt <= most; ++failAt) {
    FaultPlan plan(failAt, failure);
    {
      const testing::ScopedTrace trace(__FILE__, __LINE__,
                                       "call " + std::to_string(failAt) + " fails with number " +
                                           std::to_string(failure.number));
      run(plan);
    }
    if (!plan.Reached()) {
      return static_cast<int>(plan.Calls().size());
    }
  }
  ADD_FAILURE() << "no end after " << most << " runs";
  return most;
}

}  // namespace host_fakes

#endif
