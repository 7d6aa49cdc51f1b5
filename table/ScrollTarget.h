#pragma once

#include <cstddef>
#include <optional>

#include "data/TrackItemRowData.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// The row to put at the viewport's top so that the first row that starts after `time` stands about
/// seven tenths of the way down the visible rows. None when there are no rows. [any-thread]
/// @param rows in the order of the table, which is by start
/// @param time of the sequence, without its zero point
/// @param firstVisible,lastVisible positions of the rows at the viewport's top and bottom
std::optional<std::size_t> FindScrollTarget(const TrackItemDataList& rows, qelmediatypes::TickTime time,
                                            std::size_t firstVisible, std::size_t lastVisible) noexcept;

}  // namespace Vantrel
