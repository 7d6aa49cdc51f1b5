#include "host/MZ/Sequences.h"

#include "standalone/model/ActiveProject.h"
#include "standalone/model/SequenceNode.h"
#include "standalone/runtime/Runtime.h"

namespace MZ {
namespace {

using qelcore::Ref;
using qelmediatypes::TimeDisplay;

constexpr std::uint32_t kAlignToPictureFrames = 0;

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

namespace SequenceUtils {

// There is one project, and it is open for as long as it exists: both searches find the same.
Ref<BE::IProject> GetSequenceParentProject(const Ref<BE::ISequence>& sequence,
                                           bool /*isSearchingParents*/) {
  const auto content = standalone::FindContent(sequence);
  return content ? content->project->FindOpenProject() : Ref<BE::IProject>();
}

}  // namespace SequenceUtils

namespace SequenceActions {

std::uint32_t GetFrameAlignment(const Ref<BE::ISequence>& /*sequence*/) {
  return kAlignToPictureFrames;
}

}  // namespace SequenceActions

namespace SequencePlayback {

TimeDisplay GetVideoTimeDisplayFormat(const Ref<BE::ISequence>& sequence, int /*isForDisplay*/) {
  TimeDisplay display;
  const auto content = standalone::FindContent(sequence);
  if (content && content->isDropFrame) display.count = TimeDisplay::Count::kDropFrame;
  return display;
}

TimeDisplay GetAudioTimeDisplayFormat(const Ref<BE::ISequence>& /*sequence*/) {
  return {};
}

}  // namespace SequencePlayback

}  // namespace MZ
