#include "generator/TimelinePlan.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

#include "generator/Chance.h"
#include "generator/TrackStyles.h"
#include "generator/TrackWalk.h"

namespace generator {
namespace {

using standalone::TrackKind;

constexpr TimeBase kPictureBases[] = {
    {24, 1, "24.0", "24"},
    {25, 1, "25.0", "25"},
    {24000, 1001, "23.976023976023978", "24000/1001"},
    {30000, 1001, "29.97002997002997", "30000/1001"},
};

/// A strip of room to the 100 hours that a sequence can have.
constexpr std::int64_t kLongestHours = 98;

const TrackStyle& GetStyle(std::size_t track, std::size_t tracksOfAKind) {
  const bool isPicture = track < tracksOfAKind;
  const std::size_t place = track % tracksOfAKind;
  return isPicture ? kPictureStyles[place % kPictureStyles.size()]
                   : kSoundStyles[place % kSoundStyles.size()];
}

TimelineShape Check(const TimelineShape& shape) {
  if (shape.clips == 0 || shape.tracksOfAKind == 0) {
    throw std::invalid_argument("A generated timeline has at least one clip and one track of a kind.");
  }
  return shape;
}

}  // namespace

TimelinePlan::TimelinePlan(const TimelineShape& shape)
    : shape(Check(shape)),
      pictureBase(kPictureBases[shape.seed % std::size(kPictureBases)]),
      library(shape, pictureBase) {
  AddTracks();
  ShareClips();
}

std::string TimelinePlan::GetName() const {
  return "Harbour Film, cut " + std::to_string(shape.seed);
}

bool TimelinePlan::IsDropFrame() const {
  return pictureBase.numerator == 30000;
}

void TimelinePlan::AddTracks() {
  for (std::size_t i = 0; i < 2 * shape.tracksOfAKind; ++i) {
    const TrackStyle& style = GetStyle(i, shape.tracksOfAKind);
    const bool isSoundAlone = style.kind == TrackKind::kAudio && !style.isLinked;
    PlannedTrack& track = tracks.emplace_back();
    track.kind = style.kind;
    track.name = style.name;
    track.isDisabled = style.isDisabled;
    track.isMuted = style.isMuted;
    track.isLocked = style.isLocked;
    track.base = isSoundAlone ? kSamples : pictureBase;
  }
}

/// So that all tracks last about as long as each other.
void TimelinePlan::ShareClips() {
  constexpr std::uint64_t kWeight = 1U << 30U;
  std::vector<std::uint64_t> weights;
  for (std::size_t i = 0; i < tracks.size(); ++i) {
    weights.push_back(kWeight / GetStride(GetStyle(i, shape.tracksOfAKind)));
  }
  const std::uint64_t whole = std::accumulate(weights.begin(), weights.end(), std::uint64_t{0});
  for (const std::uint64_t weight : weights) shares.push_back(shape.clips * weight / whole);
  // What rounding left over goes to the first track.
  shares.front() += shape.clips - std::accumulate(shares.begin(), shares.end(), std::size_t{0});
  span = static_cast<std::int64_t>(shape.clips * (kWeight / 16) / whole);
  if (span / pictureBase.GetNominalRate() > kLongestHours * 3600) {
    throw std::invalid_argument("So many clips on so few tracks last longer than 100 hours.");
  }
}

void TimelinePlan::VisitTrack(std::size_t track, ItemSink& sink) const {
  TrackWalkContext context{library, shape, pictureBase, GetStyle(track, shape.tracksOfAKind),
                           tracks[track]};
  context.place = track % shape.tracksOfAKind;
  context.share = shares[track];
  const std::size_t picture = context.style.isLinked ? context.place : track;
  context.shotCount = std::max<std::size_t>(1, shares[picture]);
  context.span = span;
  WalkTrack(context, sink);
}

}  // namespace generator
