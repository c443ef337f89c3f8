// Names and services of this machine, asked of the host's own resolver.

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/support/LogCapture.h>
#include <tests/transfer/LastSocketError.h>

namespace {

using NZRVQDA20::TOSSpecific;
using transfer_test::LastSocketError;
using transfer_test::SetLastSocketError;

typedef std::vector<std::string> Lines;

const char kResolves[] = "[Debug] TOSSpecific debug output: getaddrinfo() successfully!";
const char kFails[] = "[Debug] TOSSpecific debug output: getaddrinfo() failed.";

struct Row {
  const char* what;
  std::string name;
  std::string service;
  bool resolves;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.what; }

class Names : public testing::TestWithParam<Row> {};

TEST_P(Names, LeaveTheCodeThatIsReturnedAsTheLastSocketError) {
  const test_support::LogCapture log;
  SetLastSocketError(1);
  const int code = TOSSpecific::DetectHostnameAvailable(GetParam().name, GetParam().service);
  const int left = LastSocketError();
  EXPECT_EQ(GetParam().resolves, code == 0) << code;
  EXPECT_EQ(code, left);
  EXPECT_EQ((Lines{code == 0 ? kResolves : kFails}), log.Lines());
}

// None of them asks a name server: addresses, this machine, or no name at all.
INSTANTIATE_TEST_SUITE_P(
    Rows, Names,
    testing::Values(Row{"this machine", "localhost", "21", true},
                    Row{"address", "127.0.0.1", "65535", true},
                    Row{"service by name", "127.0.0.1", "ftp", true},
                    Row{"IPv6 address", "::1", "21", false},
                    Row{"unknown service", "127.0.0.1", "no-such-service", false},
                    Row{"NUL in the name", std::string("localhost\0x", 11), "21", false},
                    Row{"NUL in the service", "127.0.0.1", std::string("21\0x", 4), false}));

// Without a log to write there is nothing between the two either.
TEST(NamesWithoutALogger, LeaveTheCodeToo) {
  SetLastSocketError(1);
  const int code = TOSSpecific::DetectHostnameAvailable("::1", "21");
  const int left = LastSocketError();
  EXPECT_NE(0, code);
  EXPECT_EQ(code, left);
}

// The codes are the host's own.
TEST(NamesCode, IsTheResolversOwn) {
  EXPECT_EQ(transfer_test::kUnknownService,
            TOSSpecific::DetectHostnameAvailable("127.0.0.1", "no-such-service"));
}

}  // namespace
