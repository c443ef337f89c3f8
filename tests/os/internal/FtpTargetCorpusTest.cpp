// Replays the corpus of transfer targets, and mutations of it with a fixed seed. A broken promise
// aborts the program.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fuzz/FtpTargetFuzz.h>

namespace {

void Replay(const std::string& input) {
  fuzz_ftp_target::FuzzOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

TEST(FtpTargetCorpus, PartsKeepTheirPromises) {
  std::vector<std::string> inputs;
  for (const auto& entry : std::filesystem::directory_iterator(FTP_TARGET_CORPUS)) {
    std::ifstream file(entry.path(), std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    Replay(inputs.back());
  }
  ASSERT_EQ(10u, inputs.size());

  std::mt19937 random(20261122);
  const std::string marks("::::@@//[]]%-19u\r\n\0\xFF", 21);
  for (int round = 0; round < 20000; ++round) {
    std::string target = inputs[random() % inputs.size()];
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
      const std::size_t at = random() % (target.size() + 1);
      target.replace(at, random() % 3, random() % 3, marks[random() % marks.size()]);
    }
    Replay(target);
  }
}

}  // namespace
