// The programs that the tests of SpawnProcess run: this very program, as one of its children, each
// of which ends by itself whatever happens around it.
//
//   WritesBothStreams            "out 1", "err 1", "out 2", ... to output and error in turn, 3 each
//   WritesMuch COUNT             COUNT bytes of the pattern of PatternAt
//   WritesNuls                   9 bytes with NULs among them
//   EndsWith CODE                nothing
//   PrintsArguments WORD...      each word in angle brackets
//   CountsArguments WORD...      how many words there are
//   ReadsInput                   waits half a second for its input: "nothing came" or what it was
//   LeavesAGrandchild            "child", and leaves a grandchild that holds the output for half a
//                                second and then writes "grandchild"; ends at once with code 3

#ifndef TESTS_OS_CHILDREN_H
#define TESTS_OS_CHILDREN_H

#include <cstddef>
#include <string>
#include <vector>

namespace os_tests {

// The command line of the child `name` of this program, up to its arguments.
std::string ChildCommand(const std::string& name);

char PatternAt(std::size_t position);

// --- Of each host --------------------------------------------------------------------

// All of `text`, with nothing added, to the standard output, or error output.
void WriteOutput(const std::string& text);
void WriteError(const std::string& text);

// Reads some of the standard input; empty at its end.
std::string ReadInput();

// Starts `program` with `arguments`, and with our standard handles; does not wait.
void StartAndLeave(const std::string& program, const std::vector<std::string>& arguments);

// Ends this process at once.
[[noreturn]] void EndNow(int code);

}  // namespace os_tests

#endif
