#include "standalone/app/SequenceChoice.h"

#include <algorithm>
#include <stdexcept>

namespace standalone {

namespace {

/// No more sequences than these are listed in one sentence.
constexpr std::size_t kListedSequences = 12;

std::string GetPosition(std::size_t sequence) {
  return "#" + std::to_string(sequence + 1);
}

std::vector<std::size_t> FindMeant(const std::vector<std::string>& names, std::string_view wish) {
  std::vector<std::size_t> meant;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i] == wish || GetPosition(i) == wish) meant.push_back(i);
  }
  return meant;
}

/// `#1 "Reel 1", #2 "Reel 2"`.
std::string List(const std::vector<std::string>& names, const std::vector<std::size_t>& sequences) {
  std::string list;
  const std::size_t shown = std::min(sequences.size(), kListedSequences);
  for (std::size_t i = 0; i < shown; ++i) {
    list.append(i == 0 ? "" : ", ").append(GetPosition(sequences[i]));
    list.append(" \"").append(names[sequences[i]]).append("\"");
  }
  if (shown < sequences.size()) {
    list.append(" and ").append(std::to_string(sequences.size() - shown)).append(" more");
  }
  return list;
}

std::vector<std::size_t> GetAll(const std::vector<std::string>& names) {
  std::vector<std::size_t> all(names.size());
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
  return all;
}

}  // namespace

std::size_t ChooseSequence(const std::vector<std::string>& names, std::string_view wish) {
  const auto meant = FindMeant(names, wish);
  if (meant.size() == 1) return meant.front();
  const std::string quoted = "\"" + std::string(wish) + "\"";
  if (meant.empty()) {
    throw std::runtime_error("There is no sequence " + quoted + "; there is " +
                             List(names, GetAll(names)) + ".");
  }
  throw std::runtime_error(quoted + " can mean several sequences, " + List(names, meant) +
                           "; give a position or a name that only one has.");
}

}  // namespace standalone
