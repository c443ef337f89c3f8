#include <plugins/machine/ProcessorFacts.h>

#include <cstddef>
#include <map>
#include <set>
#include <utility>

#include <plugins/machine/HostText.h>

namespace machine {

namespace {

// CIM_Processor.Characteristics, DMTF CIM Schema 2.49.
const std::uint16_t k64BitCapable = 2;
const std::uint16_t kEnhancedVirtualization = 4;
const std::uint16_t kHardwareThread = 5;
const std::uint16_t kNxBit = 6;

// More processors than any kernel runs on; a text that numbers beyond is wrong.
const std::size_t kMostProcessors = 65536;

typedef std::map<std::string_view, std::string_view> Fields;

// The fields of the text's next paragraph; false when there is none.
bool TakeParagraph(std::string_view* rest, Fields* fields) {
  fields->clear();
  std::string_view line;
  while (TakeLine(rest, &line)) {
    const std::size_t colon = line.find(':');
    if (colon != std::string_view::npos) {
      // The first of two, so that what is added below cannot change what stands above.
      fields->emplace(Trimmed(line.substr(0, colon)), Trimmed(line.substr(colon + 1)));
    } else if (Trimmed(line).empty() && !fields->empty()) {
      return true;
    }
  }
  return !fields->empty();
}

std::string_view Field(const Fields& fields, std::string_view name) {
  const Fields::const_iterator found = fields.find(name);
  return found == fields.end() ? std::string_view() : found->second;
}

std::optional<std::uint16_t> SmallNumber(const Fields& fields, std::string_view name) {
  const std::optional<std::uint64_t> number = DecimalIn(Field(fields, name), UINT16_MAX);
  return number && *number != 0 ? std::optional<std::uint16_t>(static_cast<std::uint16_t>(*number))
                                : std::nullopt;
}

std::optional<std::string> TextOf(const Fields& fields, std::string_view name) {
  const std::string_view text = Field(fields, name);
  // What the kernel writes when the processor does not tell.
  return text.empty() || text == "unknown" ? std::nullopt : std::optional<std::string>(text);
}

// What the flags tell. A kernel of this module's kind shows "lm" (long mode) for every
// processor that it can run on; without the word nothing is said about the width.
void UnderstandFlags(std::string_view text, ProcessorFacts* facts) {
  const std::vector<std::string_view> words = Split(text, ' ');
  const std::set<std::string_view> flags(words.begin(), words.end());
  if (flags.count("lm") != 0) {
    facts->dataWidth = static_cast<std::uint16_t>(64);
    facts->addressWidth = static_cast<std::uint16_t>(64);
    facts->characteristics.push_back(k64BitCapable);
  }
  if (flags.count("vmx") != 0 || flags.count("svm") != 0) {
    facts->characteristics.push_back(kEnhancedVirtualization);
  }
  // Not by "ht", which every processor of several cores has.
  if (facts->cores && facts->threads && *facts->threads > *facts->cores) {
    facts->characteristics.push_back(kHardwareThread);
  }
  if (flags.count("nx") != 0) {
    facts->characteristics.push_back(kNxBit);
  }
}

std::optional<std::uint32_t> MaxMegahertz(
    std::string_view processor, const std::vector<std::optional<std::string> >& kilohertzTexts) {
  const std::optional<std::uint64_t> number = DecimalIn(processor);
  if (!number || *number >= kilohertzTexts.size()) {
    return std::nullopt;
  }
  const std::optional<std::uint64_t> kilohertz =
      DecimalIn(kilohertzTexts[static_cast<std::size_t>(*number)], UINT32_MAX);
  return kilohertz && *kilohertz >= 1000
             ? std::optional<std::uint32_t>(static_cast<std::uint32_t>((*kilohertz + 500) / 1000))
             : std::nullopt;
}

ProcessorFacts FirstOf(const Fields& fields, const std::string& deviceId,
                       const std::vector<std::optional<std::string> >& kilohertzTexts) {
  ProcessorFacts facts;
  facts.deviceId = deviceId;
  facts.name = TextOf(fields, "model name");
  facts.stepping = TextOf(fields, "stepping");
  facts.currentClockSpeed = RoundedMegahertz(Field(fields, "cpu MHz"));
  facts.maxClockSpeed = MaxMegahertz(Field(fields, "processor"), kilohertzTexts);
  facts.cores = SmallNumber(fields, "cpu cores");
  facts.threads = SmallNumber(fields, "siblings");
  UnderstandFlags(Field(fields, "flags"), &facts);
  return facts;
}

std::uint16_t Limited(std::uint32_t number) {
  return static_cast<std::uint16_t>(number < UINT16_MAX ? number : UINT16_MAX);
}

// The word behind "Stepping" in the registry's Identifier.
std::optional<std::string> SteppingIn(const std::optional<std::string>& identifier) {
  const std::vector<std::string_view> words =
      Split(identifier ? std::string_view(*identifier) : std::string_view(), ' ');
  for (std::size_t at = 0; at + 1 < words.size(); ++at) {
    if (words[at] == "Stepping" && DecimalIn(words[at + 1])) {
      return std::string(words[at + 1]);
    }
  }
  return std::nullopt;
}

ProcessorFacts Understand(const host::PackageReading& package, const std::string& deviceId) {
  ProcessorFacts facts;
  facts.deviceId = deviceId;
  facts.name = NameIn(package.name);
  facts.stepping = SteppingIn(package.identifier);
  if (package.megahertz && *package.megahertz != 0) {
    facts.currentClockSpeed = package.megahertz;
  }
  if (package.cores != 0) {
    facts.cores = Limited(package.cores);
  }
  if (package.threads != 0) {
    facts.threads = Limited(package.threads);
  }
  if (package.cores != 0 && package.threads > package.cores) {
    facts.characteristics.push_back(kHardwareThread);
  }
  return facts;
}

}  // namespace

std::optional<std::uint32_t> RoundedMegahertz(std::string_view text) {
  const std::size_t point = text.find('.');
  const std::optional<std::uint64_t> whole = DecimalIn(text.substr(0, point), UINT32_MAX - 1);
  if (!whole) {
    return std::nullopt;
  }
  bool up = false;
  if (point != std::string_view::npos) {
    const std::string_view fraction = text.substr(point + 1);
    if (fraction.empty() || fraction.find_first_not_of("0123456789") != std::string_view::npos) {
      return std::nullopt;
    }
    up = fraction[0] >= '5';
  }
  const std::uint32_t megahertz = static_cast<std::uint32_t>(*whole) + (up ? 1 : 0);
  return megahertz == 0 ? std::nullopt : std::optional<std::uint32_t>(megahertz);
}

std::vector<ProcessorFacts> UnderstandCpuInfo(
    std::string_view text, const std::vector<std::optional<std::string> >& maxKilohertzTexts) {
  std::vector<ProcessorFacts> processors;
  std::set<std::string> seen;
  Fields fields;
  while (processors.size() < kMostProcessors && TakeParagraph(&text, &fields)) {
    const std::string_view number = Field(fields, "processor");
    if (!DecimalIn(number, kMostProcessors - 1)) {
      continue;
    }
    const std::string_view socket = Field(fields, "physical id");
    const std::string deviceId =
        "CPU" + std::string(DecimalIn(socket, kMostProcessors - 1) ? socket : number);
    if (seen.insert(deviceId).second) {
      processors.push_back(FirstOf(fields, deviceId, maxKilohertzTexts));
    }
  }
  return processors;
}

std::vector<ProcessorFacts> UnderstandProcessors(const host::ProcessorReading& reading) {
  if (reading.cpuInfoText) {
    return UnderstandCpuInfo(*reading.cpuInfoText, reading.maxKilohertzTexts);
  }
  std::vector<ProcessorFacts> processors;
  for (const host::PackageReading& package : reading.packages) {
    processors.push_back(Understand(package, "CPU" + std::to_string(processors.size())));
  }
  return processors;
}

}  // namespace machine
