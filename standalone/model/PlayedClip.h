#pragma once

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/model/ClipNode.h"

namespace standalone {

/// The clip that a track item plays, as far as this host made it; none for gaps, for an empty item, and
/// for objects that answer the public interfaces only. Valid as long as the item.
///
/// Asked several times for each row of a table. A node lives as long as its item, so it is borrowed,
/// which costs no counting; only the clip of an item that is not ours is held.
class PlayedClip {
 public:
  explicit PlayedClip(qelcore::Borrowed<BE::ITrackItem> trackItem);

  explicit operator bool() const noexcept { return node != nullptr; }
  const ClipNode* operator->() const noexcept { return node; }

 private:
  const ClipNode* node = nullptr;
  qelcore::Ref<BE::IClip> held;
};

}  // namespace standalone
