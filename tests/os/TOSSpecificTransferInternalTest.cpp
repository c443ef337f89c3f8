// Transfers over a client of the test's own: each step in its order with what it is given, and
// every row of what can fail.

#include <gtest/gtest.h>

#include <qdacore/os/TOSSpecific.h>
#include <tests/host/FtpFakes.h>
#include <tests/host/HostFakes.h>
#include <tests/support/LogCapture.h>

namespace {

using namespace NZRVQDA20;
using namespace host_fakes;
using test_support::LogCapture;

typedef std::vector<std::string> Lines;

const char kNoDirectory[] = "[Error] TOSSpecific Error: Couldn't do GetCurrentDirectory.";
const char kNotEntered[] = "[Error] TOSSpecific Error: Couldn't do SetCurrentDirectory.";

std::string Debug(const std::string& text) { return "[Debug] TOSSpecific debug output: " + text; }

class FakeFtp : public testing::Test {
 protected:
  FakeFtp() : fHost(WithClient(fClient)) {}

  static host::Replacements WithClient(FakeFtpClient& client) {
    host::Replacements replacements;
    replacements.ftpClient = &client;
    return replacements;
  }

  bool Upload(const std::string& target) { return TOSSpecific::FTPFile(target, "local", "remote"); }
  bool Download(const std::string& target) {
    return TOSSpecific::FTPFileFromZRV(target, "local", "remote");
  }

  FakeFtpClient fClient;
  ScopedHost fHost;
  LogCapture fLog;
};

TEST_F(FakeFtp, CustomUploadTakesItsStepsInOrder) {
  fClient.directory = "/home";
  EXPECT_TRUE(Upload("u:p@h:2121/in"));
  EXPECT_EQ((Lines{"bind upload", "open InetURL/1.0", "connect h 2121 u p", "get directory",
                   "set directory /home/in", "put local remote", "end"}),
            fClient.calls);
  EXPECT_EQ((Lines{Debug("username:u userpassword:p userpath:/in userport:2121 remoteName:h")}),
            fLog.Lines());
}

TEST_F(FakeFtp, PasswordKeepsItsColonsAndStandsInTheDebugLog) {
  EXPECT_TRUE(Upload("u:a:b@h"));
  EXPECT_EQ("connect h 21 u a:b", fClient.calls.at(2));
  EXPECT_EQ((Lines{Debug("username:u userpassword:a:b userpath: userport: remoteName:h")}),
            fLog.Lines());
}

TEST_F(FakeFtp, PortWithoutCredentialsIsShownAndNotUsed) {
  EXPECT_TRUE(Upload("h:2121"));
  EXPECT_EQ("connect h 21 null null", fClient.calls.at(2));
  EXPECT_EQ((Lines{Debug("username: userpassword: userpath: userport:2121 remoteName:h")}),
            fLog.Lines());
}

TEST_F(FakeFtp, BracketedAddressHasPort21AndKeepsItsCredentials) {
  EXPECT_TRUE(Upload("u:p@[::1]:2121"));
  EXPECT_EQ("connect ::1 21 u p", fClient.calls.at(2));
  EXPECT_EQ((Lines{Debug("username:u userpassword:p userpath: userport:2121 remoteName:::1")}),
            fLog.Lines());
}

TEST_F(FakeFtp, RootAndPathJoinWithTwoSlashes) {
  fClient.directory = "/";
  EXPECT_TRUE(Upload("h/in"));
  EXPECT_EQ("set directory //in", fClient.calls.at(4));
}

TEST_F(FakeFtp, NoPathSetsTheDirectoryToItself) {
  fClient.directory = "/home";
  EXPECT_TRUE(Upload("h"));
  EXPECT_EQ("set directory /home", fClient.calls.at(4));
}

TEST_F(FakeFtp, BareAddressIsTriedAgainWithoutItsLastGroupAndWithoutTheAccount) {
  fClient.failedConnects = 1;
  EXPECT_TRUE(Upload("u:p@fe80::1:2121/in"));
  EXPECT_EQ((Lines{"bind upload", "open InetURL/1.0", "connect fe80::1:2121 21 u p",
                   "connect fe80::1 21 null null", "get directory", "set directory //in",
                   "put local remote", "end"}),
            fClient.calls);
}

TEST_F(FakeFtp, SecondFailedConnectionIsTheEndAndOneLine) {
  fClient.failedConnects = 2;
  EXPECT_FALSE(Upload("::1:5"));
  EXPECT_EQ((Lines{"bind upload", "open InetURL/1.0", "connect ::1:5 21 null null",
                   "connect ::1 21 null null", "end"}),
            fClient.calls);
  EXPECT_EQ((Lines{Debug("username: userpassword: userpath: userport:5 remoteName:::1:5"),
                   "[Error] WindowsOS: ERROR: Couldn't connect to ZRV Service"}),
            fLog.Lines());
}

TEST_F(FakeFtp, WithoutAnAlternativeThereIsNoSecondTry) {
  fClient.failedConnects = 1;
  EXPECT_FALSE(Upload("u:p@[::1]"));
  EXPECT_EQ((Lines{"bind upload", "open InetURL/1.0", "connect ::1 21 u p", "end"}), fClient.calls);
}

TEST_F(FakeFtp, VendorsServerIsTakenAsItStandsAndHasNoDirectories) {
  const std::string target = "u:p@upload.zrv.example:99/in";
  EXPECT_TRUE(Upload(target));
  EXPECT_EQ((Lines{"bind upload", "open InetURL/1.0", "connect " + target + " 21 null null",
                   "put local remote", "end"}),
            fClient.calls);
  EXPECT_EQ((Lines{Debug("username: userpassword: userpath: userport: remoteName:" + target)}),
            fLog.Lines());
}

TEST_F(FakeFtp, VendorsFailedUploadSaysNothing) {
  fClient.put = {false, true};
  fClient.reply = "550 no";
  EXPECT_FALSE(Upload("upload.zrv.example"));
  EXPECT_EQ("put local remote", fClient.calls.at(3));
  EXPECT_EQ("end", fClient.calls.at(4));
  EXPECT_EQ(1u, fLog.Lines().size());
}

TEST_F(FakeFtp, DirectoryThatIsNotToldIsLoggedAndThePathAloneIsEntered) {
  fClient.hasDirectory = false;
  EXPECT_TRUE(Upload("h/in"));
  EXPECT_EQ((Lines{"get directory", "set directory /in", "put local remote", "end"}),
            Lines(fClient.calls.begin() + 3, fClient.calls.end()));
  EXPECT_EQ(kNoDirectory, fLog.Lines().at(1));
  EXPECT_EQ(2u, fLog.Lines().size());
}

TEST_F(FakeFtp, DirectoryThatIsNotEnteredIsLoggedAndTheUploadGoesOn) {
  fClient.entersDirectory = false;
  EXPECT_TRUE(Upload("h/in"));
  EXPECT_EQ("put local remote", fClient.calls.at(5));
  EXPECT_EQ(kNotEntered, fLog.Lines().at(1));
  EXPECT_EQ(2u, fLog.Lines().size());
}

TEST_F(FakeFtp, ServersDirectoryWithALineEndNeverGoesBackToIt) {
  for (const char* hostile : {"/a\rDELE b", "/a\nDELE b", "/\n"}) {
    fClient.calls.clear();
    fClient.directory = hostile;
    EXPECT_TRUE(Upload("h/in"));
    EXPECT_EQ("set directory /in", fClient.calls.at(4));
  }
  EXPECT_EQ(kNoDirectory, fLog.Lines().at(1));
}

TEST_F(FakeFtp, ServersReasonIsLoggedAfterAFailedUpload) {
  fClient.put = {false, true};
  fClient.reply = "550 Disk full.";
  EXPECT_FALSE(Upload("h"));
  EXPECT_EQ((Lines{"put local remote", "last reply", "end"}),
            Lines(fClient.calls.begin() + 5, fClient.calls.end()));
  EXPECT_EQ("[Error] TOSSpecific Error: 550 Disk full.", fLog.Lines().at(1));
}

TEST_F(FakeFtp, ServersReasonIsLoggedAfterAnUploadThatWorkedToo) {
  fClient.put = {true, true};
  fClient.reply = "250 odd";
  EXPECT_TRUE(Upload("h"));
  EXPECT_EQ("[Error] TOSSpecific Error: 250 odd", fLog.Lines().at(1));
}

TEST_F(FakeFtp, FailedUploadWithoutAReasonSaysNothing) {
  fClient.put = {false, false};
  EXPECT_FALSE(Upload("h"));
  EXPECT_EQ("end", fClient.calls.at(6));
  EXPECT_EQ(1u, fLog.Lines().size());
}

TEST_F(FakeFtp, AllThatCanFailInACustomUploadIsLoggedInItsOrder) {
  fClient.hasDirectory = fClient.entersDirectory = false;
  fClient.put = {false, true};
  fClient.reply = "553 r";
  EXPECT_FALSE(Upload("h"));
  EXPECT_EQ((Lines{Debug("username: userpassword: userpath: userport: remoteName:h"), kNoDirectory,
                   kNotEntered, "[Error] TOSSpecific Error: 553 r"}),
            fLog.Lines());
}

TEST_F(FakeFtp, MissingClientIsToldBeforeAnythingElse) {
  fClient.binding = host::FtpClient::Binding::kNoClient;
  EXPECT_FALSE(Upload("u:p@h"));
  EXPECT_FALSE(Download("h"));
  EXPECT_EQ((Lines{"bind upload", "bind download"}), fClient.calls);
  EXPECT_EQ((Lines{"[Error] WindowsOS: ERROR: Unable to load wininet.dll",
                   "[Error] WindowsOS: ERROR: Unable to load wininet.dll"}),
            fLog.Lines());
}

TEST_F(FakeFtp, ClientWithoutItsEntryPointsIsTold) {
  fClient.binding = host::FtpClient::Binding::kNoEntryPoint;
  EXPECT_FALSE(Upload("u:p@h"));
  EXPECT_FALSE(Download("h"));
  EXPECT_EQ((Lines{"[Error] WindowsOS: ERROR: Unable to initialize wininet.dll",
                   "[Error] WindowsOS: ERROR: Unable to initialize wininet.dll"}),
            fLog.Lines());
}

TEST_F(FakeFtp, SessionThatDoesNotOpenIsTold) {
  fClient.opens = false;
  EXPECT_FALSE(Upload("h"));
  EXPECT_FALSE(Download("h"));
  EXPECT_EQ(
      (Lines{"bind upload", "open InetURL/1.0", "end", "bind download", "open InetURL/1.0", "end"}),
      fClient.calls);
  EXPECT_EQ((Lines{Debug("username: userpassword: userpath: userport: remoteName:h"),
                   "[Error] WindowsOS: ERROR: Couldn't establish Internet connection",
                   "[Error] WindowsOS: ERROR: Couldn't establish Internet connection"}),
            fLog.Lines());
}

TEST_F(FakeFtp, DownloadTakesItsStepsInOrderAndLogsNothing) {
  EXPECT_TRUE(Download("h"));
  EXPECT_EQ(
      (Lines{"bind download", "open InetURL/1.0", "connect h 21 '' ''", "get remote local", "end"}),
      fClient.calls);
  EXPECT_EQ(Lines(), fLog.Lines());
}

TEST_F(FakeFtp, DownloadUsesCredentialsInTheOppositeSense) {
  EXPECT_TRUE(Download("u:p@h"));
  EXPECT_EQ("connect h 21 null null", fClient.calls.at(2));
  fClient.calls.clear();
  EXPECT_TRUE(Download("u:h"));
  EXPECT_EQ("connect h 21 u ''", fClient.calls.at(2));
}

TEST_F(FakeFtp, FailedConnectionOfADownloadHasATextOfItsOwn) {
  fClient.failedConnects = 1;
  EXPECT_FALSE(Download("h"));
  EXPECT_EQ((Lines{"[Error] WindowsOS: ERROR: Couldn't connect to ZRV"}), fLog.Lines());
}

TEST_F(FakeFtp, FailedDownloadSaysNothing) {
  fClient.gets = false;
  EXPECT_FALSE(Download("h"));
  EXPECT_EQ(Lines(), fLog.Lines());
}

// In any part of any text, on both roads, also in a target that is not parsed.
TEST_F(FakeFtp, LineEndsAreRefusedBeforeAnythingIsDone) {
  using namespace std::string_literals;
  int refused = 0;
  for (const std::string& bad : {"\r"s, "\n"s, "\0"s}) {
    for (const std::string& target :
         {"u" + bad + ":p@h/in", "u:p" + bad + "@h/in", "u:p@h" + bad + "/in",
          "u:p@h:2" + bad + "/in", "u:p@h/in" + bad, bad + "upload.zrv.example"}) {
      EXPECT_FALSE(TOSSpecific::FTPFile(target, "local", "remote"));
      EXPECT_FALSE(TOSSpecific::FTPFileFromZRV(target, "local", "remote"));
      refused += 2;
    }
    EXPECT_FALSE(TOSSpecific::FTPFile("h", "lo" + bad + "cal", "remote"));
    EXPECT_FALSE(TOSSpecific::FTPFile("h", "local", "remote" + bad + "DELE x"));
    EXPECT_FALSE(TOSSpecific::FTPFileFromZRV("h", "lo" + bad + "cal", "remote"));
    EXPECT_FALSE(TOSSpecific::FTPFileFromZRV("h", "local", "remote" + bad + "DELE x"));
    refused += 4;
  }
  EXPECT_EQ(Lines(), fClient.calls);
  const Lines lines = fLog.Lines();
  EXPECT_EQ(static_cast<std::size_t>(refused), lines.size());
  for (const std::string& line : lines) {
    EXPECT_EQ(
        "[Error] TOSSpecific Error: a target or file name holds a carriage return, line feed or "
        "NUL.",
        line);
  }
}

class FakeNames : public testing::Test {
 protected:
  FakeNames() : fHost(WithResolver(fResolver)) {}

  static host::Replacements WithResolver(FakeResolver& resolver) {
    host::Replacements replacements;
    replacements.resolver = &resolver;
    return replacements;
  }

  FakeResolver fResolver;
  ScopedHost fHost;
  LogCapture fLog;
};

TEST_F(FakeNames, NameThatResolvesIsZero) {
  EXPECT_EQ(0, TOSSpecific::DetectHostnameAvailable("h", "ftp"));
  EXPECT_EQ((Lines{"start", "resolve h ftp", "last error 0", "stop", "last error 0"}),
            fResolver.calls);
  EXPECT_EQ((Lines{Debug("getaddrinfo() successfully!")}), fLog.Lines());
}

TEST_F(FakeNames, ResolversCodeIsReturnedAndLeftAsTheLastError) {
  fResolver.code = 11001;
  EXPECT_EQ(11001, TOSSpecific::DetectHostnameAvailable("h", "21"));
  EXPECT_EQ((Lines{"start", "resolve h 21", "last error 11001", "stop", "last error 11001"}),
            fResolver.calls);
  EXPECT_EQ((Lines{Debug("getaddrinfo() failed.")}), fLog.Lines());
}

TEST_F(FakeNames, FailedStartIsReturnedWithoutAStop) {
  fResolver.startFailure = 10091;
  EXPECT_EQ(10091, TOSSpecific::DetectHostnameAvailable("h", "21"));
  EXPECT_EQ((Lines{"start"}), fResolver.calls);
  EXPECT_EQ((Lines{Debug("WSAStartup failed.")}), fLog.Lines());
}

// The logger is not there before TLogger::Initialize: lines are lost, and nothing else.
TEST(TransferWithoutALogger, IsDoneAllTheSame) {
  FakeFtpClient client;
  FakeResolver resolver;
  host::Replacements replacements;
  replacements.ftpClient = &client;
  replacements.resolver = &resolver;
  const ScopedHost scoped(replacements);
  client.failedConnects = 1;
  EXPECT_FALSE(TOSSpecific::FTPFile("h", "local", "remote"));
  EXPECT_TRUE(TOSSpecific::FTPFileFromZRV("h", "local", "remote"));
  EXPECT_EQ(0, TOSSpecific::DetectHostnameAvailable("h", "ftp"));
}

}  // namespace
