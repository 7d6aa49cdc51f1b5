#include "standalone/documents/SequenceMatching.h"

#include <deque>
#include <unordered_map>

namespace standalone {

std::vector<std::optional<std::size_t>> MatchSequences(const std::vector<std::string_view>& oldNames,
                                                       const std::vector<std::string_view>& newNames) {
  std::unordered_map<std::string_view, std::deque<std::size_t>> positions;
  for (std::size_t i = 0; i < oldNames.size(); ++i) positions[oldNames[i]].push_back(i);

  std::vector<std::optional<std::size_t>> matches(newNames.size());
  std::vector<bool> isTaken(oldNames.size());
  for (std::size_t i = 0; i < newNames.size(); ++i) {
    const auto found = positions.find(newNames[i]);
    if (found == positions.end() || found->second.empty()) continue;
    matches[i] = found->second.front();
    isTaken[found->second.front()] = true;
    found->second.pop_front();
  }
  std::size_t next = 0;
  for (auto& match : matches) {
    if (match) continue;
    while (next < isTaken.size() && isTaken[next]) ++next;
    if (next == isTaken.size()) break;
    match = next++;
  }
  return matches;
}

}  // namespace standalone
