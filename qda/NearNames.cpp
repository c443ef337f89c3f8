#include <qda/NearNames.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include <qda/Text.h>

namespace qda {

namespace {

const std::size_t kMost = 3;
// Longer ones are no names that somebody mistyped.
const std::size_t kLongest = 256;
const std::size_t kFar = static_cast<std::size_t>(-1);

// How many characters have to be put in, taken out or changed to get from one to the other.
std::size_t EditDistance(const std::string& from, const std::string& to) {
  std::vector<std::size_t> row(to.size() + 1);
  for (std::size_t i = 0; i < row.size(); ++i) {
    row[i] = i;
  }
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t changed = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
    }
  }
  return row[to.size()];
}

// Small is near.
std::size_t Distance(const std::string& wanted, const std::string& name) {
  if (wanted.empty() || name.empty() || wanted.size() > kLongest || name.size() > kLongest) {
    return kFar;
  }
  const std::size_t distance = EditDistance(wanted, name);
  // A part of three characters says nothing.
  const bool isPart =
      std::min(wanted.size(), name.size()) > 3 &&
      (name.find(wanted) != std::string::npos || wanted.find(name) != std::string::npos);
  if (isPart) {
    return distance;
  }
  const std::size_t most = std::max<std::size_t>(1, wanted.size() / 3);
  return distance <= most ? kLongest + distance : kFar;
}

}  // namespace

std::vector<std::string> NearNames(const std::string& wanted,
                                   const std::vector<std::string>& names) {
  const std::string folded = Folded(wanted);
  std::vector<std::pair<std::size_t, const std::string*>> near;
  for (const std::string& name : names) {
    const std::size_t distance = Distance(folded, Folded(name));
    if (distance != kFar) {
      near.emplace_back(distance, &name);
    }
  }
  std::stable_sort(near.begin(), near.end(),
                   [](const auto& left, const auto& right) { return left.first < right.first; });
  std::vector<std::string> nearest;
  for (const auto& name : near) {
    if (nearest.size() < kMost) {
      nearest.push_back(*name.second);
    }
  }
  return nearest;
}

}  // namespace qda
