// Target texts of file transfers: every form, and what is odd about each.

#include <string>

#include <gtest/gtest.h>

#include <qdacore/os/internal/FtpTarget.h>

namespace {

using NZRVQDA20::DownloadTarget;
using NZRVQDA20::HoldsLineEnd;
using NZRVQDA20::ParseDownloadTarget;
using NZRVQDA20::ParseUploadTarget;
using NZRVQDA20::UploadTarget;

const char kVendor[] = "upload.zrv.example";

// Every field as one text, so that a row shows all of it.
std::string Describe(const UploadTarget& target) {
  std::string text = target.isCustom ? "" : "vendor ";
  text += "server=" + target.server;
  if (target.hasCredentials) {
    text += " user=" + target.user + " password=" + target.password;
  } else {
    EXPECT_EQ("", target.user + target.password);
  }
  text += " path=" + target.path + " portText=" + target.portText +
          " port=" + std::to_string(target.port);
  if (target.hasAlternative) {
    text += " alternative=" + target.alternativeServer;
  } else {
    EXPECT_EQ("", target.alternativeServer);
  }
  return text;
}

struct UploadRow {
  const char* what;
  const char* target;
  const char* parts;
};

void PrintTo(const UploadRow& row, std::ostream* stream) { *stream << row.what; }

class UploadTargets : public testing::TestWithParam<UploadRow> {};

TEST_P(UploadTargets, AreTakenApart) {
  EXPECT_EQ(GetParam().parts, Describe(ParseUploadTarget(GetParam().target, kVendor)));
}

INSTANTIATE_TEST_SUITE_P(
    HostForms, UploadTargets,
    testing::Values(
        UploadRow{"empty", "", "server= path= portText= port=21"},
        UploadRow{"host", "ftp.example", "server=ftp.example path= portText= port=21"},
        UploadRow{"host and port", "h:2121", "server=h path= portText=2121 port=2121"},
        UploadRow{"host and path", "h/in/box", "server=h path=/in/box portText= port=21"},
        UploadRow{"root as path", "h/", "server=h path=/ portText= port=21"},
        UploadRow{"path only", "/in", "server= path=/in portText= port=21"},
        UploadRow{"host, port and path", "h:2121/in", "server=h path=/in portText=2121 port=2121"},
        UploadRow{"all parts", "u:p@h:2121/in/box",
                  "server=h user=u password=p path=/in/box portText=2121 port=2121"},
        UploadRow{"user only", "u@h", "server=h user=u password= path= portText= port=21"},
        UploadRow{"empty credentials", "@h", "server=h user= password= path= portText= port=21"},
        UploadRow{"empty user", ":p@h", "server=h user= password=p path= portText= port=21"},
        UploadRow{"password with colons", "u:a:b:c@h",
                  "server=h user=u password=a:b:c path= portText= port=21"},
        UploadRow{"first at sign ends the credentials", "u:p@q@h",
                  "server=q@h user=u password=p path= portText= port=21"},
        UploadRow{"slash in the password stays there", "u:p/q@h/in",
                  "server=h user=u password=p/q path=/in portText= port=21"},
        UploadRow{"at sign in the path ends the credentials", "h/a@b",
                  "server=b user=h/a password= path= portText= port=21"},
        UploadRow{"colon in the path is no port", "h/a:b:c",
                  "server=h path=/a:b:c portText= port=21"},
        UploadRow{"one colon in brackets is no address", "[h]:7",
                  "server=[h] path= portText=7 port=7"}));

INSTANTIATE_TEST_SUITE_P(
    Ports, UploadTargets,
    testing::Values(UploadRow{"empty", "h:", "server=h path= portText= port=0"},
                    UploadRow{"no number", "h:ftp", "server=h path= portText=ftp port=0"},
                    UploadRow{"number with a tail", "h:21x", "server=h path= portText=21x port=21"},
                    UploadRow{"blanks before", "h: 21", "server=h path= portText= 21 port=21"},
                    UploadRow{"kept to 16 bits", "h:65557",
                              "server=h path= portText=65557 port=21"},
                    UploadRow{"negative", "h:-1", "server=h path= portText=-1 port=65535"},
                    UploadRow{"more than an int", "h:4294967317",
                              "server=h path= portText=4294967317 port=65535"},
                    UploadRow{"less than an int", "h:-4294967317",
                              "server=h path= portText=-4294967317 port=0"},
                    UploadRow{"more than any number", "h:99999999999999999999",
                              "server=h path= portText=99999999999999999999 port=65535"}));

INSTANTIATE_TEST_SUITE_P(
    IPv6Forms, UploadTargets,
    testing::Values(
        UploadRow{"bare stays whole, and less its last group is the alternative", "fe80::1:2121",
                  "server=fe80::1:2121 path= portText=2121 port=21 alternative=fe80::1"},
        UploadRow{"bare loopback", "::1", "server=::1 path= portText=1 port=21 alternative=:"},
        UploadRow{"bare with path and credentials", "u:p@::1/in",
                  "server=::1 user=u password=p path=/in portText=1 port=21 alternative=:"},
        UploadRow{"ends in a colon", "a:b:", "server=a:b: path= portText= port=21 alternative=a:b"},
        UploadRow{"in brackets", "[::1]", "server=::1 path= portText= port=21"},
        UploadRow{"in brackets with port, which is never converted", "u:p@[::1]:2121",
                  "server=::1 user=u password=p path= portText=2121 port=21"},
        UploadRow{"in brackets with port and path", "[::1]:2121/in",
                  "server=::1 path=/in portText=2121 port=21"},
        UploadRow{"something else behind the bracket", "[::1]x",
                  "server=::1x path= portText= port=21"},
        UploadRow{"closing bracket only", "::1]:5", "server=::1 path= portText=5 port=21"},
        UploadRow{"opening bracket only", "[::1",
                  "server=[::1 path= portText=1 port=21 alternative=[:"},
        UploadRow{"first of each bracket", "[[::1]]:5", "server=[::1]:5 path= portText= port=21"},
        UploadRow{"zone", "[fe80::1%eth0]:5", "server=fe80::1%eth0 path= portText=5 port=21"}));

INSTANTIATE_TEST_SUITE_P(
    Vendor, UploadTargets,
    testing::Values(UploadRow{"name alone", "upload.zrv.example",
                              "vendor server=upload.zrv.example path= portText= port=21"},
                    UploadRow{"not parsed", "u:p@upload.zrv.example:2121/in",
                              "vendor server=u:p@upload.zrv.example:2121/in path= portText= "
                              "port=21"},
                    UploadRow{"anywhere in the text", "u:upload.zrv.example@h",
                              "vendor server=u:upload.zrv.example@h path= portText= port=21"},
                    UploadRow{"case counts", "Upload.zrv.example",
                              "server=Upload.zrv.example path= portText= port=21"}));

struct DownloadRow {
  const char* what;
  const char* target;
  const char* parts;
};

void PrintTo(const DownloadRow& row, std::ostream* stream) { *stream << row.what; }

class DownloadTargets : public testing::TestWithParam<DownloadRow> {};

TEST_P(DownloadTargets, AreTakenApart) {
  const DownloadTarget target = ParseDownloadTarget(GetParam().target);
  EXPECT_EQ(GetParam().parts, (target.hasCredentials ? "account " : "") + target.user + "|" +
                                  target.password + "|" + target.server);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DownloadTargets,
    testing::Values(DownloadRow{"empty", "", "||"}, DownloadRow{"host", "h", "||h"},
                    DownloadRow{"account", "u:p@h", "account u|p|h"},
                    DownloadRow{"colon without at sign", "u:h", "u||h"},
                    DownloadRow{"at sign without colon stays", "u@h", "||u@h"},
                    DownloadRow{"host and port reads as user and host", "h:2121", "h||2121"},
                    DownloadRow{"first colon, then first at sign", "u:a:b@c@h",
                                "account u|a:b|c@h"},
                    DownloadRow{"at sign before the colon", "u@h:p", "u@h||p"},
                    DownloadRow{"path stays", "h/in", "||h/in"},
                    DownloadRow{"brackets are not looked at", "[::1]", "[||:1]"}));

TEST(LineEnds, AreFoundAnywhere) {
  using namespace std::string_literals;
  for (const std::string& bad : {"\r"s, "\n"s, "\0"s}) {
    EXPECT_TRUE(HoldsLineEnd(bad));
    EXPECT_TRUE(HoldsLineEnd("a" + bad));
    EXPECT_TRUE(HoldsLineEnd(bad + "a"));
  }
  EXPECT_FALSE(HoldsLineEnd(""));
  EXPECT_FALSE(HoldsLineEnd("a\tb \x0B\x0C\x7F\xFF"));
}

}  // namespace
