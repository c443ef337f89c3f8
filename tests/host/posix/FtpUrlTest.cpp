// Which servers have a URL, and which texts are none.

#include <string>

#include <gtest/gtest.h>

#include <qdacore/host/posix/FtpUrl.h>

namespace {

using NZRVQDA20::host::FtpUrlOf;

TEST(FtpUrl, NamesAndAddressesHaveOne) {
  EXPECT_EQ("ftp://ftp.example/", FtpUrlOf("ftp.example"));
  EXPECT_EQ("ftp://A-b_9/", FtpUrlOf("A-b_9"));
  EXPECT_EQ("ftp://127.0.0.1/", FtpUrlOf("127.0.0.1"));
  EXPECT_EQ("ftp://[::1]/", FtpUrlOf("::1"));
  EXPECT_EQ("ftp://[::ffff:1.2.3.4]/", FtpUrlOf("::ffff:1.2.3.4"));
  EXPECT_EQ("ftp://[fe80::1%25eth0]/", FtpUrlOf("fe80::1%eth0"));
}

TEST(FtpUrl, MarksOfAUrlAreNoPartOfAServer) {
  for (const char* server :
       {"", "h/x", "u@h", "h?x", "h#x", "h x", "h%41", "[::1]", "h:21", "u:p@h", "::1]/x", "::1%",
        "::1%a/b", "::1%25eth0%", "h;type=a", "h\\x", "a:b:g"}) {
    EXPECT_EQ("", FtpUrlOf(server)) << server;
  }
}

}  // namespace
