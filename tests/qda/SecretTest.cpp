#include <qda/Secret.h>

#include <string>

#include <gtest/gtest.h>

#include <tests/support/ScopedEnvironment.h>
#include <tests/support/TemporaryFolder.h>

namespace {

using qda::ReadSecret;
using qda::SecretRequest;
using test_support::ScopedEnvironment;
using test_support::TemporaryFolder;

const char kVariable[] = "QDA_TEST_PASSWORD";

// What ReadSecret stores, "(none)" when it stores nothing, and then what it complained of.
std::string Read(const std::string& file, std::string* complaint) {
  std::string secret = "(none)";
  testing::internal::CaptureStderr();
  const bool isRead = ReadSecret({file, kVariable, "Password: "}, &secret);
  *complaint = testing::internal::GetCapturedStderr();
  EXPECT_EQ(isRead, complaint->empty());
  return secret;
}

struct Row {
  const char* what;
  std::string contents;
  std::string secret;
  // What is said of it behind the file's name; empty: nothing.
  const char* complaint;
};

void PrintTo(const Row& row, std::ostream* stream) { *stream << row.what; }

class SecretFile : public testing::TestWithParam<Row> {};

TEST_P(SecretFile, HoldsOneLine) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("secret", GetParam().contents);
  std::string complaint;
  EXPECT_EQ(GetParam().secret, Read(file, &complaint));
  if (*GetParam().complaint == '\0') {
    EXPECT_EQ("", complaint);
  } else {
    EXPECT_NE(std::string::npos, complaint.find(std::string("\": ") + GetParam().complaint + "\n"))
        << complaint;
    EXPECT_EQ(0u, complaint.find("qda: password file \"")) << complaint;
  }
}

const char kOneLine[] = "it must hold one line of text, the password (kQDAStatusInvalidFormat)";
const char kTooLong[] = "it is longer than 1024 characters (kQDAStatusInvalidFormat)";

INSTANTIATE_TEST_SUITE_P(
    Rows, SecretFile,
    testing::Values(Row{"without a line end", "secret", "secret", ""},
                    Row{"with a line end", "secret\n", "secret", ""},
                    Row{"with the line end of Windows", "secret\r\n", "secret", ""},
                    Row{"blanks belong to it", "  a b \t\n", "  a b \t", ""},
                    Row{"an empty file is an empty secret", "", "", ""},
                    Row{"an empty line is an empty secret", "\n", "", ""},
                    Row{"two lines", "secret\nmore\n", "(none)", kOneLine},
                    Row{"an empty second line", "secret\n\n", "(none)", kOneLine},
                    Row{"a carriage return within", "sec\rret\n", "(none)", kOneLine},
                    Row{"a carriage return alone", "secret\r", "(none)", kOneLine},
                    Row{"a NUL", std::string("sec\0ret", 7), "(none)", kOneLine},
                    Row{"the longest", std::string(1024, 'x') + "\r\n", std::string(1024, 'x'), ""},
                    Row{"longer", std::string(1025, 'x'), "(none)", kTooLong},
                    Row{"far longer", std::string(100000, 'x'), "(none)", kTooLong}));

TEST(Secret, OfAFileThatIsNotThereIsNone) {
  const TemporaryFolder folder;
  const ScopedEnvironment variable(kVariable, "not this one");
  std::string complaint;
  EXPECT_EQ("(none)", Read(folder.PathOf("nothing"), &complaint));
  EXPECT_NE(std::string::npos, complaint.find("it cannot be read: ")) << complaint;
  EXPECT_NE(std::string::npos, complaint.find(" (kQDAStatusFileNotFound)\n")) << complaint;
}

TEST(Secret, OfAFolderIsNone) {
  const TemporaryFolder folder;
  std::string complaint;
  EXPECT_EQ("(none)", Read(folder.Path(), &complaint));
  EXPECT_NE(std::string::npos, complaint.find("it cannot be read: ")) << complaint;
}

TEST(Secret, IsTheVariablesWhenNoFileIsGiven) {
  const ScopedEnvironment variable(kVariable, " from the environment ");
  std::string complaint;
  EXPECT_EQ(" from the environment ", Read("", &complaint));
  EXPECT_EQ("", complaint);
}

TEST(Secret, OfAFileComesBeforeTheVariables) {
  const TemporaryFolder folder;
  const ScopedEnvironment variable(kVariable, "not this one");
  std::string complaint;
  EXPECT_EQ("this one", Read(folder.Write("secret", "this one\n"), &complaint));
  EXPECT_EQ("", complaint);
}

TEST(Secret, MayBeEmptyInTheEnvironment) {
  const ScopedEnvironment variable(kVariable, "");
  std::string complaint;
  EXPECT_EQ("", Read("", &complaint));
}

}  // namespace
