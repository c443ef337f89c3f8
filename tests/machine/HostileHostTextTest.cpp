// The parsers of host texts against bytes that no kernel writes: well-formed texts cut at every
// byte and bent at random, from fixed seeds. Nothing may crash, hang or read out of bounds, and
// what is found has to keep the promises of the headers.

#include <cstdint>
#include <random>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include <plugins/machine/DiskFacts.h>
#include <plugins/machine/FileSystemFacts.h>
#include <plugins/machine/MountTable.h>
#include <plugins/machine/NetworkPortFacts.h>
#include <plugins/machine/ProcessorFacts.h>
#include <plugins/machine/ResourceFacts.h>

namespace {

using namespace machine;

const char kMounts[] =
    "1 0 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw,errors=remount-ro\n"
    "2 1 0:20 / /proc rw - proc proc rw\n"
    "3 1 8:2 / /a\\040b ro master:2 - xfs /dev/sda2 ro\n"
    "4 3 0:21 / /a\\040b/n rw - nfs4 server:/x rw\n"
    "5 4 8:3 / /a\\040b/n/c rw - ext4 /dev/sda3 rw\n";

const char kProcessors[] =
    "processor\t: 0\nmodel name\t: A\nstepping\t: 4\ncpu MHz\t\t: 2499.998\nphysical id\t: 0\n"
    "siblings\t: 2\ncpu cores\t: 1\nflags\t\t: lm nx vmx\n\n"
    "processor\t: 1\nphysical id\t: 1\n\n";

const char kMemory[] = "MemTotal:       24684096 kB\nSwapTotal:       1048572 kB\n";

std::string Page() { return std::string("\0\x80\0\x08  SERIAL", 12); }

std::string Descriptor() {
  std::string bytes(36, '\0');
  bytes[12] = 36;
  bytes[16] = 42;
  bytes[20] = 48;
  bytes[24] = 52;
  return bytes + std::string("MAKER\0MODEL\0001.0\0SERIAL\0", 23);
}

void CheckMounts(const std::string& text) {
  std::set<std::pair<std::uint32_t, std::uint32_t> > devices;
  for (const LocalMount& local : FindLocalMounts(text)) {
    EXPECT_TRUE(devices.insert({local.mount.majorNumber, local.mount.minorNumber}).second);
    ASSERT_FALSE(local.mount.point.empty());
    EXPECT_EQ('/', local.mount.point[0]);
    EXPECT_EQ(std::string::npos, local.mount.point.find('\0'));
  }
}

void CheckProcessors(const std::string& text) {
  std::set<std::string> names;
  for (const ProcessorFacts& facts : UnderstandCpuInfo(text, {std::string("1000000")})) {
    EXPECT_TRUE(names.insert(facts.deviceId).second);
    EXPECT_NE(0u, facts.currentClockSpeed.value_or(1));
    EXPECT_NE(0, facts.cores.value_or(1));
  }
}

void CheckTrimmed(const std::optional<std::string>& text) {
  if (text) {
    ASSERT_FALSE(text->empty());
    EXPECT_NE(' ', text->front());
    EXPECT_NE(' ', text->back());
  }
}

void CheckAll(const std::string& text) {
  CheckMounts(text);
  CheckProcessors(text);
  host::ResourceReading resources;
  resources.memoryText = resources.mostThreadsText = resources.endOfPidsText = text;
  UnderstandResources(resources);
  CheckTrimmed(SerialNumberIn(text));
  DiskFacts facts;
  UnderstandDescriptor(text, &facts);
  CheckTrimmed(facts.model);
  CheckTrimmed(facts.serialNumber);
  host::DiskReading disk;
  disk.name = text;
  disk.size = disk.vendor = disk.model = disk.serial = disk.serialPage = text;
  disk.logicalBlockSize = disk.deviceType = disk.removable = text;
  UnderstandDisks({disk});
  host::NetworkPortReading port;
  port.name = text;
  port.type = "1";
  port.address = port.speed = port.duplex = port.mtu = port.flags = text;
  port.permanentBytes = text;
  for (const NetworkPortFacts& found : UnderstandNetworkPorts({port})) {
    EXPECT_EQ(12u, found.permanentAddress.value_or("0123456789AB").size());
  }
  DriveIn(text);
}

std::vector<std::string> Seeds() {
  return {kMounts, kProcessors, kMemory, Page(), Descriptor(), "02:fc:00:00:00:01\n", "0x1003\n"};
}

TEST(HostileHostText, CutAtEveryByte) {
  for (const std::string& seed : Seeds()) {
    for (std::size_t size = 0; size <= seed.size(); ++size) {
      // On the heap and of exactly that size, so that a sanitizer sees a byte too many.
      CheckAll(std::string(seed, 0, size));
      CheckAll(std::string(seed, size));
    }
  }
}

TEST(HostileHostText, BentAtRandom) {
  // Digits and separators lead deeper than bytes at random do.
  const std::string alphabet(
      "0123456789:/-\\ \n\t\0\xFF\x80"
      "a",
      21);
  std::mt19937 random(20240229);
  for (int round = 0; round < 2000; ++round) {
    for (std::string text : Seeds()) {
      for (unsigned int change = random() % 6 + 1; change > 0; --change) {
        const std::size_t at = random() % text.size();
        switch (random() % 4) {
          case 0:
            text[at] = static_cast<char>(random());
            break;
          case 1:
            text[at] = alphabet[random() % alphabet.size()];
            break;
          case 2:
            text.erase(at, random() % 5);
            text += '\n';
            break;
          default:
            text.insert(at, text.substr(random() % text.size(), random() % 40));
            break;
        }
      }
      CheckAll(text);
    }
  }
}

TEST(HostileHostText, OctalEscapesUndoWhatTheKernelDoes) {
  std::mt19937 random(7);
  for (int round = 0; round < 1000; ++round) {
    std::string plain;
    std::string escaped;
    for (unsigned int left = random() % 30; left > 0; --left) {
      const unsigned char byte = static_cast<unsigned char>(random());
      plain += static_cast<char>(byte);
      if (byte == ' ' || byte == '\t' || byte == '\n' || byte == '\\' || random() % 8 == 0) {
        escaped += '\\';
        escaped += static_cast<char>('0' + (byte >> 6));
        escaped += static_cast<char>('0' + (byte >> 3 & 7));
        escaped += static_cast<char>('0' + (byte & 7));
      } else {
        escaped += static_cast<char>(byte);
      }
    }
    ASSERT_EQ(plain, WithoutOctalEscapes(escaped));
  }
}

}  // namespace
