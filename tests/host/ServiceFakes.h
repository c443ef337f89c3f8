// A made-up account, console, environment and machine. Each records what it is asked and answers
// what the test wants.

#ifndef TESTS_HOST_SERVICEFAKES_H
#define TESTS_HOST_SERVICEFAKES_H

#include <string>
#include <vector>

#include <qdacore/host/HostServices.h>

namespace host_fakes {

using namespace NZRVQDA20;

class FakeAccount final : public host::Account {
 public:
  bool IsAdministrator() override { return isAdministrator; }

  bool isAdministrator = false;
};

// Records "editor", "shell" and "run COMMAND".
class FakeConsole final : public host::Console {
 public:
  bool IsKeyWaiting() override { return isKeyWaiting; }
  int ReadKey() override { return key; }
  std::string Editor() override { return editor; }
  std::string Shell() override { return shell; }
  void Run(const std::string& command) override { commands.push_back(command); }

  bool isKeyWaiting = false;
  int key = 0;
  std::string editor = "editor";
  std::string shell = "shell";
  std::vector<std::string> commands;
};

class FakeEnvironment final : public host::Environment {
 public:
  host::Outcome Read(const std::string& name, std::string& value) override {
    calls.push_back("read " + name);
    if (outcome.Done()) {
      value = text;
    }
    return outcome;
  }
  host::Outcome Write(const std::string& name, const std::string& value) override {
    calls.push_back("write " + name + "=" + value);
    return outcome;
  }

  host::Outcome outcome = host::Success();
  std::string text;
  std::vector<std::string> calls;
};

class FakeMachine final : public host::Machine {
 public:
  bool ReadName(std::string& result) override {
    if (hasName) {
      result = name;
    }
    return hasName;
  }
  void Sleep(unsigned int milliseconds) override { sleeps.push_back(milliseconds); }

  bool hasName = true;
  std::string name;
  std::vector<unsigned int> sleeps;
};

}  // namespace host_fakes

#endif
