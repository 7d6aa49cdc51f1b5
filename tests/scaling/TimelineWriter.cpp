#include "scaling/TimelineWriter.h"

#include <fstream>
#include <string>
#include <vector>

#include "import/OtioText.h"
#include "scaling/Chance.h"

namespace scaling {
namespace {

constexpr std::size_t kTracksOfAKind = 4;

std::string Member(const std::string& name, const std::string& text) {
  return "\"" + name + "\": \"" + text + "\"";
}

class TimelineWriter {
 public:
  TimelineWriter(std::ostream& stream, std::size_t clips)
      : stream(stream),
        clipsPerTrack(clips / (2 * kTracksOfAKind)),
        mediaCount(1 + clips / kClipsPerMedia) {}

  void Write() {
    stream << R"({"OTIO_SCHEMA": "Timeline.1", "name": "Long cut", "global_start_time": )"
           << otio::Time("90000") << R"(, "tracks": {"OTIO_SCHEMA": "Stack.1", "children": [)";
    for (std::size_t i = 0; i < kTracksOfAKind; ++i) WriteTrack("Video", i == 0);
    for (std::size_t i = 0; i < kTracksOfAKind; ++i) WriteTrack("Audio", false);
    stream << "]}}\n";
  }

 private:
  static constexpr std::size_t kClipsPerMedia = 12;

  void WriteTrack(const std::string& kind, bool isFirst) {
    if (!isFirst) stream << ",\n";
    stream << R"({"OTIO_SCHEMA": "Track.1", "name": "", "kind": ")" << kind << R"(", "children": [)";
    for (std::size_t clip = 0; clip < clipsPerTrack; ++clip) {
      if (clip != 0) WriteJoint();
      stream << '\n' << MakeItem();
    }
    stream << "]}";
  }

  /// What stands between two clips.
  void WriteJoint() {
    stream << ',';
    if (chance.OneIn(8)) {
      stream << '\n' << otio::Gap(std::to_string(1 + chance.Below(50))) << ',';
    } else if (chance.OneIn(10)) {
      const std::string offset = otio::Time(std::to_string(2 + chance.Below(10)));
      stream << '\n'
             << otio::Item("Transition.1", chance.OneIn(4) ? "Dip to Black" : "Cross Dissolve",
                           R"(, "transition_type": "SMPTE_Dissolve", "in_offset": )" + offset +
                               R"(, "out_offset": )" + offset)
             << ',';
    }
  }

  std::string MakeItem() {
    if (!chance.OneIn(400)) return MakeClip();
    return otio::Stack({otio::Track({MakeClip(), MakeClip()}), otio::Track({MakeClip()}, "Audio")},
                       "Scene " + chance.NumberBelow(100));
  }

  std::string MakeClip() {
    const std::string name = chance.OneIn(3) ? "Interview " + chance.NumberBelow(1000000)
                                             : "Shot " + chance.NumberBelow(200);
    return otio::Clip(name, std::to_string(12 + chance.Below(180)),
                      MakeMedia() + MakeEffects() + MakeMarkers() + MakeMetadata());
  }

  std::string MakeMedia() {
    if (chance.OneIn(40)) return otio::Media(otio::Item("MissingReference.1", "lost.mov"));
    const std::size_t media = chance.Below(mediaCount);
    const std::string name = "A" + std::to_string(media / 60) + "_C" + std::to_string(media % 60);
    const std::string range = R"(, "available_range": )" + otio::Range("0", "5000");
    std::string references =
        R"(, "media_references": {"DEFAULT_MEDIA": )" +
        otio::File("file:///footage/day%20" + std::to_string(media % 30) + "/" + name + ".mov", range);
    if (media % 3 == 0) references += R"(, "Proxy": )" + otio::File("proxies/" + name + ".mp4", range);
    return references + R"(}, "active_media_reference_key": "DEFAULT_MEDIA")";
  }

  std::string MakeEffects() {
    std::vector<std::string> effects;
    while (effects.size() < 3 && chance.OneIn(3)) {
      const std::string name = "Look " + chance.NumberBelow(30);
      effects.push_back(otio::Item("Effect.1", name, ", " + Member("effect_name", name)));
    }
    if (chance.OneIn(20)) {
      effects.push_back(otio::Item("LinearTimeWarp.1", "Speed", R"(, "time_scalar": 1.5)"));
    }
    return R"(, "effects": )" + otio::List(effects);
  }

  std::string MakeMarkers() {
    if (!chance.OneIn(10)) return "";
    return R"(, "markers": )" +
           otio::List({otio::Item("Marker.2", "Check " + chance.NumberBelow(50),
                                  R"(, "color": "RED", "marked_range": )" + otio::Range("3", "1"))});
  }

  std::string MakeMetadata() {
    std::string ours = Member("tape", "A" + chance.NumberBelow(99));
    if (chance.OneIn(2)) ours += ", " + Member("comment", "Note " + chance.NumberBelow(100000));
    if (chance.OneIn(4))
      ours += ", " + Member("description", "Slow pan, take " + chance.NumberBelow(9));
    if (chance.OneIn(3)) ours += ", " + Member("label_color", chance.OneIn(2) ? "#4A7FC1" : "#C04040");
    return R"(, "metadata": {"sequence_index": {)" + ours + R"(}, "pipeline": {)" +
           Member("shot", "sh" + chance.NumberBelow(100000)) + R"(, "tags": ["day", "exterior"]}})";
  }

  std::ostream& stream;
  const std::size_t clipsPerTrack;
  const std::size_t mediaCount;
  Chance chance;
};

}  // namespace

void WriteTimeline(const std::filesystem::path& file, std::size_t clips) {
  std::ofstream stream(file, std::ios::binary);
  TimelineWriter(stream, clips).Write();
}

}  // namespace scaling
