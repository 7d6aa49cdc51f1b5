#include "host/MZ/Sequences.h"

#include "standalone/model/ActiveProject.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/model/SequenceNode.h"
#include "standalone/runtime/Runtime.h"

namespace MZ {
namespace {

using qelcore::Ref;
using qelmediatypes::TimeDisplay;

constexpr std::uint32_t kAlignToPictureFrames = 0;
constexpr std::uint32_t kAlignToAudioSamples = 1;

/// Times that are finer than pictures are counted in samples.
bool CountsSamples(standalone::TimeFormat format) {
  return format == standalone::TimeFormat::kAudioSamples ||
         format == standalone::TimeFormat::kMilliseconds;
}

TimeDisplay::Count GetPictureCount(standalone::PublishedTimes::Counting counting) {
  switch (counting.format) {
    case standalone::TimeFormat::kFrames:
      return TimeDisplay::Count::kFrames;
    case standalone::TimeFormat::kFeetAndFrames16mm:
      return TimeDisplay::Count::kFeetAndFrames16mm;
    case standalone::TimeFormat::kFeetAndFrames35mm:
      return TimeDisplay::Count::kFeetAndFrames35mm;
    default:
      return counting.isDropFrame ? TimeDisplay::Count::kDropFrame : TimeDisplay::Count::kNonDropFrame;
  }
}

}  // namespace

Ref<BE::IProject> GetActiveProject() {
  standalone::AssertMainThread("MZ::GetActiveProject");
  const auto* const model = standalone::FindProjectModel();
  return model == nullptr ? Ref<BE::IProject>() : model->GetProject();
}

Ref<BE::ISequence> GetActiveSequence() {
  standalone::AssertMainThread("MZ::GetActiveSequence");
  const auto* const model = standalone::FindProjectModel();
  return model == nullptr ? Ref<BE::ISequence>() : model->GetActiveSequence();
}

// There is one player a sequence, so no preference between several.
Ref<ML::IPlayer> GetSequencePlayer(const Ref<BE::ISequence>& sequence, int /*playbackPreference*/) {
  standalone::AssertMainThread("MZ::GetSequencePlayer");
  return standalone::FindPlayer(sequence);
}

namespace SequenceUtils {

// There is one project, and it is open for as long as it exists: both searches find the same.
Ref<BE::IProject> GetSequenceParentProject(const Ref<BE::ISequence>& sequence,
                                           bool /*isSearchingParents*/) {
  const auto content = standalone::FindContent(sequence);
  return content ? content->project->FindOpenProject() : Ref<BE::IProject>();
}

}  // namespace SequenceUtils

namespace SequenceActions {

std::uint32_t GetFrameAlignment(const Ref<BE::ISequence>& sequence) {
  const auto* const node = standalone::FindSequenceNode(sequence);
  const bool countsSamples = node != nullptr && CountsSamples(node->GetTimes().GetCounting().format);
  return countsSamples ? kAlignToAudioSamples : kAlignToPictureFrames;
}

}  // namespace SequenceActions

namespace SequencePlayback {

TimeDisplay GetVideoTimeDisplayFormat(const Ref<BE::ISequence>& sequence, int /*isForDisplay*/) {
  TimeDisplay display;
  const auto* const node = standalone::FindSequenceNode(sequence);
  if (node != nullptr) display.count = GetPictureCount(node->GetTimes().GetCounting());
  return display;
}

TimeDisplay GetAudioTimeDisplayFormat(const Ref<BE::ISequence>& sequence) {
  TimeDisplay display;
  const auto* const node = standalone::FindSequenceNode(sequence);
  const bool isInMilliseconds =
      node != nullptr && node->GetTimes().GetCounting().format == standalone::TimeFormat::kMilliseconds;
  display.count =
      isInMilliseconds ? TimeDisplay::Count::kMilliseconds : TimeDisplay::Count::kAudioSamples;
  return display;
}

}  // namespace SequencePlayback

}  // namespace MZ
