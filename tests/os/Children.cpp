#include <tests/os/Children.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>

#include <tests/support/ChildProcess.h>

namespace os_tests {

using namespace test_support;

namespace {

const std::chrono::milliseconds kHalfASecond(500);

}  // namespace

std::string ChildCommand(const std::string& name) {
  return "\"" + OwnProgram() + "\" --run-as-child " + name;
}

char PatternAt(std::size_t position) {
  return static_cast<char>(position * 7 + position / 251 + position / 65521);
}

QDACORE_CHILD(WritesBothStreams) {
  for (const char* number : {"1", "2", "3"}) {
    WriteOutput(std::string("out ") + number + "\n");
    WriteError(std::string("err ") + number + "\n");
  }
  return 0;
}

QDACORE_CHILD(WritesMuch) {
  const std::size_t count = std::strtoull(arguments.at(0).c_str(), nullptr, 10);
  std::string block;
  for (std::size_t written = 0; written < count; written += block.size()) {
    block.resize(std::min(count - written, std::size_t{100003}));
    for (std::size_t at = 0; at < block.size(); ++at) {
      block[at] = PatternAt(written + at);
    }
    WriteOutput(block);
  }
  return 0;
}

QDACORE_CHILD(WritesNuls) {
  WriteOutput(std::string("\0a\0\0b\r\n\xFF\0", 9));
  return 0;
}

QDACORE_CHILD(EndsWith) {
  EndNow(static_cast<int>(std::strtoll(arguments.at(0).c_str(), nullptr, 0)));
}

QDACORE_CHILD(PrintsArguments) {
  std::string text;
  for (const std::string& argument : arguments) {
    text += "<" + argument + ">";
  }
  WriteOutput(text);
  return 0;
}

QDACORE_CHILD(CountsArguments) {
  WriteOutput(std::to_string(arguments.size()));
  return 0;
}

QDACORE_CHILD(ReadsInput) {
  std::promise<std::string> promise;
  std::future<std::string> input = promise.get_future();
  std::thread([&promise] { promise.set_value(ReadInput()); }).detach();
  const bool came = input.wait_for(kHalfASecond) == std::future_status::ready;
  WriteOutput(came ? "came: " + input.get() : "nothing came");
  // The other thread still reads.
  EndNow(0);
}

QDACORE_CHILD(LeavesAGrandchild) {
  WriteOutput("child\n");
  StartAndLeave(OwnProgram(), {"--run-as-child", "WritesLate"});
  return 3;
}

QDACORE_CHILD(WritesLate) {
  std::this_thread::sleep_for(kHalfASecond);
  WriteOutput("grandchild\n");
  return 0;
}

}  // namespace os_tests
