#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "import/DraftText.h"
#include "import/Fixtures.h"
#include "import/OtioText.h"
#include "support/OrdinaryUser.h"
#include "support/Process.h"
#include "support/ZipFile.h"

namespace standalone {
namespace {

using testing::ElementsAre;

std::filesystem::path Harbour() {
  return fixtures::Folder() / "bundles" / "harbour.otiod";
}

/// "LINE: sentence", or "read" when the file could be read.
std::string ErrorOf(const std::filesystem::path& file) {
  try {
    ReadTimelineFile(file);
    return "read";
  } catch (const ImportError& error) {
    return std::to_string(error.GetLine()) + ": " + error.what();
  }
}

/// The error of an archive of those bytes.
std::string ErrorOfBytes(const std::string& bytes) {
  const process::Folder folder;
  process::WriteFile(folder / "cut.otioz", bytes);
  return ErrorOf(folder / "cut.otioz");
}

std::string ErrorOfFiles(const std::vector<zipfile::File>& files) {
  return ErrorOfBytes(zipfile::Make(files));
}

/// A timeline without a name whose clips have those addresses.
std::string Timeline(const std::vector<std::string>& addresses) {
  std::vector<std::string> clips;
  for (const std::string& address : addresses) {
    clips.push_back(otio::Clip("Clip", "10", otio::Media(otio::File(address))));
  }
  return otio::Item("Timeline.1", "", R"(, "tracks": )" + otio::Stack({otio::Track(clips)}));
}

std::string Content() {
  return Timeline({"media/clip.mov"});
}

/// The bytes of an archive with that content, a version and a media file.
std::string Archive(const std::string& content = Content()) {
  return zipfile::Make({{"version.txt", "1.0.0"},
                        {"content.otio", content},
                        {"media/clip.mov", "moving pictures", ZIP_CM_STORE}});
}

/// Address and state of every clip's media.
std::vector<std::string> Media(const ImportResult& result) {
  std::vector<std::string> texts;
  for (const TrackItemDraft& item : result.document.sequences.at(0).tracks.at(0).items) {
    const MediaDraft& media = item.clip.value().media;
    texts.push_back(std::string(media.address) + (media.isOffline ? " offline" : " online"));
  }
  return texts;
}

const MediaDraft& FirstMedia(const ImportResult& result) {
  return result.document.sequences.at(0).tracks.at(0).items.at(0).clip->media;
}

TEST(FolderBundles, AreReadWithTheMediaInside) {
  const ImportResult result = ReadTimelineFile(Harbour());
  EXPECT_EQ(result.document.sequences.at(0).name, "harbour");
  EXPECT_THAT(Media(result), ElementsAre("media/quay.txt online", "media/gulls at dawn.txt online",
                                         "media/ferry.txt offline"));
  EXPECT_EQ(FirstMedia(result).lookUpPath, (Harbour() / "media" / "quay.txt").string());
  EXPECT_EQ(result.notes.at(0).line, 30u);
}

TEST(FolderBundles, ASlashOrAPointAtTheEndChangesNothing) {
  for (const char* end : {"/", "//", "/.", "/media/.."}) {
    const ImportResult result = ReadTimelineFile(Harbour().string() + end);
    EXPECT_EQ(result.document.sequences.at(0).name, "harbour") << end;
    EXPECT_EQ(FirstMedia(result).lookUpPath, (Harbour() / "media" / "quay.txt").string()) << end;
  }
}

TEST(FolderBundles, AFolderWithoutContentIsNone) {
  const process::Folder folder;
  EXPECT_EQ(ErrorOf(folder.GetPath()), "0: This is a folder; give a timeline file.");
  std::filesystem::create_directory(folder / "cut.otiod");
  for (const char* name : {"cut.otiod", "cut.otiod/"}) {
    EXPECT_EQ(ErrorOf(folder / name), "0: This bundle has no content.otio; export or copy it again.");
  }
}

TEST(FolderBundles, ContentThatCantBeReadIsNamed) {
  const process::Folder folder;
  const std::filesystem::path content = folder / "content.otio";
  process::WriteFile(content, "");
  EXPECT_EQ(ErrorOf(folder.GetPath()), "0: content.otio is empty; export the timeline again.");
  process::WriteFile(content, "{\n\"OTIO_SCHEMA\": nothing}");
  EXPECT_EQ(ErrorOf(folder.GetPath()),
            "2: content.otio: This is not valid JSON; export the timeline again.");
  process::WriteFile(content, Archive());
  EXPECT_EQ(
      ErrorOf(folder.GetPath()),
      "1: content.otio: This is no timeline in a known format; give an OpenTimelineIO file (.otio) "
      "or bundle (.otioz).");
  std::filesystem::remove(content);
  std::filesystem::create_directory(content);
  EXPECT_EQ(ErrorOf(folder.GetPath()), "0: content.otio is a folder itself; export the bundle again.");
}

TEST(FolderBundles, ContentThatIsForbiddenIsNamed) {
  const process::Folder folder;
  const rights::OrdinaryUser user(folder.GetPath());
  process::WriteFile(folder / "content.otio", Content());
  std::filesystem::permissions(folder / "content.otio", std::filesystem::perms::none);
  EXPECT_EQ(ErrorOf(folder.GetPath()), "0: content.otio can't be read: Permission denied.");
  std::filesystem::permissions(folder.GetPath(), std::filesystem::perms::owner_read);
  EXPECT_EQ(ErrorOf(folder.GetPath()), "0: content.otio can't be read: Permission denied.");
  std::filesystem::permissions(folder.GetPath(), std::filesystem::perms::owner_all);
}

TEST(ZipBundles, AreReadWhateverTheirName) {
  const process::Folder folder;
  for (const char* name : {"harbour.otioz", "harbour.otio", "harbour"}) {
    process::WriteFile(folder / name, Archive());
    const ImportResult result = ReadTimelineFile(folder / name);
    EXPECT_EQ(result.document.sequences.at(0).name, "harbour");
    EXPECT_THAT(Media(result), ElementsAre("media/clip.mov online"));
    EXPECT_EQ(FirstMedia(result).lookUpPath, (folder / name / "media" / "clip.mov").string());
  }
}

TEST(ZipBundles, EveryWayOfPackingIsRead) {
  const process::Folder folder;
  for (const zip_int32_t method : {ZIP_CM_STORE, ZIP_CM_DEFLATE, ZIP_CM_BZIP2}) {
    zipfile::Write(folder / "cut.otioz", {{"content.otio", Content(), method}});
    EXPECT_THAT(Media(ReadTimelineFile(folder / "cut.otioz")), ElementsAre("media/clip.mov offline"));
  }
}

TEST(ZipBundles, RelativeAddressesAreNamesOfTheArchivesFiles) {
  const process::Folder folder;
  process::WriteFile(folder / "beside.mov", "moving pictures");
  process::WriteFile(folder / "content.otio", "another");
  zipfile::Write(
      folder / "cut.otioz",
      {{"content.otio",
        Timeline({"media/clip.mov", "./media/../media/clip.mov", "media/M%C3%BCller%20one.mov",
                  "media/100%25.mov", "media/a%41.mov", "MEDIA/clip.mov", "media", "media/",
                  "beside.mov", "../beside.mov", "../cut.otioz/media/clip.mov", ""})},
       {"media/", ""},
       {"media/clip.mov", "1"},
       {"media/M\u00fcller one.mov", "2"},
       {"media/100%.mov", "3"},
       {"media/a%41.mov", "4"}});
  const ImportResult result = ReadTimelineFile(folder / "cut.otioz");
  EXPECT_THAT(
      Media(result),
      ElementsAre("media/clip.mov online", "./media/../media/clip.mov online",
                  "media/M\u00fcller one.mov online", "media/100%.mov online", "media/aA.mov online",
                  "MEDIA/clip.mov offline", "media offline", "media/ offline", "beside.mov offline",
                  "../beside.mov offline", "../cut.otioz/media/clip.mov online", " offline"));
  const auto& items = result.document.sequences.at(0).tracks.at(0).items;
  EXPECT_EQ(items.at(4).clip->media.lookUpPath, (folder / "cut.otioz/media/a%41.mov").string());
  EXPECT_EQ(items.at(8).clip->media.lookUpPath, (folder / "cut.otioz/beside.mov").string());
  EXPECT_EQ(items.at(9).clip->media.lookUpPath, "");
}

TEST(ZipBundles, AbsoluteAddressesLieOnDiskUnlessTheyLeadIntoTheArchive) {
  const process::Folder folder;
  process::WriteFile(folder / "beside.mov", "moving pictures");
  const std::string base = folder.GetPath().string();
  zipfile::Write(folder / "cut.otioz",
                 {{"content.otio", Timeline({base + "/beside.mov", "file://" + base + "/none.mov",
                                             "file://" + base + "/cut.otioz/clip.mov"})},
                  {"clip.mov", "1"}});
  EXPECT_THAT(Media(ReadTimelineFile(folder / "cut.otioz")),
              ElementsAre(base + "/beside.mov online", base + "/none.mov offline",
                          base + "/cut.otioz/clip.mov online"));
}

TEST(ZipBundles, MediaAreNeverRead) {
  std::string bytes = Archive();
  const std::size_t media = zipfile::FindLocalEntry(bytes, "media/clip.mov");
  bytes.replace(media, 30, 30, '?');
  EXPECT_EQ(ErrorOfBytes(bytes), "read");
}

TEST(ZipBundles, OfSeveralContentsTheFirstIsRead) {
  std::string bytes = zipfile::Make({{"content.otio", Timeline({"first.mov"}), ZIP_CM_STORE},
                                     {"content.otix", Timeline({"other.mov"}), ZIP_CM_STORE}});
  for (std::size_t at = 0; (at = bytes.find("content.otix")) != std::string::npos;) {
    bytes.replace(at, 12, "content.otio");
  }
  const process::Folder folder;
  process::WriteFile(folder / "cut.otioz", bytes);
  EXPECT_THAT(Media(ReadTimelineFile(folder / "cut.otioz")), ElementsAre("first.mov offline"));
}

/// A pipe in which somebody writes those bytes.
class WrittenPipe {
 public:
  WrittenPipe(const std::filesystem::path& path, const std::string& bytes) {
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    writer = std::thread([path, bytes] { process::WriteFile(path, bytes); });
  }
  ~WrittenPipe() { writer.join(); }
  WrittenPipe(const WrittenPipe&) = delete;
  WrittenPipe& operator=(const WrittenPipe&) = delete;

 private:
  std::thread writer;
};

TEST(ZipBundles, AreReadFromAPipe) {
  const process::Folder folder;
  const WrittenPipe pipe(folder / "pipe", Archive());
  EXPECT_THAT(Media(ReadTimelineFile(folder / "pipe")), ElementsAre("media/clip.mov online"));
}

TEST(ZipBundles, ADamagedOneFromAPipeIsRefused) {
  const process::Folder folder;
  const std::string bytes = Archive();
  const WrittenPipe pipe(folder / "pipe", bytes.substr(0, bytes.size() / 2));
  EXPECT_EQ(ErrorOf(folder / "pipe"),
            "0: This zip archive is damaged or not complete; export or copy it again.");
}

TEST(ZipBundles, ErrorsAndNotesHaveTheLineOfTheContent) {
  EXPECT_EQ(ErrorOfBytes(Archive("{\n\n\"OTIO_SCHEMA\": nothing}")),
            "3: content.otio: This is not valid JSON; export the timeline again.");
  EXPECT_EQ(ErrorOfBytes(Archive("<xml/>")),
            "1: content.otio: XML timelines can't be read yet; export OpenTimelineIO (.otio).");
  const process::Folder folder;
  process::WriteFile(folder / "cut.otioz",
                     Archive("\n\n" + otio::Timeline({otio::Track({otio::Clip("A", "NaN")})})));
  EXPECT_EQ(ReadTimelineFile(folder / "cut.otioz").notes.at(0).line, 3u);
}

TEST(ZipBundles, AnArchiveWithoutContentIsNone) {
  constexpr const char* kNoContent =
      "0: This zip archive has no content.otio, so it is no bundle; give an OpenTimelineIO bundle "
      "(.otioz) or file (.otio).";
  EXPECT_EQ(ErrorOfFiles({{"cut.otio", Content()}}), kNoContent);
  EXPECT_EQ(ErrorOfFiles({{"Content.otio", Content()}, {"content.otio/", ""}}), kNoContent);
  EXPECT_EQ(ErrorOfBytes(std::string("PK\x05\x06") + std::string(18, '\0')), kNoContent);
  EXPECT_EQ(ErrorOfFiles({{"cut.otiod/content.otio", Content()}, {"cut.otiod/media/a.mov", "1"}}),
            "0: This zip archive has its content.otio in a folder, so it is no bundle; pack what is in "
            "that folder.");
}

TEST(ZipBundles, ContentThatCantBeUnpackedIsNamed) {
  EXPECT_EQ(ErrorOfFiles({{"content.otio", ""}}),
            "0: content.otio is empty; export the timeline again.");
  EXPECT_EQ(ErrorOfFiles({{"content.otio", Content(), ZIP_CM_DEFLATE, "secret"}}),
            "0: content.otio is encrypted; pack the bundle without a password.");
  std::string bytes = Archive();
  zipfile::PutBoth(bytes, "content.otio", zipfile::kMethod, 97, 2);
  EXPECT_EQ(ErrorOfBytes(bytes),
            "0: content.otio is packed by an unknown method; pack the bundle with \"deflate\".");
  bytes = Archive();
  zipfile::PutBoth(bytes, "content.otio", zipfile::kChecksum, 0x12345678, 4);
  EXPECT_EQ(ErrorOfBytes(bytes),
            "0: content.otio is damaged: its checksum is wrong; export or copy the bundle again.");
  bytes = Archive();
  bytes.replace(zipfile::FindLocalEntry(bytes, "content.otio") + 42, 40, 40, '\xFF');
  EXPECT_EQ(ErrorOfBytes(bytes), "0: content.otio is damaged; export or copy the bundle again.");
}

TEST(ZipBundles, ASizeThatLiesIsFoundOut) {
  for (const std::uint64_t size : {std::uint64_t{1}, std::uint64_t{0xFFFFFF00}}) {
    std::string bytes = Archive();
    zipfile::PutBoth(bytes, "content.otio", zipfile::kSize, size, 4);
    EXPECT_EQ(ErrorOfBytes(bytes), "0: content.otio is damaged; export or copy the bundle again.")
        << size;
  }
}

TEST(ZipBundles, MoreThanFourGigabytesAreRefusedBeforeTheyAreUnpacked) {
  EXPECT_EQ(
      ErrorOfBytes(zipfile::MakeWithClaimedSize("content.otio", Content(), std::uint64_t{1} << 32)),
      "0: content.otio is larger than 4 GB; split the timeline.");
}

TEST(ZipBundles, APartOfSeveralIsRefused) {
  std::string bytes = Archive();
  // The number of the part, and of the part that has the directory.
  zipfile::Put(bytes, bytes.rfind("PK\x05\x06") + 4, 0x00010001, 4);
  EXPECT_EQ(ErrorOfBytes(bytes),
            "0: This zip archive is one part of several; pack the bundle into one file.");
}

TEST(ZipBundles, AForbiddenArchiveIsSaid) {
  const process::Folder folder;
  const rights::OrdinaryUser user(folder.GetPath());
  process::WriteFile(folder / "cut.otioz", Archive());
  std::filesystem::permissions(folder / "cut.otioz", std::filesystem::perms::none);
  EXPECT_EQ(ErrorOf(folder / "cut.otioz"), "0: The file can't be read: Permission denied.");
}

TEST(ZipBundles, UnpackingAsksWhetherToStop) {
  const process::Folder folder;
  process::WriteFile(folder / "cut.otioz", Archive(Content() + std::string(10'000'000, ' ')));
  int asked = 0;
  ImportProgress progress;
  progress.isCancelled = [&] { return ++asked == 100; };
  try {
    ReadTimelineFile(folder / "cut.otioz", progress);
    FAIL();
  } catch (const ImportError& error) {
    EXPECT_STREQ(error.what(), "Reading was cancelled.");
  }
  EXPECT_EQ(asked, 100);
}

/// True when the archive is read or refused with one sentence; any other failure passes through.
bool EndsOrderly(const std::filesystem::path& file, const std::string& bytes) {
  process::WriteFile(file, bytes);
  try {
    ReadTimelineFile(file);
  } catch (const ImportError& error) {
    const std::string sentence = error.what();
    return sentence.size() > 10 && sentence.back() == '.' && sentence.find('\n') == std::string::npos;
  }
  return true;
}

TEST(ZipBundles, OnesThatAreCutAnywhereAreRefused) {
  const process::Folder folder;
  const std::string bytes = Archive();
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    ASSERT_TRUE(EndsOrderly(folder / "cut.otioz", bytes.substr(0, length))) << length;
    ASSERT_NE(ErrorOf(folder / "cut.otioz"), "read") << length;
  }
}

TEST(ZipBundles, FlippedBytesNeverDoWorseThanAnError) {
  const process::Folder folder;
  std::string bytes = Archive();
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    for (const int flips : {0x01, 0x08, 0x80, 0xFF}) {
      bytes[at] ^= static_cast<char>(flips);
      ASSERT_TRUE(EndsOrderly(folder / "cut.otioz", bytes)) << at << " by " << flips;
      bytes[at] ^= static_cast<char>(flips);
    }
  }
}

}  // namespace
}  // namespace standalone
