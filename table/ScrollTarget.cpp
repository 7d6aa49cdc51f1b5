#include "table/ScrollTarget.h"

#include <algorithm>
#include <cstdint>

#include "table/RowsAtTime.h"

namespace Vantrel {

namespace {

// Signed throughout: what lies above the first row is negative until it is cut off.
using Position = std::int64_t;

/// Seven tenths of the visible span, cut toward zero; not positive.
Position GetStepBack(Position firstVisible, Position lastVisible) noexcept {
  return 7 * (firstVisible - lastVisible) / 10;
}

}  // namespace

std::optional<std::size_t> FindScrollTarget(const TrackItemDataList& rows, qelmediatypes::TickTime time,
                                            std::size_t firstVisible,
                                            std::size_t lastVisible) noexcept {
  if (rows.empty()) return std::nullopt;
  const auto last = static_cast<Position>(rows.size()) - 1;
  const auto next = static_cast<Position>(CountRowsStartedBy(rows, time));
  const Position stepBack =
      GetStepBack(static_cast<Position>(firstVisible), static_cast<Position>(lastVisible));
  return static_cast<std::size_t>(std::max(std::min(next + stepBack, last), Position{0}));
}

}  // namespace Vantrel
