#include "standalone/import/TimelineReader.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "import/Fixtures.h"
#include "import/OtioText.h"
#include "support/OrdinaryUser.h"

namespace standalone {
namespace {

/// "LINE: sentence", or "read" when the file could be read.
std::string ErrorOf(const std::filesystem::path& file) {
  try {
    ReadTimelineFile(file);
    return "read";
  } catch (const ImportError& error) {
    return std::to_string(error.GetLine()) + ": " + error.what();
  }
}

std::string Damaged(const std::string& name) {
  return ErrorOf(fixtures::Folder() / "damaged" / name);
}

std::string Content(const std::string& fixture) {
  std::ifstream stream(fixtures::Folder() / fixture, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// True when the text is read or refused with a sentence; any other failure passes through.
bool EndsOrderly(const std::string& text) {
  try {
    otio::Read(text);
  } catch (const ImportError& error) {
    return std::string(error.what()).size() > 10;
  }
  return true;
}

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "importXXXXXX").string();
    path = mkdtemp(pattern.data());
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  std::filesystem::path path;
};

TEST(TimelineFiles, WhatIsNoFileIsSaid) {
  const TemporaryFolder folder;
  EXPECT_EQ(ErrorOf(folder.path / "none.otio"), "0: There is no such file; check the path.");
  EXPECT_EQ(ErrorOf(folder.path), "0: This is a folder; give a timeline file.");
}

TEST(TimelineFiles, AFileThatCantBeReadIsSaid) {
  const TemporaryFolder folder;
  const rights::OrdinaryUser user(folder.path);
  std::ofstream(folder.path / "closed.otio") << "{}";
  std::filesystem::permissions(folder.path / "closed.otio", std::filesystem::perms::none);
  EXPECT_EQ(ErrorOf(folder.path / "closed.otio"), "0: The file can't be read: Permission denied.");
}

TEST(TimelineFiles, DamagedOnesAreRefusedWithPlaceAndRemedy) {
  EXPECT_EQ(Damaged("empty.otio"), "0: The file is empty; export the timeline again.");
  EXPECT_EQ(Damaged("blank.otio"), "0: The file holds only blanks; export the timeline again.");
  EXPECT_EQ(Damaged("truncated.otio"),
            "18: The file ends in the middle; it is not complete: export or copy it again.");
  EXPECT_EQ(Damaged("not_json.otio"), "3: This is not valid JSON; export the timeline again.");
  EXPECT_EQ(Damaged("not_utf8.otio"), "3: The text is not valid UTF-8; save the file as UTF-8.");
  EXPECT_EQ(Damaged("utf16.otio"), "1: The text is UTF-16; save the file as UTF-8.");
  EXPECT_EQ(Damaged("more_text.otio"),
            "2: There is more text behind the end of the timeline; remove it.");
  EXPECT_EQ(Damaged("number_too_big.otio"), "2: A number is too big to be read; correct it.");
}

TEST(TimelineFiles, SixteenBitTextIsNamedWithoutAByteOrderMarkToo) {
  const TemporaryFolder folder;
  std::string little;
  for (const char c : otio::Timeline({})) little.append({c, '\0'});
  const std::string big = '\0' + little.substr(0, little.size() - 1);
  for (const std::string& text : {little, big}) {
    std::ofstream(folder.path / "wide.otio", std::ios::binary) << text;
    EXPECT_EQ(ErrorOf(folder.path / "wide.otio"), "1: The text is UTF-16; save the file as UTF-8.");
  }
}

TEST(TimelineFiles, WindowsTextIsReadWithItsLines) {
  const TemporaryFolder folder;
  std::string text =
      "\xEF\xBB\xBF" + otio::Timeline({otio::Track({otio::Clip("A", "1"), otio::Clip("B", "NaN")})});
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) {
    text.insert(at, 1, '\r');
  }
  std::ofstream(folder.path / "cut.otio", std::ios::binary) << text;
  const ImportResult result = ReadTimelineFile(folder.path / "cut.otio");
  EXPECT_EQ(result.document.sequences.at(0).tracks.at(0).items.size(), 2u);
  EXPECT_EQ(result.notes.at(0).line, 2u);
}

TEST(TimelineFiles, ForeignOnesAreRefusedByName) {
  EXPECT_EQ(Damaged("no_schema.otio"),
            "1: This is JSON but no OpenTimelineIO: its top object has no \"OTIO_SCHEMA\".");
  EXPECT_EQ(Damaged("array.otio"),
            "1: This is JSON but no OpenTimelineIO: its top object has no \"OTIO_SCHEMA\".");
  EXPECT_EQ(Damaged("xml.otio"), "1: XML timelines can't be read yet; export OpenTimelineIO (.otio).");
  EXPECT_EQ(Damaged("list.edl"),
            "1: Edit decision lists can't be read yet; export OpenTimelineIO (.otio).");
  EXPECT_EQ(Damaged("archive.otioz"),
            "0: This zip archive is damaged or not complete; export or copy it again.");
  EXPECT_EQ(Damaged("plain_text.otio"),
            "1: This is no timeline in a known format; give an OpenTimelineIO file (.otio) or bundle "
            "(.otioz).");
}

TEST(TimelineFiles, NothingToShowIsSaid) {
  EXPECT_EQ(Damaged("nothing_to_show.otio"),
            "1: There is nothing to show: no timeline, track, stack or clip.");
}

TEST(TimelineFiles, AreRecognisedByContentWhateverTheirName) {
  const TemporaryFolder folder;
  std::ofstream(folder.path / "cut.txt") << "\n " << otio::Timeline({});
  EXPECT_EQ(ErrorOf(folder.path / "cut.txt"), "read");
}

TEST(TimelineFiles, ATimelineThatIsCutAnywhereIsRefusedOrRead) {
  const std::string text = Content("everything_of_ours.otio");
  for (std::size_t length = 0; length < text.size(); length += 7) {
    ASSERT_TRUE(EndsOrderly(text.substr(0, length))) << length;
  }
}

TEST(TimelineFiles, EveryCutBeforeTheLastBracketIsRefused) {
  const std::string text = Content("nested.otio");
  for (std::size_t length = 0; length + 2 < text.size(); length += 11) {
    EXPECT_THROW(otio::Read(text.substr(0, length)), ImportError) << length;
  }
}

TEST(TimelineFiles, FlippedBytesNeverDoWorseThanAnError) {
  std::mt19937 random(20240611);
  for (const char* fixture :
       {"everything_of_ours.otio", "nested.otio", "windows.otio", "media_addresses.otio",
        "numbers_beyond_json.otio", "beyond_100_hours.otio"}) {
    const std::string original = Content(fixture);
    for (int round = 0; round < 400; ++round) {
      std::string text = original;
      for (unsigned flips = 1 + random() % 4; flips > 0; --flips) {
        text[random() % text.size()] ^= static_cast<char>(1 << random() % 8);
      }
      ASSERT_TRUE(EndsOrderly(text)) << fixture << " round " << round;
    }
  }
}

TEST(TimelineFiles, DigitsInFrontOfNumbersNeverDoWorseThanANote) {
  std::mt19937 random(7);
  const std::string original = Content("mixed_rates.otio");
  for (int round = 0; round < 400; ++round) {
    std::string text = original;
    for (std::size_t at = 0; (at = text.find_first_of("0123456789", at)) != std::string::npos;
         at += 2) {
      if (random() % 6 == 0) text.insert(at, random() % 2 == 0 ? "9e1" : "-0.0");
    }
    ASSERT_TRUE(EndsOrderly(text)) << round;
  }
}

TEST(TimelineFiles, TwentyThousandClipsAreRead) {
  const auto clips = [](int count) {
    std::vector<std::string> items;
    for (int i = 0; i < count; ++i) items.push_back(otio::Clip("Clip", "10"));
    return otio::Read(otio::Timeline({otio::Track(items)}))
        .document.sequences.at(0)
        .tracks.at(0)
        .items.size();
  };
  EXPECT_EQ(clips(20000), 20000u);
}

TEST(TimelineFiles, ProgressRisesToOne) {
  std::vector<double> fractions;
  ImportProgress progress;
  progress.report = [&](double fraction) { fractions.push_back(fraction); };
  ReadTimelineFile(fixtures::Folder() / "nested.otio", progress);
  ASSERT_FALSE(fractions.empty());
  EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end()));
  EXPECT_GE(fractions.front(), 0);
  EXPECT_EQ(fractions.back(), 1);
}

TEST(TimelineFiles, CancellingEndsTheReadAtAnyPoint) {
  for (int allowed = 0; allowed < 2; ++allowed) {
    int asked = 0;
    ImportProgress progress;
    progress.isCancelled = [&] { return asked++ >= allowed; };
    try {
      ReadTimelineFile(fixtures::Folder() / "nested.otio", progress);
      FAIL();
    } catch (const ImportError& error) {
      EXPECT_STREQ(error.what(), "Reading was cancelled.");
    }
  }
}

}  // namespace
}  // namespace standalone
