// Texts that the host hands out, taken apart. They come from a kernel, a driver or a device, so
// nothing in them is trusted: what is not exactly of the form asked for counts as not there.

#ifndef PLUGINS_MACHINE_HOSTTEXT_H
#define PLUGINS_MACHINE_HOSTTEXT_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace machine {

// Without the white space and NULs at both ends: the fields of SCSI, ATA and NVMe devices are
// padded with them.
std::string_view Trimmed(std::string_view text);

// The number that `text` is in decimal digits, white space around it allowed. Absent when there
// is anything else in it, a sign included, or when it is above `most`.
std::optional<std::uint64_t> DecimalIn(std::string_view text, std::uint64_t most = UINT64_MAX);
std::optional<std::uint64_t> DecimalIn(const std::optional<std::string>& text,
                                       std::uint64_t most = UINT64_MAX);

// True and false for a text of 1 and 0; absent for any other.
std::optional<bool> FlagIn(const std::optional<std::string>& text);

// `text` without its padding; absent when nothing else is in it.
std::optional<std::string> NameIn(const std::optional<std::string>& text);

// The first line of `*rest`, without its line feed, which are both taken off; false when
// nothing is left.
bool TakeLine(std::string_view* rest, std::string_view* line);

// The parts of `text` between single `separator`s; two in a row have an empty part between them.
std::vector<std::string_view> Split(std::string_view text, char separator);

// `first` * `second`; absent when either is, or when the product is above 2^64 - 1.
std::optional<std::uint64_t> Product(std::optional<std::uint64_t> first,
                                     std::optional<std::uint64_t> second);

}  // namespace machine

#endif
