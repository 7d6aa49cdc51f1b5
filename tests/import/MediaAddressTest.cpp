#include "standalone/import/MediaAddress.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <unordered_set>

namespace standalone {
namespace {

MediaAddress Read(std::string_view written) {
  return ReadMediaAddress(written, {"/cut"});
}

TEST(MediaAddresses, AFileURLIsItsDecodedPath) {
  EXPECT_EQ(Read("file:///media/stills/sunset%20%231.png").text, "/media/stills/sunset #1.png");
  EXPECT_EQ(Read("file:///media/stills/sunset%20%231.png").lookUpPath, "/media/stills/sunset #1.png");
  EXPECT_EQ(Read("file://localhost/Volumes/RAID/a.mov").text, "/Volumes/RAID/a.mov");
  EXPECT_EQ(Read("FILE:/media/a.mov").text, "/media/a.mov");
  EXPECT_EQ(Read("file:///media/M%C3%BCller.mov").text, "/media/M\u00fcller.mov");
}

TEST(MediaAddresses, DriveLettersLoseTheSlashInFront) {
  EXPECT_EQ(Read("file:///C:/Media/a%20b.wav").text, "C:/Media/a b.wav");
  EXPECT_EQ(Read("file://localhost/D:/a.wav").text, "D:/a.wav");
  EXPECT_EQ(Read("file://C:/Media/a.wav").text, "C:/Media/a.wav");
}

TEST(MediaAddresses, OtherMachinesAndPlatformsAreNotLookedUp) {
  EXPECT_EQ(Read("file://server/share/a.mov").text, "//server/share/a.mov");
  EXPECT_EQ(Read(R"(C:\Media\Music\theme.wav)").text, R"(C:\Media\Music\theme.wav)");
  for (const char* written : {"file://server/share/a.mov", R"(C:\Media\theme.wav)", R"(\\server\a.mov)",
                              "file:///C:/a.mov", "https://example.org/a%20b.mov", ""}) {
    EXPECT_EQ(Read(written).lookUpPath, "") << written;
  }
  EXPECT_EQ(Read("https://example.org/a%20b.mov").text, "https://example.org/a%20b.mov");
}

TEST(MediaAddresses, PlainAbsolutePathsStandAsTheyAreWritten) {
  EXPECT_EQ(Read("/Users/anna/100%25 wool.mov").text, "/Users/anna/100%25 wool.mov");
  EXPECT_EQ(Read("/Users/anna/100%25 wool.mov").lookUpPath, "/Users/anna/100%25 wool.mov");
}

TEST(MediaAddresses, RelativeAddressesAreDecodedAndLookedUpBesideTheTimeline) {
  EXPECT_EQ(Read("../footage/sky%20one.mov").text, "../footage/sky one.mov");
  EXPECT_EQ(Read("../footage/sky%20one.mov").lookUpPath, "/footage/sky one.mov");
  EXPECT_EQ(Read("boom.wav").lookUpPath, "/cut/boom.wav");
  EXPECT_EQ(Read("take:1.mov").text, "take:1.mov");
}

/// An archive with those files.
MediaFolder Archive(const std::unordered_set<std::string>& files) {
  return {"/cut/a.otioz", std::make_shared<const std::unordered_set<std::string>>(files)};
}

TEST(MediaAddresses, RelativeOnesOfAnArchiveLieBelowIt) {
  const MediaFolder archive = Archive({"media/sky one.mov", "media/100%41.mov"});
  EXPECT_EQ(ReadMediaAddress("media/sky%20one.mov", archive).text, "media/sky one.mov");
  EXPECT_EQ(ReadMediaAddress("media/sky%20one.mov", archive).lookUpPath,
            "/cut/a.otioz/media/sky one.mov");
  EXPECT_EQ(ReadMediaAddress("media/none.mov", archive).lookUpPath, "/cut/a.otioz/media/none.mov");
  EXPECT_EQ(ReadMediaAddress("media/100%41.mov", archive).lookUpPath, "/cut/a.otioz/media/100%41.mov");
}

TEST(MediaAddresses, NoneLeavesAnArchive) {
  const MediaFolder archive = Archive({"clip.mov"});
  for (const char* written : {"../clip.mov", "media/../../clip.mov", "..", "../a.otioz.mov"}) {
    EXPECT_EQ(ReadMediaAddress(written, archive).text, written);
    EXPECT_EQ(ReadMediaAddress(written, archive).lookUpPath, "") << written;
  }
}

TEST(FileLookUps, AskTheArchiveForPathsBelowItAndTheDiskForOthers) {
  FileLookUp files(Archive({"media/clip.mov"}));
  EXPECT_TRUE(files.Exists("/cut/a.otioz/media/clip.mov"));
  EXPECT_FALSE(files.Exists("/cut/a.otioz/media/other.mov"));
  EXPECT_FALSE(files.Exists("/cut/a.otioz/media"));
  EXPECT_FALSE(files.Exists("/cut/a.otioz"));
  EXPECT_TRUE(files.Exists(__FILE__));
  EXPECT_FALSE(files.Exists("/cut/media/clip.mov"));
}

TEST(MediaAddresses, PercentSignsThatAreNoCodeStay) {
  EXPECT_EQ(DecodePercent("100%.mov"), "100%.mov");
  EXPECT_EQ(DecodePercent("50%zz%20"), "50%zz%20");
  EXPECT_EQ(DecodePercent("a%00b"), "a%00b");
  EXPECT_EQ(DecodePercent("render.%04d.exr"), "render.%04d.exr");
  EXPECT_EQ(DecodePercent("a%1Fb"), "a%1Fb");
  EXPECT_EQ(DecodePercent("a%FFb"), "a%FFb");
  EXPECT_EQ(DecodePercent("a%ED%A0%80b"), "a%ED%A0%80b");
  EXPECT_EQ(DecodePercent("%2"), "%2");
  EXPECT_EQ(DecodePercent("%c3%A9"), "\u00e9");
}

TEST(MediaAddresses, NamesSplitAtBackslashesOnlyWhereThePathHasThem) {
  EXPECT_EQ(GetFileName("/a/b.mov"), "b.mov");
  EXPECT_EQ(GetFileName(R"(C:\a\b.mov)"), "b.mov");
  EXPECT_EQ(GetFileName(R"(\\server\share\b.mov)"), "b.mov");
  EXPECT_EQ(GetFileName(R"(/a/odd\name.mov)"), R"(odd\name.mov)");
  EXPECT_EQ(GetFileName("b.mov"), "b.mov");
  EXPECT_EQ(RemoveExtension("A001.C003.mov"), "A001.C003");
  EXPECT_EQ(RemoveExtension(".hidden"), ".hidden");
  EXPECT_EQ(RemoveExtension("none"), "none");
}

}  // namespace
}  // namespace standalone
