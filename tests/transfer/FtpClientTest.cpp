// Machines whose FTP client is missing or lacks a function: the library loads all the same, and
// says so. Each transfer is a process of its own, which finds the client that the test gives it.

#include <tests/transfer/FtpClientChildren.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using transfer_test::ClientThatLacks;
using transfer_test::FtpClientCopy;
using transfer_test::Lines;

const char kNotLoaded[] = "[Error] WindowsOS: ERROR: Unable to load wininet.dll";
const char kNotInitialized[] = "[Error] WindowsOS: ERROR: Unable to initialize wininet.dll";
const char kNotStarted[] = "[Error] WindowsOS: ERROR: Couldn't establish Internet connection";

TEST(FtpClient, FileThatIsNoLibraryIsNotLoaded) {
  const FtpClientCopy machine("");
  EXPECT_EQ((Lines{"false", kNotLoaded}), machine.Run("Uploads", "u:p@127.0.0.1"));
  EXPECT_EQ((Lines{"false", kNotLoaded}), machine.Run("Downloads", "127.0.0.1"));
}

#if defined(_WIN32)
const int kUploadNeeds[] = {1, 2, 3};    // InternetOpenA, InternetConnectA, FtpPutFileA
const int kDownloadNeeds[] = {1, 2, 4};  // FtpGetFileA in the last one's place
#else
const int kUploadNeeds[] = {1, 2, 3, 4, 5, 6, 7};
const int kDownloadNeeds[] = {1, 2, 3, 4, 5, 6, 7};
#endif

TEST(FtpClient, FunctionThatUploadsNeedIsMissing) {
  for (const int function : kUploadNeeds) {
    const FtpClientCopy machine(ClientThatLacks(function));
    EXPECT_EQ((Lines{"false", kNotInitialized}), machine.Run("Uploads", "u:p@127.0.0.1"))
        << function;
  }
}

TEST(FtpClient, FunctionThatDownloadsNeedIsMissing) {
  for (const int function : kDownloadNeeds) {
    const FtpClientCopy machine(ClientThatLacks(function));
    EXPECT_EQ((Lines{"false", kNotInitialized}), machine.Run("Downloads", "127.0.0.1")) << function;
  }
}

TEST(FtpClient, ThatDoesNotStartIsTold) {
  const FtpClientCopy machine(ClientThatLacks(0));
  const Lines upload = machine.Run("Uploads", "h", "no-session");
  ASSERT_LE(3u, upload.size());
  EXPECT_EQ((Lines{"false",
                   "[Debug] TOSSpecific debug output: username: userpassword: userpath: userport: "
                   "remoteName:h",
                   kNotStarted}),
            Lines(upload.end() - 3, upload.end()));
  const Lines download = machine.Run("Downloads", "h", "no-session");
  ASSERT_LE(2u, download.size());
  EXPECT_EQ((Lines{"false", kNotStarted}), Lines(download.end() - 2, download.end()));
}

}  // namespace
