#include "CommandLineFuzz.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <qdacore/host/posix/CommandLine.h>

namespace {

using NZRVQDA20::host::SplitCommandLine;

typedef std::vector<std::string> Words;
typedef std::string (*Writing)(const std::string& word);

void Require(bool holds, const char* promise) {
  if (!holds) {
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
  }
}

// Each way of writing a word so that it is read back as it was.

std::string InSingleQuotes(const std::string& word) {
  std::string text = "'";
  for (const char character : word) {
    text += character == '\'' ? std::string("'\\''") : std::string(1, character);
  }
  return text + "'";
}

std::string InDoubleQuotes(const std::string& word) {
  std::string text = "\"";
  for (const char character : word) {
    if (character == '"' || character == '\\') {
      text += '\\';
    }
    text += character;
  }
  return text + "\"";
}

std::string Bare(const std::string& word) {
  std::string text;
  for (const char character : word) {
    if (character == '\t') {
      text += "'\t'";
      continue;
    }
    if (character == ' ' || character == '"' || character == '\'' || character == '\\') {
      text += '\\';
    }
    text += character;
  }
  return word.empty() ? "''" : text;
}

std::string Line(const Words& words, Writing write, const char* between) {
  std::string line;
  for (const std::string& word : words) {
    line += between + write(word);
  }
  return line;
}

// What a line without quotes and backslashes is.
Words PlainWords(const std::string& line) {
  Words words;
  std::size_t at = line.find_first_not_of(" \t");
  while (at != std::string::npos) {
    const std::size_t end = line.find_first_of(" \t", at);
    words.push_back(line.substr(at, end - at));
    at = line.find_first_not_of(" \t", end);
  }
  return words;
}

}  // namespace

void fuzz_command_line::FuzzOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string line(reinterpret_cast<const char*>(data), size);
  const Words words = SplitCommandLine(line);
  std::size_t total = 0;
  for (const std::string& word : words) {
    total += word.size();
  }
  Require(total <= line.size(), "words are made of the line's text");
  Require(words.size() <= line.size() / 2 + 1, "words are apart, or have quotes");
  Require(SplitCommandLine(" \t" + line) == words, "leading blanks change nothing");
  if (line.find_first_of("'\"\\") == std::string::npos) {
    Require(words == PlainWords(line), "plain text is taken apart at blanks and tabs");
  }
  for (const Writing write : {InSingleQuotes, InDoubleQuotes, Bare}) {
    for (const char* between : {" ", "\t", " \t "}) {
      Require(SplitCommandLine(Line(words, write, between)) == words,
              "a word that is written is read back");
    }
  }
  // Any bytes are a word, too.
  for (const Writing write : {InSingleQuotes, InDoubleQuotes, Bare}) {
    Require(SplitCommandLine(write(line)) == Words{line}, "any bytes can be one word");
  }
}

// Here for libFuzzer; to the tests that link this file it is one more function.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz_command_line::FuzzOneInput(data, size);
  return 0;
}
