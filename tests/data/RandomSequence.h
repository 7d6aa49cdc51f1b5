#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "host/ML/TextFilter.h"
#include "support/Drafts.h"

namespace Vantrel {

/// Makes a sequence of tracks with clips, gaps and holes, in which every fact that the index shows, or
/// filters by, comes up; the same for the same seed.
class RandomSequence {
 public:
  /// No machine has it.
  static constexpr const char* kMissingFont = "No Such Font";

  explicit RandomSequence(unsigned seed) : random(seed) {}

  standalone::SequenceDraft Make() {
    auto sequence = drafts::MakeSequence();
    for (const auto kind : {standalone::TrackKind::kVideo, standalone::TrackKind::kAudio}) {
      const int tracks = Below(4);
      for (int i = 0; i < tracks; ++i) FillTrack(drafts::AddTrack(sequence, kind));
    }
    return sequence;
  }

 private:
  int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  bool OneIn(int chances) { return Below(chances) == 0; }

  /// Up to six characters of one and of two bytes, in either case.
  std::string Text() {
    static constexpr const char* kCharacters[] = {"a", "A", "b", "B", "\u00e9", "\u00c9", " ", ";"};
    std::string text;
    for (int i = Below(7); i > 0; --i) text += kCharacters[Below(8)];
    return text;
  }

  void FillTrack(standalone::TrackDraft& track) {
    track.isDisabled = OneIn(5);
    track.isMuted = OneIn(5);
    const int items = Below(12);
    int frame = Below(3);
    for (int i = 0; i < items; ++i) {
      const int end = frame + 1 + Below(40);
      if (!OneIn(4)) {
        auto& clip = drafts::AddClip(track, "Clip " + std::to_string(random() % 100), frame, end);
        DressSource(clip);
        DressComponents(clip);
        DressFacts(clip);
      }
      frame = end + (OneIn(3) ? Below(9) : 0);
    }
  }

  void DressSource(standalone::ClipDraft& clip) {
    if (OneIn(3)) clip.name += Text() + "\nsecond line";
    if (OneIn(3)) clip.media.codec = "Codec " + std::to_string(Below(5));
    clip.media.isOffline = OneIn(4);
    clip.media.isSynthetic = OneIn(4);
    clip.media.isStill = OneIn(4);
    if (OneIn(4)) {
      const bool isOffline = OneIn(2);
      clip.proxy.emplace().address = isOffline ? "/proxy/gone" : "/proxy/here";
      clip.proxy->isOffline = isOffline;
    }
    if (OneIn(2)) clip.comment = Text();
    if (OneIn(2)) clip.description = Text();
    if (OneIn(2)) clip.videoInfo = "1920 x 1080 (1.0)";
  }

  void DressComponents(standalone::ClipDraft& clip) {
    for (int i = Below(4); i > 0; --i) {
      drafts::AddEffect(clip, "Effect " + std::to_string(i), OneIn(3)).isIntrinsic = OneIn(3);
    }
    if (OneIn(4)) {
      auto& text = drafts::AddEffect(clip, "Text");
      text.matchName = ML::kMatchnameText;
      text.isIntrinsic = true;
      text.fonts = {kMissingFont};
    }
    if (OneIn(3)) clip.headTransition = standalone::TransitionDraft{"Fade", OneIn(2)};
    if (OneIn(3)) clip.tailTransition = standalone::TransitionDraft{"Wipe", OneIn(2)};
  }

  void DressFacts(standalone::ClipDraft& clip) {
    clip.labelColor = ZSL::Color{static_cast<std::uint8_t>(Below(3)), 0, 255, 255};
    clip.isGraphic = OneIn(3);
    clip.isDisabled = OneIn(4);
    clip.hasSpeedChange = OneIn(4);
    clip.multicam.isMulticam = OneIn(4);
    if (OneIn(4)) clip.nestedSequence = 0;
  }

  std::mt19937 random;
};

}  // namespace Vantrel
