// The smbios library as a test wants it: its three functions record how they are called and answer
// by a script. For programs that link the core library's objects and not the library smbios.

#ifndef TESTS_OS_SCRIPTEDSMBIOS_H
#define TESTS_OS_SCRIPTEDSMBIOS_H

#include <map>
#include <string>
#include <vector>

#include <smbios/sample/TableBuilder.h>

namespace scripted_smbios {

// For Answer::size: the number of bytes.
const int kWhole = -2147483647;

struct Answer {
  int status = 0;
  // Copied to the buffer whatever the status is, as far as it takes them.
  smbios::sample::Bytes bytes;
  // What is said to be delivered.
  int size = kWhole;
};

struct Script {
  // Of the first load, the second, and so on; those behind the last succeed.
  std::vector<int> loadStatuses;
  // A load that succeeds finds no table.
  bool nullHandle = false;
  // By structure type; a type that is missing here has no structure.
  std::map<int, Answer> answers;

  // "load", "first TYPE CAPACITY of HANDLE", "close HANDLE": handles count from 1, and 0 is null.
  std::vector<std::string> calls;
  int loads = 0;
};
extern Script script;

// A script with one BIOS Information and one System Information structure; an empty text is string
// number 0.
Script Machine(const std::string& biosVersion, const std::string& productName);

// A server whose identifier and product name stand for different types: "gy" for 7327, and 7145.
Script Server();

typedef std::vector<std::string> Lines;

// What GetMachineType writes for a machine with this type.
Lines TypeLines(const std::string& machineType);

// What an operation gave and did. A result of "out of range" stands for that exception.
struct Record {
  std::string result;
  Lines calls;
  Lines lines;
};
Record RunScript(const Script& whole, std::string (*operation)());

// Its result alone.
std::string Result(const Script& whole, std::string (*operation)());

}  // namespace scripted_smbios

#endif
