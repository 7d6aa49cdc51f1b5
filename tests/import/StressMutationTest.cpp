#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "generator/TimelineFile.h"
#include "import/Fixtures.h"
#include "import/OtioText.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/Runtime.h"

/// Random damage of good files: reading ends with a whole model or with one sentence.
namespace standalone {
namespace {

using qelmediatypes::TickTime;
using Random = std::mt19937;

std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// A sample or fixture, or a generated timeline of that seed.
std::string ReadSource(const std::string& name) {
  constexpr std::string_view kGenerated = "generated_";
  if (name.starts_with(kGenerated)) {
    std::ostringstream stream;
    const std::uint64_t seed = std::stoul(name.substr(kGenerated.size()));
    generator::WriteTimeline(stream, {.seed = seed, .clips = 60, .worldTextPercent = 40});
    return stream.str();
  }
  const std::filesystem::path demo = std::filesystem::path(SOURCE_FOLDER) / "samples" / name;
  return ReadFile(std::filesystem::exists(demo) ? demo : fixtures::Folder() / name);
}

std::size_t Pick(Random& random, std::size_t count) {
  return random() % std::max<std::size_t>(count, 1);
}

void FlipBits(std::string& text, Random& random) {
  text[Pick(random, text.size())] ^= static_cast<char>(1 << random() % 8);
}

void CutOut(std::string& text, Random& random) {
  text.erase(Pick(random, text.size()), Pick(random, 200));
}

void CutEnd(std::string& text, Random& random) {
  text.resize(text.size() - Pick(random, 400));
}

/// Exchanges two pieces of the same length.
void SwapPieces(std::string& text, Random& random) {
  const std::size_t length = 1 + Pick(random, std::min<std::size_t>(120, text.size() / 2));
  const std::size_t first = Pick(random, text.size() - length);
  const std::size_t second = Pick(random, text.size() - length);
  if (std::max(first, second) - std::min(first, second) < length) return;
  const auto at = text.begin();
  std::swap_ranges(at + static_cast<std::ptrdiff_t>(first),
                   at + static_cast<std::ptrdiff_t>(first + length),
                   at + static_cast<std::ptrdiff_t>(second));
}

void ReplaceNumber(std::string& text, Random& random) {
  constexpr std::array<std::string_view, 16> kNumbers = {
      "0",         "-1",
      "NaN",       "-Infinity",
      "1e300",     "9223372036854775808",
      "1e-9",      "2147483648",
      "24000",     "29.97",
      "-0.0",      "0.5",
      "1001",      "8999999",
      "999999999", "4.9406564584124654e-324",
  };
  constexpr std::string_view kDigits = "0123456789.-";
  const std::size_t colon = text.find(": ", Pick(random, text.size()));
  const std::size_t first = text.find_first_of("0123456789", colon);
  if (first == std::string::npos) return;
  const std::size_t end = std::min(text.find_first_not_of(kDigits, first), text.size());
  text.replace(first, end - first, kNumbers[Pick(random, kNumbers.size())]);
}

/// Puts a value of another type in the place of a text.
void ReplaceText(std::string& text, Random& random) {
  constexpr std::array<std::string_view, 8> kValues = {
      "null", "{}", "[]", "7", "true", R"("\ud800")", R"("a\u0000\n")", R"({"OTIO_SCHEMA": "Stack.1"})",
  };
  const std::size_t first = text.find(": \"", Pick(random, text.size()));
  if (first == std::string::npos) return;
  const std::size_t end = text.find('"', first + 3);
  if (end == std::string::npos) return;
  text.replace(first + 2, end - first - 1, kValues[Pick(random, kValues.size())]);
}

std::string Damage(std::string text, Random& random) {
  constexpr std::array kKinds = {FlipBits, CutOut, CutEnd, SwapPieces, ReplaceNumber, ReplaceText};
  // Most files that are hit in their syntax are refused at once; the others show more.
  const bool isSyntaxKept = random() % 3 != 0;
  for (std::size_t count = 1 + Pick(random, 4); count > 0 && text.size() > 1000; --count) {
    kKinds[isSyntaxKept ? 4 + Pick(random, 2) : Pick(random, kKinds.size())](text, random);
  }
  return text;
}

/// Length of the character that the text begins with; 0: none of UTF-8.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [text](std::size_t i) {
    return i < text.size() ? static_cast<unsigned>(static_cast<unsigned char>(text[i])) : 0U;
  };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  unsigned code = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
    code = code << 6 | (byte(i) & 0x3F);
  }
  constexpr std::array<unsigned, 5> kLowest = {0, 0, 0x80, 0x800, 0x10000};
  const bool isSurrogate = code >= 0xD800 && code < 0xE000;
  return lead >= 0xC2 && code >= kLowest[length] && code <= 0x10FFFF && !isSurrogate ? length : 0;
}

void ExpectUTF8(std::string_view text) {
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t length = CharacterLength(rest);
    ASSERT_NE(length, 0u) << text;
    rest.remove_prefix(length);
  }
}

void ExpectMedia(const MediaDraft& media) {
  ExpectUTF8(media.address);
  ExpectUTF8(media.offlineReason);
  ExpectUTF8(media.codec);
}

void ExpectClip(const ClipDraft& clip, std::size_t sequenceCount) {
  for (const std::string* text : {&clip.name, &clip.labelName, &clip.sourceClipName, &clip.comment,
                                  &clip.description, &clip.tapeName, &clip.videoInfo}) {
    ExpectUTF8(*text);
  }
  ExpectMedia(clip.media);
  if (clip.proxy) ExpectMedia(*clip.proxy);
  for (const ComponentDraft& component : clip.components) {
    ExpectUTF8(component.displayName);
    ExpectUTF8(component.matchName);
    for (const std::string& font : component.fonts) ExpectUTF8(font);
  }
  for (const auto& transition : {clip.headTransition, clip.tailTransition}) {
    if (transition) ExpectUTF8(transition->displayName);
  }
  for (const std::string& camera : clip.multicam.cameraNames) ExpectUTF8(camera);
  EXPECT_LT(clip.nestedSequence.value_or(0), sequenceCount);
}

void ExpectTrack(const TrackDraft& track, std::size_t sequenceCount) {
  ExpectUTF8(track.name);
  TickTime position;
  for (const TrackItemDraft& item : track.items) {
    ASSERT_GE(item.start, position);
    ASSERT_GE(item.end, item.start);
    ASSERT_LT(item.end, qelmediatypes::kOneHundredHours);
    position = item.end;
    if (item.clip) ExpectClip(*item.clip, sequenceCount);
  }
}

void ExpectNotes(const std::vector<ImportNote>& notes) {
  for (const ImportNote& note : notes) {
    ExpectUTF8(note.place);
    ExpectUTF8(note.sentence);
    EXPECT_TRUE(note.sentence.ends_with('.')) << note.sentence;
  }
}

void ExpectWhole(const ImportResult& result) {
  const auto& sequences = result.document.sequences;
  EXPECT_GT(result.document.timelineCount, 0u);
  EXPECT_LE(result.document.timelineCount, sequences.size());
  for (const SequenceDraft& sequence : sequences) {
    ExpectUTF8(sequence.name);
    EXPECT_GT(sequence.videoRate.GetFrameDuration(), TickTime());
    for (const TrackDraft& track : sequence.tracks) ExpectTrack(track, sequences.size());
  }
  ExpectNotes(result.notes);
  ExpectNotes(result.report);
}

/// A host's model, into which whole results are built.
struct Model {
  Runtime runtime;
  ProjectModel project;
};

/// Tells whether the text could be read.
bool ReadsWhole(const std::string& text, Model& model) {
  try {
    ImportResult result = otio::Read(text);
    ExpectWhole(result);
    model.project.AddDocument(std::move(result.document));
    return true;
  } catch (const ImportError& error) {
    ExpectUTF8(error.what());
    EXPECT_TRUE(std::string_view(error.what()).ends_with('.')) << error.what();
    return false;
  }
}

void DamageAndRead(const std::string& name, unsigned rounds) {
  constexpr unsigned kRoundsOfAModel = 50;
  const std::string original = ReadSource(name);
  ASSERT_FALSE(original.empty()) << name;
  unsigned wholeCount = 0;
  for (unsigned first = 0; first < rounds; first += kRoundsOfAModel) {
    Model model;
    for (unsigned seed = first; seed < std::min(rounds, first + kRoundsOfAModel); ++seed) {
      Random random(seed);
      if (ReadsWhole(Damage(original, random), model)) ++wholeCount;
      ASSERT_FALSE(testing::Test::HasFailure()) << name << ", seed " << seed;
    }
  }
  EXPECT_GT(wholeCount, rounds / 4) << name;
}

constexpr std::array kFiles = {
    "demo.otio",
    "everything_of_ours.otio",
    "nested.otio",
    "mixed_rates.otio",
    "media_addresses.otio",
    "transitions_at_edges.otio",
    "windows.otio",
    "builtin_panels.otio",
    "collections_in_collections.otio",
    "report_everything.otio",
    "generated_1",
    "generated_2",
    "generated_3",
};

class DamagedTimeline : public testing::TestWithParam<const char*> {};
class StressMutation : public testing::TestWithParam<const char*> {};

TEST_P(DamagedTimeline, IsReadWholeOrRefused) {
  constexpr unsigned kRounds = 40;
  DamageAndRead(GetParam(), kRounds);
}

TEST_P(StressMutation, IsReadWholeOrRefused) {
  constexpr unsigned kRounds = 2000;
  DamageAndRead(GetParam(), kRounds);
}

std::string NameOf(const testing::TestParamInfo<const char*>& file) {
  const std::string name = file.param;
  return name.substr(0, name.find('.'));
}

INSTANTIATE_TEST_SUITE_P(Random, DamagedTimeline, testing::ValuesIn(kFiles), NameOf);
INSTANTIATE_TEST_SUITE_P(Stress, StressMutation, testing::ValuesIn(kFiles), NameOf);

}  // namespace
}  // namespace standalone
