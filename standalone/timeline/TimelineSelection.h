#pragma once

#include <cstddef>
#include <unordered_set>
#include <vector>

#include "host/BE/Model.h"
#include "host/MZ/Messages.h"
#include "host/qelcore/Reference.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/timeline/TimelineContent.h"

namespace standalone {

/// The track items that are selected on a sequence's timeline. Holds them, so that an item which has
/// left its sequence is still told apart from every other. [main-thread]
class STANDALONE_API TimelineSelection {
 public:
  using Item = qelcore::Ref<BE::ITrackItem>;

  bool Contains(const Item& item) const { return addresses.contains(item.Get()); }
  std::size_t Count() const noexcept { return items.size(); }
  const std::vector<Item>& GetItems() const noexcept { return items; }

  void Clear() noexcept;
  /// Selects this one only.
  void Select(const Item& item);
  /// Adds an item, or takes it out.
  void Toggle(const Item& item);
  /// Selects what an activation names in `sequence`, and no more. False when it names items, but none
  /// of this sequence: that is for another timeline, and nothing changes.
  bool Activate(const MZ::TrackItemActivationMessage& message,
                const qelcore::Ref<BE::ISequence>& sequence);

  /// The sequence's content was replaced: selects what stands where the selected items stood, from the
  /// same start to the same end, and forgets the others.
  void MoveTo(const TimelineContent& content);

 private:
  std::vector<Item> items;
  std::unordered_set<const BE::ITrackItem*> addresses;
};

}  // namespace standalone
