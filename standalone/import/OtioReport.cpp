#include "standalone/import/OtioReport.h"

#include <algorithm>
#include <utility>

namespace standalone {
namespace {

/// The sentence of a remark about one thing, and about many; "@" stands for their number.
struct RemarkText {
  std::string_view one;
  std::string_view many;
};

/// In the order of the enumeration.
constexpr std::array<RemarkText, static_cast<std::size_t>(OtioRemark::kCount)> kTexts = {{
    {"a marker of the timeline", "@ markers of the timeline"},
    {"a marker of a track", "@ markers of tracks"},
    {"a marker of a clip", "@ markers of clips"},
    {"a marker of a gap", "@ markers of gaps"},
    {"an effect on the whole timeline", "@ effects on the whole timeline"},
    {"an effect on a whole track", "@ effects on whole tracks"},
    {"an effect on a gap", "@ effects on gaps"},
    {"that an effect is switched off", "that @ effects are switched off"},
    {"the speed of a clip, only that it is changed", "the speed of @ clips, only that it is changed"},
    {"a clip's further media, neither in use nor its proxy",
     "@ further media of clips, neither in use nor their proxies"},
    {"the text of a title", "the texts of @ titles"},
    {"which generator makes a clip", "which generators make @ clips"},
    {"where a clip begins in its media", "where @ clips begin in their media"},
    {"how long a transition is", "how long @ transitions are"},
    {"an item outside its track's range", "@ items outside their tracks' ranges"},
    {"what a nested sequence holds; it is one row", "what @ nested sequences hold; each is one row"},
    {"what an object of an unknown kind holds", "what @ objects of unknown kinds hold"},
    {"the sequence has no name and takes the file's", "@ sequences have no name and take the file's"},
    {"the sequence starts at zero; the file gives no start time",
     "@ sequences start at zero; the file gives no start time"},
    {"drop-frame timecode, as is usual at this frame rate",
     "drop-frame timecode for @ sequences, as is usual at their frame rates"},
    {"a track without a kind holds pictures", "@ tracks without a kind hold pictures"},
    {"an item that stands in no track has one of its own",
     "@ items that stand in no track each have one of their own"},
    {"a gap at the end of a track is padding and has no row",
     "@ gaps at the end of tracks are padding and have no rows"},
    {"a clip without a name takes its media's", "@ clips without names take their media's"},
    {"a clip without a range plays all of its media",
     "@ clips without a range play all of their media"},
    {"a generated clip has the sequence's frame rate",
     "@ generated clips have the sequence's frame rate"},
    {"a clip of sound has 48000 samples a second, unless its media file tells another rate",
     "@ clips of sound have 48000 samples a second, unless their media files tell another rate"},
    {"a media file is the proxy because of its name in the clip",
     "@ media files are proxies because of their names in the clips"},
    {"an effect is a built-in setting of the program that wrote the file, and is not listed",
     "@ effects are built-in settings of the program that wrote the file, and are not listed"},
    {"a media file on a network address is online; it can't be looked up",
     "@ media files on network addresses are online; they can't be looked up"},
    {"a media file on another system's path is offline; it can't be looked up",
     "@ media files on other systems' paths are offline; they can't be looked up"},
}};

constexpr std::string_view kNotShown = "Not shown: ";
constexpr std::string_view kAssumed = "Assumed: ";
constexpr std::string_view kPlaceOfMany = " (the first is here)";

std::string MakeSentence(OtioRemark remark, std::size_t count) {
  std::string text(remark < OtioRemark::kNameOfFile ? kNotShown : kAssumed);
  const RemarkText& words = kTexts[static_cast<std::size_t>(remark)];
  if (count == 1) return text.append(words.one).append(".");
  const std::size_t number = words.many.find('@');
  text.append(words.many.substr(0, number)).append(std::to_string(count));
  return text.append(words.many.substr(number + 1)).append(kPlaceOfMany).append(".");
}

}  // namespace

void OtioReport::Count(Counter& counter, const OtioPlace& place, JsonValue object, std::size_t count) {
  if (count == 0) return;
  if (counter.count == 0) {
    counter.first = First{place.Describe(), object.GetLine(), object.GetIndex()};
  }
  counter.count += count;
}

void OtioReport::Count(OtioRemark remark, const OtioPlace& place, JsonValue object, std::size_t count) {
  Count(counters[static_cast<std::size_t>(remark)], place, object, count);
}

void OtioReport::Add(const OtioPlace& place, JsonValue object, std::string sentence) {
  AddLine(First{place.Describe(), object.GetLine(), object.GetIndex()}, std::move(sentence));
}

void OtioReport::CountRoundedRate(const OtioPlace& place, JsonValue object, std::string_view text,
                                  const Rate& rate) {
  auto found = std::find_if(roundedRates.begin(), roundedRates.end(),
                            [text](const RoundedRate& known) { return known.text == text; });
  if (found == roundedRates.end()) {
    // Each way to round the dozen rates in use; a file that holds more is damaged.
    constexpr std::size_t kMostRates = 32;
    if (roundedRates.size() == kMostRates) return;
    found = roundedRates.emplace(found);
    found->text = text;
    found->rate = rate;
  }
  Count(found->counter, place, object, 1);
}

void OtioReport::AddUnreadMetadata(const JsonTree& tree, bool hasSeveralTimelines) {
  const auto add = [&](const UnreadMetadata& entry, std::string sentence) {
    if (entry.count > 1) sentence.append(kPlaceOfMany);
    const JsonValue owner = tree.GetPath(entry.firstOwner).back();
    AddLine(First{DescribeObject(tree, entry.firstOwner, hasSeveralTimelines), owner.GetLine(),
                  owner.GetIndex()},
            sentence.append("."));
  };
  for (const UnreadMetadata& entry : tree.GetUnreadMetadata()) {
    std::string sentence(kNotShown);
    sentence.append(entry.isPartlyRead ? "the rest of metadata \"" : "metadata \"");
    sentence.append(entry.name).append("\"");
    if (entry.count > 1) sentence.append(" of ").append(std::to_string(entry.count)).append(" objects");
    add(entry, std::move(sentence));
  }
  const UnreadMetadata& further = tree.GetFurtherUnreadMetadata();
  if (further.count == 0) return;
  const char* words = further.count == 1 ? " value of metadata under another name"
                                         : " values of metadata under further names";
  add(further, std::string(kNotShown) + std::to_string(further.count) + words);
}

void OtioReport::AddLine(const First& first, std::string sentence) {
  lines.push_back(Line{first.index, ImportNote{first.place, first.line, std::move(sentence)}});
}

std::vector<ImportNote> OtioReport::TakeLines() {
  for (std::size_t i = 0; i < counters.size(); ++i) {
    const Counter& counter = counters[i];
    if (counter.count == 0) continue;
    AddLine(counter.first, MakeSentence(static_cast<OtioRemark>(i), counter.count));
  }
  for (const RoundedRate& rate : roundedRates) {
    std::string sentence(kAssumed);
    sentence.append("the rate ").append(rate.text).append(" means ").append(FormatRate(rate.rate));
    if (rate.counter.count > 1) {
      sentence.append(", ").append(std::to_string(rate.counter.count)).append(" times");
      sentence.append(kPlaceOfMany);
    }
    AddLine(rate.counter.first, sentence.append("."));
  }
  std::stable_sort(lines.begin(), lines.end(),
                   [](const Line& left, const Line& right) { return left.index < right.index; });
  std::vector<ImportNote> taken;
  taken.reserve(lines.size());
  for (Line& line : lines) taken.push_back(std::move(line.note));
  lines.clear();
  return taken;
}

}  // namespace standalone
