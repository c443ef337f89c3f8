// What is said of a session that is not good.

#include <qda/BmcOutput.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using qda::BmcComplaint;
using qda::BmcSession;

BmcSession Session(const char* lastRequest, int socketError, bool isConfirmed,
                   const char* doubt = "") {
  BmcSession session;
  session.lastRequest = lastRequest;
  session.socketError = socketError;
  session.isConfirmed = isConfirmed;
  session.doubt = doubt;
  return session;
}

TEST(BmcComplaintText, SaysWhatToTryWhenTheBmcIsSilent) {
  const struct {
    BmcSession session;
    const char* advice;
  } rows[] = {
      {Session("Get Session Challenge", 11, false),
       "check the address, that the BMC has IPMI over LAN enabled, and that UDP port 623 is open"},
      {Session("Activate Session", 11, false),
       "user name or password may be wrong, or the BMC refuses straight password authentication"},
      // A BMC without a session has nothing to say to what follows.
      {Session("Set Session Privilege Level", 11, false),
       "Activate Session was refused, or its reply is damaged; user name or password may be wrong"},
      {Session("Set Session Privilege Level", 10060, true),
       "the session was activated, but the BMC takes no messages that are numbered from 1"},
      {Session("Get SEL Entry", 10060, false, "what failed"),
       "Activate Session was refused, or its reply is damaged; user name or password may be wrong"},
      {Session("Get SEL Entry", 11, true),
       "the session was opened; nothing is sent twice, so try again"},
      {Session("Get SEL Entry", 11, true, "what failed"), "what failed"}};
  for (const auto& row : rows) {
    EXPECT_EQ("BMC at 192.0.2.7: no reply to " + row.session.lastRequest +
                  " within 5 seconds (socket error " + std::to_string(row.session.socketError) +
                  ", kQDAStatusConnectionFailed); " + row.advice,
              BmcComplaint("192.0.2.7", row.session));
  }
}

TEST(BmcComplaintText, TellsSocketErrorsOfBothSystemsInWords) {
  const struct {
    int windows;
    int linux_;
    const char* text;
  } rows[] = {{10040, 90, "the reply is longer than any that was asked for"},
              {10054, 104, "the address has no one who listens"},
              {10061, 111, "the address has no one who listens"},
              {10051, 101, "the network is unreachable"},
              {10065, 113, "the host is unreachable"},
              {10013, 13, "not permitted"},
              {10022, 22, "the request could not be sent"},
              {10038, 9, "no socket could be opened"},
              {10050, 100, "the network is down"},
              {-1, 4711, "the host's sockets failed"}};
  for (const auto& row : rows) {
    for (const int error : {row.windows, row.linux_}) {
      EXPECT_EQ("BMC at 192.0.2.7: Activate Session: " + std::string(row.text) + " (socket error " +
                    std::to_string(error) + ", kQDAStatusConnectionFailed)",
                BmcComplaint("192.0.2.7", Session("Activate Session", error, false)));
    }
  }
}

TEST(BmcComplaintText, IsEmptyForAGoodSession) {
  EXPECT_EQ("", BmcComplaint("192.0.2.7", Session("Get SEL Entry", 0, true)));
  EXPECT_NE("", BmcComplaint("192.0.2.7", Session("Get SEL Entry", 0, false)));
  EXPECT_NE("", BmcComplaint("192.0.2.7", Session("Get SEL Entry", 0, true, "what failed")));
}

}  // namespace
