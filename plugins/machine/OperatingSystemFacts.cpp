#include <plugins/machine/OperatingSystemFacts.h>

#include <plugins/machine/OsRelease.h>

namespace machine {

namespace {

// CIM_OperatingSystem.OSType, DMTF CIM Schema 2.49. Of the Windows versions that have two
// numbers these are the 64-bit ones: there is no other build of this module.
const std::uint16_t kWindowsNT = 18;
const std::uint16_t kLinux = 36;
const std::uint16_t kWindowsServer2016 = 117;
const std::uint16_t kWindows10 = 121;

struct WindowsType {
  unsigned long majorNumber;
  unsigned long minorNumber;
  std::uint16_t client;
  std::uint16_t server;
};

const WindowsType kWindowsTypes[] = {
    {5, 2, 71, 70},    // XP, Server 2003
    {6, 0, 74, 77},    // Vista, Server 2008
    {6, 1, 105, 103},  // 7, Server 2008 R2
    {6, 2, 115, 113},  // 8, Server 2012
    {6, 3, 119, 116},  // 8.1, Server 2012 R2
};

// What came later has the version 10.0 too and differs in the build number only.
const unsigned long kServer2016Build = 14393;
const unsigned long kFirstWindows11Build = 22000;

std::optional<std::string> NonEmpty(const std::optional<std::string>& text) {
  return text && !text->empty() ? text : std::nullopt;
}

bool IsVersion10(const host::WindowsVersion& version) {
  return version.majorNumber == 10 && version.minorNumber == 0;
}

bool IsWindows11(const host::WindowsVersion& version) {
  return IsVersion10(version) && !version.isServer && version.buildNumber >= kFirstWindows11Build;
}

std::uint16_t TypeOf(const host::WindowsVersion& version) {
  for (const WindowsType& row : kWindowsTypes) {
    if (row.majorNumber == version.majorNumber && row.minorNumber == version.minorNumber) {
      return version.isServer ? row.server : row.client;
    }
  }
  if (IsVersion10(version) && version.isServer && version.buildNumber == kServer2016Build) {
    return kWindowsServer2016;
  }
  if (IsVersion10(version) && !version.isServer && !IsWindows11(version)) {
    return kWindows10;
  }
  return kWindowsNT;
}

std::string NameOf(std::string productName, const host::WindowsVersion& version) {
  const std::string outdated = "Windows 10";
  const std::size_t at = productName.find(outdated);
  if (IsWindows11(version) && at != std::string::npos) {
    productName.replace(at, outdated.size(), "Windows 11");
  }
  return productName;
}

void UnderstandWindows(const host::Reading& reading, OperatingSystemFacts* facts) {
  const host::WindowsVersion& version = *reading.windowsVersion;
  if (const std::optional<std::string> name = NonEmpty(reading.productName)) {
    facts->name = NameOf(*name, version);
  }
  facts->version = std::to_string(version.majorNumber) + "." + std::to_string(version.minorNumber) +
                   "." + std::to_string(version.buildNumber);
  facts->type = TypeOf(version);
}

void UnderstandUnix(const host::Reading& reading, OperatingSystemFacts* facts) {
  if (reading.releaseText) {
    facts->name = FindInOsRelease(*reading.releaseText, "NAME");
    facts->version = FindInOsRelease(*reading.releaseText, "VERSION_ID");
  }
  if (!facts->name) {
    facts->name = NonEmpty(reading.kernelName);
  }
  if (reading.kernelName == "Linux") {
    facts->type = kLinux;
  }
}

}  // namespace

OperatingSystemFacts UnderstandReading(const host::Reading& reading) {
  OperatingSystemFacts facts;
  facts.hostName = NonEmpty(reading.hostName);
  if (reading.windowsVersion) {
    UnderstandWindows(reading, &facts);
  } else if (reading.productName) {
    facts.name = NonEmpty(reading.productName);
  } else {
    UnderstandUnix(reading, &facts);
  }
  return facts;
}

}  // namespace machine
