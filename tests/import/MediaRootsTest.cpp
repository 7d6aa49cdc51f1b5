#include "standalone/import/MediaRoots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "import/OtioText.h"
#include "support/Process.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Paths = std::vector<std::filesystem::path>;

/// Where one root leads for an address.
Paths Places(std::string_view root, std::string_view address) {
  MediaRoots roots;
  roots.Add(ParseMediaRoot(root, "/work").value());
  return roots.FindPlaces(address);
}

TEST(MediaRoots, TheBeginningOfAnAddressIsReplaced) {
  EXPECT_THAT(Places("/Volumes/RAID=/mnt/raid", "/Volumes/RAID/day 1/a.mov"),
              ElementsAre("/mnt/raid/day 1/a.mov"));
  EXPECT_THAT(Places("/Volumes/RAID/=/mnt/raid/", "/Volumes/RAID/a.mov"),
              ElementsAre("/mnt/raid/a.mov"));
}

TEST(MediaRoots, OnlyWholePartsMatch) {
  EXPECT_THAT(Places("/Volumes/RAID=/mnt", "/Volumes/RAID2/a.mov"), IsEmpty());
  EXPECT_THAT(Places("/Volumes/RAID=/mnt", "/volumes/raid/a.mov"), IsEmpty());
  EXPECT_THAT(Places("/Volumes/RAID=/mnt", "/x/Volumes/RAID/a.mov"), IsEmpty());
  EXPECT_THAT(Places("D:\\Med=/mnt", "D:\\Media\\a.mov"), IsEmpty());
}

TEST(MediaRoots, DrivesMatchInAnyCaseAndWithBothSeparators) {
  for (const char* root : {"D:\\Media=/mnt", "d:\\Media\\=/mnt", "D:/Media=/mnt", "d:/Media/=/mnt"}) {
    for (const char* address :
         {"D:\\Media\\day 1\\a.mov", "d:/Media/day 1/a.mov", "D:\\Media/day 1\\a.mov"}) {
      EXPECT_THAT(Places(root, address), ElementsAre("/mnt/day 1/a.mov")) << root << " " << address;
    }
  }
  EXPECT_THAT(Places("D:=/mnt", "d:\\a.mov"), ElementsAre("/mnt/a.mov"));
  EXPECT_THAT(Places("D:\\=/mnt", "d:/x/a.mov"), ElementsAre("/mnt/x/a.mov"));
  EXPECT_THAT(Places("D:=/mnt", "E:\\a.mov"), IsEmpty());
}

TEST(MediaRoots, SharesMatchWithBothSeparators) {
  for (const char* root : {"\\\\server\\share=/mnt", "//server/share=/mnt"}) {
    for (const char* address : {"\\\\server\\share\\x\\a.mov", "//server/share/x/a.mov"}) {
      EXPECT_THAT(Places(root, address), ElementsAre("/mnt/x/a.mov")) << root << " " << address;
    }
  }
}

TEST(MediaRoots, ABackslashIsACharacterOfNamesHere) {
  EXPECT_THAT(Places("/a=/mnt", "/a/odd\\name.mov"), ElementsAre("/mnt/odd\\name.mov"));
  EXPECT_THAT(Places("/a=/mnt", "/a\\b.mov"), IsEmpty());
}

TEST(MediaRoots, AFileURLIsItsPath) {
  EXPECT_THAT(Places("file:///Volumes/My%20Disk=/mnt", "/Volumes/My Disk/a.mov"),
              ElementsAre("/mnt/a.mov"));
  EXPECT_THAT(Places("file:///C:/Media=/mnt", "C:\\Media\\a.mov"), ElementsAre("/mnt/a.mov"));
  EXPECT_THAT(Places("file://server/share=/mnt", "\\\\server\\share\\a.mov"),
              ElementsAre("/mnt/a.mov"));
}

TEST(MediaRoots, AnAddressMayBeRelativeOrOfAnotherScheme) {
  EXPECT_THAT(Places("../footage=/mnt", "../footage/a.mov"), ElementsAre("/mnt/a.mov"));
  EXPECT_THAT(Places("https://example.org/rushes=/mnt", "https://example.org/rushes/a.mov"),
              ElementsAre("/mnt/a.mov"));
}

TEST(MediaRoots, TheWholeFileSystemCanBeMoved) {
  EXPECT_THAT(Places("/=/mnt/backup", "/media/a.mov"), ElementsAre("/mnt/backup/media/a.mov"));
  EXPECT_THAT(Places("/=/mnt/backup", "media/a.mov"), IsEmpty());
}

TEST(MediaRoots, AFolderHereMayBeRelative) {
  EXPECT_THAT(Places("/Volumes/RAID=../raid", "/Volumes/RAID/a.mov"), ElementsAre("/raid/a.mov"));
}

TEST(MediaRoots, AllThatFitLeadSomewhereInTheirOrder) {
  MediaRoots roots;
  roots.Add(ParseMediaRoot("/a/b=/second", "/").value());
  roots.Add(ParseMediaRoot("/x=/no", "/").value());
  roots.Add(ParseMediaRoot("/a=/first", "/").value());
  EXPECT_THAT(roots.FindPlaces("/a/b/c.mov"), ElementsAre("/second/c.mov", "/first/b/c.mov"));
}

TEST(MediaRoots, WhatIsNoPairIsNone) {
  for (const char* text : {"", "=", "/a", "/a=", "=/a"}) {
    EXPECT_FALSE(ParseMediaRoot(text, "/")) << text;
  }
  EXPECT_EQ(ParseMediaRoot("/a=/b=c", "/").value().to, "/b=c");
}

MediaDraft ReadWithRoots(const std::string& reference, const std::vector<std::string>& pairs) {
  TimelineSource source = DescribeFile("/cut/scene.otio");
  for (const std::string& pair : pairs) source.mediaRoots.Add(ParseMediaRoot(pair, "/").value());
  const std::string text =
      otio::Timeline({otio::Track({otio::Clip("A", "10", otio::Media(reference))})});
  const ImportResult result = OtioReader().Read(text, source, {});
  return result.document.sequences.at(0).tracks.at(0).items.at(0).clip.value().media;
}

TEST(MediaRootsOfATimeline, LostMediaIsFoundAndKeepsItsAddress) {
  const process::Folder folder;
  process::WriteFile(folder / "a b.mov", "x");
  const std::string here = folder.GetPath().native();
  const MediaDraft media =
      ReadWithRoots(otio::File("file:///D:/Media/a%20b.mov"),
                    {"d:\\Other=/nowhere", "d:\\Media=/nowhere", "D:/Media=" + here});
  EXPECT_EQ(media.address, "D:/Media/a b.mov");
  EXPECT_EQ(media.lookUpPath, here + "/a b.mov");
  EXPECT_FALSE(media.isOffline);
}

TEST(MediaRootsOfATimeline, MediaThatLiesWhereTheAddressSaysStaysThere) {
  const process::Folder folder;
  std::filesystem::create_directory(folder / "moved");
  process::WriteFile(folder / "a.mov", "x");
  process::WriteFile(folder / "moved/a.mov", "x");
  const std::string here = folder.GetPath().native();
  const MediaDraft media = ReadWithRoots(otio::File(here + "/a.mov"), {here + "=" + here + "/moved"});
  EXPECT_EQ(media.lookUpPath, here + "/a.mov");
}

TEST(MediaRootsOfATimeline, WhatIsNowhereStaysOfflineAtItsAddress) {
  const MediaDraft media = ReadWithRoots(otio::File("/Volumes/RAID/a.mov"), {"/Volumes=/nowhere"});
  EXPECT_TRUE(media.isOffline);
  EXPECT_EQ(media.lookUpPath, "/Volumes/RAID/a.mov");
}

}  // namespace
}  // namespace standalone
