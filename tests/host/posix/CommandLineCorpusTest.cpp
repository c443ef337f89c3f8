// Replays the corpus of command lines, and mutations of it with a fixed seed. A broken promise
// aborts the program.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include <gtest/gtest.h>

#include <fuzz/CommandLineFuzz.h>

namespace {

void Replay(const std::string& input) {
  fuzz_command_line::FuzzOneInput(reinterpret_cast<const std::uint8_t*>(input.data()),
                                  input.size());
}

TEST(CommandLineCorpus, WordsKeepTheirPromises) {
  std::vector<std::string> inputs;
  for (const auto& entry : std::filesystem::directory_iterator(COMMAND_LINE_CORPUS)) {
    std::ifstream file(entry.path(), std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    Replay(inputs.back());
  }
  ASSERT_EQ(8u, inputs.size());

  std::mt19937 random(20261121);
  const std::string marks("a \t'\"\\\n\0\xFF", 9);
  for (int round = 0; round < 5000; ++round) {
    std::string line = inputs[random() % inputs.size()];
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
      const std::size_t at = random() % (line.size() + 1);
      line.replace(at, random() % 2, random() % 3, marks[random() % marks.size()]);
    }
    Replay(line);
  }
}

}  // namespace
