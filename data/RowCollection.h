#pragma once

#include <cstdint>
#include <functional>
#include <set>

#include "data/TrackItemRowData.h"
#include "host/BE/MediaTypes.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"

namespace Vantrel {

/// Identifiers of track groups, each that of the group's media type.
using TrackGroupIDs = std::set<BE::MediaType>;
/// Numbers of BE::kTrackItemType_….
using TrackItemTypes = std::set<std::uint32_t>;
using TrackItemCallback = std::function<void(const qelcore::Ref<BE::ITrackItem>&)>;

/// Appends a row for every clip and gap on the tracks of `groups`, in the host's visiting order. The
/// host's read lock is held for the whole pass and given back on every way out, so all stored texts
/// belong to one state of the model. An empty sequence gives no rows. [any-thread]
/// Throws: null_pointer_exception naming the interface that a clip lacks (clip, media, components).
void CollectRows(const qelcore::Ref<BE::ISequence>& sequence, const TrackGroupIDs& groups,
                 TrackItemDataList& rows);

/// Calls `callback` for every track item of the types in `types` on the tracks of `groups`; without
/// sequence or callback nothing happens. [any-thread] under read lock. Throws: what the callback
/// throws.
void VisitTrackItems(const qelcore::Ref<BE::ISequence>& sequence, const TrackGroupIDs& groups,
                     const TrackItemTypes& types, const TrackItemCallback& callback);

}  // namespace Vantrel
