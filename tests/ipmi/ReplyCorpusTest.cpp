// Replays the corpus of IPMI replies, and mutations of it with a fixed seed. A broken promise
// aborts the program.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "IpmiReplyFuzz.h"

namespace {

std::vector<std::string> Corpus() {
  std::vector<std::string> inputs;
  for (const auto& entry : std::filesystem::directory_iterator(FUZZ_CORPUS "/ipmireply")) {
    std::ifstream file(entry.path(), std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return inputs;
}

void Replay(const std::string& input) {
  fuzz_ipmi::FuzzOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

TEST(ReplyCorpus, KeepsItsPromises) {
  const std::vector<std::string> inputs = Corpus();
  ASSERT_EQ(8u, inputs.size());
  for (const std::string& input : inputs) {
    Replay(input);
  }
  std::mt19937 random(15);
  for (int round = 0; round < 20000; ++round) {
    std::string input = inputs[random() % inputs.size()];
    for (unsigned changes = 1 + random() % 4; changes > 0 && !input.empty(); --changes) {
      input[random() % input.size()] = static_cast<char>(random());
    }
    Replay(input.substr(0, random() % 4 == 0 ? random() % (input.size() + 1) : input.size()));
  }
}

}  // namespace
