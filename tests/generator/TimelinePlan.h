#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "generator/MediaLibrary.h"
#include "generator/PlannedItems.h"
#include "generator/TimelineShape.h"

namespace generator {

/// A timeline before it is a draft or a file. The items of a track are made when they are asked for,
/// again and again the same ones; only the files are kept.
class TimelinePlan {
 public:
  /// Throws std::invalid_argument for a shape that no timeline can have.
  explicit TimelinePlan(const TimelineShape& shape);
  // Planned clips point to its files.
  TimelinePlan(const TimelinePlan&) = delete;
  TimelinePlan& operator=(const TimelinePlan&) = delete;

  std::string GetName() const;
  const TimeBase& GetPictureBase() const { return pictureBase; }
  bool IsDropFrame() const;
  /// In frames.
  std::int64_t GetStart() const { return 3600 * pictureBase.GetNominalRate(); }
  /// Within each kind from the lowest, pictures first.
  const std::vector<PlannedTrack>& GetTracks() const { return tracks; }
  /// Gaps not counted.
  std::size_t CountClips(std::size_t track) const { return shares[track]; }

  void VisitTrack(std::size_t track, ItemSink& sink) const;

 private:
  void AddTracks();
  void ShareClips();

  const TimelineShape shape;
  const TimeBase pictureBase;
  const MediaLibrary library;
  std::vector<PlannedTrack> tracks;
  std::vector<std::size_t> shares;
  /// About as long as the timeline will be, in frames.
  std::int64_t span = 0;
};

}  // namespace generator
