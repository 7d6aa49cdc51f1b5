#include "standalone/window/ShapedLines.h"

#include <utility>

namespace standalone {

namespace {

/// Of a generation.
constexpr std::size_t kMostTextBytes = 1'000'000;

}  // namespace

std::size_t ShapedLines::Hash::operator()(const Wanted& wanted) const noexcept {
  const std::size_t text = std::hash<std::string_view>()(wanted.utf8);
  return text ^ (std::hash<float>()(wanted.width) << 1);
}

void ShapedLines::MakeRoom() {
  if (recent.size() < kMostLines / 2 && recentBytes < kMostTextBytes) return;
  older = std::exchange(recent, {});
  recentBytes = 0;
}

const ShapedLine& ShapedLines::Find(std::string_view utf8, const TextFont& font, float width,
                                    std::u16string_view ellipsis) {
  const Wanted wanted{utf8, width, ellipsis};
  if (const auto found = recent.find(wanted); found != recent.end()) return found->second;
  Generation::node_type known;
  if (const auto found = older.find(wanted); found != older.end()) known = older.extract(found);
  MakeRoom();
  recentBytes += utf8.size();
  if (known) return recent.insert(std::move(known)).position->second;
  Key key{std::string(utf8), width, std::u16string(ellipsis)};
  return recent.emplace(std::move(key), ShapeLine(utf8, font, width, ellipsis)).first->second;
}

}  // namespace standalone
