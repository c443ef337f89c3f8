// The command line: help, version, and what is refused.

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/qda/QdaProgram.h>

namespace {

using qda_test::RunQda;
using test_support::ChildResult;
using testing::AllOf;
using testing::HasSubstr;

struct WrongRow {
  const char* what;
  std::vector<std::string> arguments;
  const char* error;
};

void PrintTo(const WrongRow& row, std::ostream* stream) { *stream << row.what; }

class WrongUsage : public testing::TestWithParam<WrongRow> {};

TEST_P(WrongUsage, IsExitCode2AndAMessage) {
  const ChildResult run = RunQda(GetParam().arguments);
  EXPECT_EQ(2, run.exitCode);
  EXPECT_EQ("", run.output);
  EXPECT_EQ(std::string("qda: ") + GetParam().error + "; see \"qda --help\"\n", run.error);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WrongUsage,
    testing::Values(
        WrongRow{"no command", {}, "no command is given"},
        WrongRow{"unknown command", {"identity"}, "\"identity\" is no command"},
        WrongRow{"option of a command before it", {"-o", "json"}, "\"-o\" is no command"},
        WrongRow{"unknown option",
                 {"identify", "--colour"},
                 "The following argument was not expected: --colour"},
        WrongRow{"slash is no option sign",
                 {"identify", "/o:json"},
                 "The following argument was not expected: /o:json"},
        WrongRow{"argument too many",
                 {"identify", "this"},
                 "The following argument was not expected: this"},
        WrongRow{"unknown format",
                 {"identify", "-o", "xml"},
                 "-o,--output: \"xml\" is none of json, table"},
        WrongRow{"format missing", {"providers", "-o"}, "--output: 1 required TEXT missing"},
        WrongRow{"level without log",
                 {"identify", "--log-level", "debug"},
                 "--log-level requires --log"},
        WrongRow{"unknown level",
                 {"identify", "--log", "unused.log", "--log-level", "loud"},
                 "--log-level: \"loud\" is none of debug, error, status, verbose, warning"},
        WrongRow{"empty dump", {"identify", "--smbios-dump", ""}, "--smbios-dump: is empty"},
        WrongRow{"empty provider", {"identify", "--provider", ""}, "--provider: is empty"},
        WrongRow{"option of another command",
                 {"providers", "--provider", "machine"},
                 "The following arguments were not expected: machine --provider"},
        WrongRow{"control characters", {"\x1B[2J"}, "\"\\x1B[2J\" is no command"}));

TEST(Usage, HelpIsPrinted) {
  const ChildResult run = RunQda({"--help"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_THAT(run.output, AllOf(HasSubstr("Usage: qda "), HasSubstr("identify"),
                                HasSubstr("providers"), HasSubstr("--version"),
                                HasSubstr("Exit codes: 0 done, 1 failed, 2 wrong usage.")));
}

TEST(Usage, HelpOfACommandIsInGroups) {
  const ChildResult run = RunQda({"identify", "--help"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.error);
  EXPECT_THAT(run.output, AllOf(HasSubstr("\nSource:\n"), HasSubstr("--provider NAME"),
                                HasSubstr("--smbios-dump FILE"), HasSubstr("\nOutput:\n"),
                                HasSubstr("--output FORMAT"), HasSubstr("\nLog:\n"),
                                HasSubstr("--log FILE"), HasSubstr("--log-level LEVEL")));
}

// The names of the commands, as the help lists them: two blanks in front, and no option.
std::vector<std::string> Commands() {
  std::istringstream help(RunQda({"--help"}).output);
  std::vector<std::string> commands;
  for (std::string line; std::getline(help, line);) {
    if (line.size() > 2 && line.compare(0, 2, "  ") == 0 && line[2] >= 'a' && line[2] <= 'z') {
      commands.push_back(line.substr(2, line.find(' ', 2) - 2));
    }
  }
  return commands;
}

TEST(Usage, HelpFitsATerminal) {
  const std::vector<std::string> commands = Commands();
  EXPECT_THAT(commands, testing::IsSupersetOf({"identify", "providers"}));
  for (const std::string& command : commands) {
    const std::string help = RunQda({command, "-h"}).output;
    for (std::size_t begin = 0; begin < help.size();) {
      const std::size_t end = help.find('\n', begin);
      EXPECT_LE(end - begin, 80u) << help.substr(begin, end - begin);
      begin = end + 1;
    }
  }
}

// Every long option that the help names, in the order it does.
std::vector<std::string> OptionsOf(const std::string& help) {
  std::vector<std::string> options;
  for (std::size_t at = help.find("--"); at != std::string::npos; at = help.find("--", at)) {
    const std::size_t end = help.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at);
    options.push_back(help.substr(at, end - at));
    at = end;
  }
  return options;
}

std::string WithoutBackslashes(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '\\'), text.end());
  return text;
}

TEST(Usage, EveryCommandAndOptionOfTheHelpIsInTheDocuments) {
  const std::string page = test_support::ReadTextFile(QDA_DOCS "/qda.md");
  // A manual page writes "\-" for a minus sign.
  const std::string manual = WithoutBackslashes(test_support::ReadTextFile(QDA_DOCS "/qda.1"));
  const std::string completion = test_support::ReadTextFile(QDA_COMPLETION);
  std::string help = RunQda({"--help"}).output;
  for (const std::string& command : Commands()) {
    EXPECT_THAT(page, HasSubstr("## qda " + command + "\n"));
    EXPECT_THAT(manual, HasSubstr("\n.B " + command + "\n"));
    EXPECT_THAT(completion, HasSubstr(" " + command + " "));
    help += RunQda({command, "--help"}).output;
  }
  const std::vector<std::string> options = OptionsOf(help);
  EXPECT_GE(options.size(), 12u);
  for (const std::string& option : options) {
    // Named in the help of an option, as a command to run.
    if (option != "--dump-bin") {
      EXPECT_THAT(page, HasSubstr(option));
      EXPECT_THAT(manual, HasSubstr(option));
      EXPECT_THAT(completion, HasSubstr(option));
    }
  }
}

#if defined(__linux__)
// No other system has a device that is always full.
TEST(Usage, OutputThatCannotBeWrittenIsAFailureThatIsTold) {
  const std::vector<std::string> commands[] = {
      {"--version"}, {"identify", "--help"}, {"smbios", "--smbios-dump", qda_test::SampleFile()}};
  for (const std::vector<std::string>& command : commands) {
    SCOPED_TRACE(command[0]);
    std::vector<std::string> arguments = {"-c", "exec \"$0\" \"$@\" >/dev/full", QDA_FILE};
    arguments.insert(arguments.end(), command.begin(), command.end());
    const ChildResult run = test_support::RunProgram("/bin/sh", arguments, {});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ(
        "qda: standard output: the result cannot be written (kQDAStatusFileSystemError); it is "
        "closed, or there is no room left\n",
        run.error);
  }
}
#endif

TEST(Usage, VersionIsPrinted) {
  const ChildResult run = RunQda({"--version"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("qda 2.0.0\n", run.output);
  EXPECT_EQ("", run.error);
}

}  // namespace
