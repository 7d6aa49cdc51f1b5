#include "data/RowCollection.h"

#include "data/RowBuilder.h"
#include "host/BE/ReadMutex.h"
#include "host/BE/VisitSequence.h"

namespace Vantrel {
namespace {

/// Holds the host's read lock for its lifetime.
class BackendReadLock {
 public:
  BackendReadLock() : mutex(BE::GetBackendReadLock()) { mutex.Lock(); }
  ~BackendReadLock() { mutex.Unlock(); }
  BackendReadLock(const BackendReadLock&) = delete;
  BackendReadLock& operator=(const BackendReadLock&) = delete;

 private:
  BE::ReadMutex& mutex;
};

BE::VisitorStatus VisitNode(qelcore::IUnknown& node, const TrackGroupIDs& groups,
                            const TrackItemTypes& types, const TrackItemCallback& callback) {
  if (auto* const trackItem = qelcore::FindInterface<BE::ITrackItem>(&node)) {
    if (types.contains(trackItem->GetType())) callback(qelcore::Ref<BE::ITrackItem>(trackItem));
    return BE::VisitorStatus::kDoNotDescend;
  }
  if (const auto* const group = qelcore::FindInterface<BE::ITrackGroup>(&node)) {
    return groups.contains(group->GetIdentifier()) ? BE::VisitorStatus::kContinue
                                                   : BE::VisitorStatus::kDoNotDescend;
  }
  return BE::VisitorStatus::kContinue;
}

}  // namespace

void CollectRows(const qelcore::Ref<BE::ISequence>& sequence, const TrackGroupIDs& groups,
                 TrackItemDataList& rows) {
  if (!sequence) return;
  const BackendReadLock lock;
  RowBuilder builder(sequence, rows);
  VisitTrackItems(sequence, groups, {BE::kTrackItemType_Empty, BE::kTrackItemType_Clip},
                  [&builder](const auto& trackItem) { builder.AppendRow(trackItem); });
}

void VisitTrackItems(const qelcore::Ref<BE::ISequence>& sequence, const TrackGroupIDs& groups,
                     const TrackItemTypes& types, const TrackItemCallback& callback) {
  if (!sequence || !callback) return;
  BE::VisitSequence(sequence,
                    [&](qelcore::IUnknown& node) { return VisitNode(node, groups, types, callback); });
}

}  // namespace Vantrel
