#include "standalone/timeline/TimelineSelection.h"

#include <algorithm>
#include <utility>

namespace standalone {

namespace {

bool StandsAlike(const BE::ITrackItem& one, const BE::ITrackItem& other) {
  return one.GetMediaType() == other.GetMediaType() && one.GetTrackIndex() == other.GetTrackIndex() &&
         one.GetType() == other.GetType() && one.GetStart() == other.GetStart() &&
         one.GetEnd() == other.GetEnd();
}

/// Empty when there is none.
TimelineSelection::Item FindSuccessor(const TimelineContent& content, const BE::ITrackItem& item) {
  for (std::size_t lane = 0; lane < content.GetLanes().size(); ++lane) {
    const auto found = content.FindItemAt(lane, item.GetStart());
    if (found && StandsAlike(*found->trackItem, item)) return found->trackItem;
  }
  return {};
}

}  // namespace

void TimelineSelection::Clear() noexcept {
  items.clear();
  addresses.clear();
}

void TimelineSelection::Select(const Item& item) {
  Clear();
  Toggle(item);
}

void TimelineSelection::Toggle(const Item& item) {
  if (!item) return;
  if (addresses.erase(item.Get()) != 0) {
    std::erase(items, item);
    return;
  }
  addresses.insert(item.Get());
  items.push_back(item);
}

bool TimelineSelection::Activate(const MZ::TrackItemActivationMessage& message,
                                 const qelcore::Ref<BE::ISequence>& sequence) {
  const auto& activated = message.GetItems();
  const auto isHere = [&](const MZ::ActivatedTrackItem& item) {
    return item.trackItem && item.sequence == sequence;
  };
  if (!activated.empty() && std::ranges::none_of(activated, isHere)) return false;
  Clear();
  for (const MZ::ActivatedTrackItem& item : activated) {
    if (isHere(item) && !Contains(item.trackItem)) Toggle(item.trackItem);
  }
  return true;
}

void TimelineSelection::MoveTo(const TimelineContent& content) {
  const std::vector<Item> before = std::move(items);
  Clear();
  for (const Item& item : before) Toggle(FindSuccessor(content, *item));
}

}  // namespace standalone
