// Replays the corpus of each text format, and mutations of it with a fixed seed. A broken promise
// aborts the program.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TextFuzz.h"

namespace {

typedef void (*OneInput)(const std::uint8_t* data, std::size_t size);

std::vector<std::string> Corpus(const char* format) {
  std::vector<std::string> inputs;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::string(FUZZ_CORPUS "/") + format)) {
    std::ifstream file(entry.path(), std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return inputs;
}

void Replay(const std::vector<std::string>& inputs, OneInput run) {
  for (const std::string& input : inputs) {
    run(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
  }
}

std::string Mutated(std::string text, std::mt19937& random) {
  const std::string marks = "0019:+-.={}[]();'\",\\xRC \n\xFF";
  for (unsigned changes = 1 + random() % 3; changes > 0; --changes) {
    const std::size_t at = random() % (text.size() + 1);
    const char mark = marks[random() % marks.size()];
    switch (random() % 4) {
      case 0:
        text.insert(at, 1, mark);
        break;
      case 1:
        text.erase(at, 1);
        break;
      case 2:
        text.insert(at, text.substr(0, random() % (text.size() + 1)));
        break;
      default:
        text.replace(at, at < text.size() ? 1 : 0, 1, mark);
        break;
    }
  }
  return text;
}

void ReplayMutations(const std::vector<std::string>& inputs, OneInput run, int rounds = 20000) {
  std::mt19937 random(20240102);
  for (int round = 0; round < rounds; ++round) {
    Replay({Mutated(inputs[random() % inputs.size()], random)}, run);
  }
}

TEST(TextCorpus, DateTimesKeepTheirPromises) {
  const std::vector<std::string> inputs = Corpus("datetime");
  ASSERT_EQ(11u, inputs.size());
  Replay(inputs, fuzz_text::FuzzDateTime);
  ReplayMutations(inputs, fuzz_text::FuzzDateTime);
}

TEST(TextCorpus, ObjectPathsKeepTheirPromises) {
  const std::vector<std::string> inputs = Corpus("objectpath");
  ASSERT_EQ(17u, inputs.size());
  Replay(inputs, fuzz_text::FuzzObjectPath);
  ReplayMutations(inputs, fuzz_text::FuzzObjectPath);
}

TEST(TextCorpus, MofKeepsItsPromises) {
  const std::vector<std::string> inputs = Corpus("mof");
  ASSERT_EQ(12u, inputs.size());
  Replay(inputs, fuzz_text::FuzzMof);
  // Each makes two namespaces, so there are fewer.
  ReplayMutations(inputs, fuzz_text::FuzzMof, 2000);
}

}  // namespace
