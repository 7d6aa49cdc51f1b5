#include <gtest/gtest.h>

#include <ostream>

#include "media/MediaFixtures.h"

namespace standalone {

void PrintTo(const MediaFacts& facts, std::ostream* stream) {
  *stream << facts.codec << " " << std::hex << facts.fourCC << std::dec << " " << facts.width << "x"
          << facts.height << " " << facts.pixelAspect.numerator << ":" << facts.pixelAspect.denominator
          << " " << facts.pictureRate.numerator << "/" << facts.pictureRate.denominator << " "
          << facts.sampleRate << " Hz " << facts.duration << " ticks still=" << facts.isStill
          << " picture=" << facts.hasPicture << " sound=" << facts.hasSound;
}

namespace {

constexpr std::int64_t kTicksPerSecond = 254016000000;

MediaFacts FactsOf(const std::string& name) {
  const MediaReading reading = fixtures::Read(fixtures::File(name));
  EXPECT_EQ(reading.outcome, MediaOutcome::kRead) << name << ": " << reading.reason;
  EXPECT_EQ(reading.reason, "");
  return reading.facts;
}

MediaFacts Movie(const std::string& codec, std::uint32_t fourCC, MediaRatio rate,
                 std::int64_t duration) {
  MediaFacts facts;
  facts.codec = codec;
  facts.fourCC = fourCC;
  facts.width = 64;
  facts.height = 36;
  facts.pictureRate = rate;
  facts.duration = duration;
  facts.hasPicture = true;
  return facts;
}

MediaFacts Still(const std::string& codec) {
  MediaFacts facts = Movie(codec, 0, {}, 0);
  facts.isStill = true;
  return facts;
}

MediaFacts Sound(const std::string& codec, std::uint32_t fourCC, std::int32_t rate,
                 std::int64_t duration) {
  MediaFacts facts;
  facts.codec = codec;
  facts.fourCC = fourCC;
  facts.sampleRate = rate;
  facts.duration = duration;
  facts.hasSound = true;
  return facts;
}

TEST(MediaFacts, OfAMovieWithoutSound) {
  EXPECT_EQ(FactsOf("h264_25.mov"), Movie("H.264", 0x61766331, {25, 1}, kTicksPerSecond / 5));
}

TEST(MediaFacts, OfPictureAndSoundTheCodecIsThePictures) {
  MediaFacts facts = Movie("H.264", 0x61766331, {30000, 1001}, 6 * kTicksPerSecond / 30000 * 1001);
  facts.sampleRate = 48000;
  facts.hasSound = true;
  EXPECT_EQ(FactsOf("h264_2997_sound.mp4"), facts);
}

TEST(MediaFacts, FlavoursOfACodecAreNamedByTheContainersCode) {
  EXPECT_EQ(FactsOf("prores_24.mov"),
            Movie("ProRes 422", 0x6170636E, {24, 1}, 2 * kTicksPerSecond / 24));
}

TEST(MediaFacts, APulledRateIsExact) {
  EXPECT_EQ(FactsOf("mjpeg_23976.mov"),
            Movie("Motion JPEG", 0x6A706567, {24000, 1001}, 3 * kTicksPerSecond / 24000 * 1001));
}

TEST(MediaFacts, PixelsThatAreNotSquareAreTold) {
  MediaFacts facts = Movie("H.264", 0x61766331, {25, 1}, 2 * kTicksPerSecond / 25);
  facts.width = 720;
  facts.height = 576;
  facts.pixelAspect = {64, 45};
  EXPECT_EQ(FactsOf("anamorphic.mov"), facts);
}

TEST(MediaFacts, WhatTheHeaderLacksIsReadFromTheStreams) {
  EXPECT_EQ(FactsOf("h264_50.ts"), Movie("H.264", 0, {50, 1}, kTicksPerSecond / 10));
  EXPECT_EQ(FactsOf("mpeg2_25.mxf"), Movie("MPEG-2", 0, {25, 1}, 2 * kTicksPerSecond / 25));
}

TEST(MediaFacts, AContainerWithoutCodesHasNone) {
  EXPECT_EQ(FactsOf("h264_25.mkv"), Movie("H.264", 0, {25, 1}, 3 * kTicksPerSecond / 25));
}

TEST(MediaFacts, OfSound) {
  EXPECT_EQ(FactsOf("tone_48000.wav"), Sound("PCM", 0, 48000, kTicksPerSecond / 50));
  EXPECT_EQ(FactsOf("tone_44100.flac"), Sound("FLAC", 0, 44100, kTicksPerSecond / 20));
  EXPECT_EQ(FactsOf("tone_44100.m4a"), Sound("AAC", 0x6D703461, 44100, kTicksPerSecond / 10));
  EXPECT_EQ(FactsOf("tone_44100.mp3").codec, "MP3");
  EXPECT_EQ(FactsOf("tone_44100.mp3").sampleRate, 44100);
}

TEST(MediaFacts, ACoverIsNoPicture) {
  EXPECT_EQ(FactsOf("cover.m4a"), Sound("AAC", 0x6D703461, 44100, kTicksPerSecond / 10));
  EXPECT_EQ(FactsOf("cover.flac"), Sound("FLAC", 0, 44100, kTicksPerSecond / 20));
}

TEST(MediaFacts, OfStillsThereIsNoRateAndNoDuration) {
  EXPECT_EQ(FactsOf("still.png"), Still("PNG"));
  EXPECT_EQ(FactsOf("still.jpg"), Still("JPEG"));
  EXPECT_EQ(FactsOf("still.tif"), Still("TIFF"));
  EXPECT_EQ(FactsOf("still.gif"), Still("GIF"));
}

TEST(MediaFacts, ThePictureOfASequenceOfFilesIsReadAlone) {
  EXPECT_EQ(FactsOf("shot.0007.png"), Still("PNG"));
}

TEST(MediaFacts, APictureFileThatMovesIsNoStill) {
  EXPECT_EQ(FactsOf("moving.gif"), Movie("GIF", 0, {10, 1}, 3 * kTicksPerSecond / 10));
  EXPECT_FALSE(FactsOf("moving.apng").isStill);
  EXPECT_EQ(FactsOf("moving.apng").pictureRate, (MediaRatio{10, 1}));
}

TEST(MediaFacts, TheContentTellsTheKindWhateverTheName) {
  const process::Folder folder;
  std::filesystem::copy_file(fixtures::File("still.png"), folder / "odd name.mov");
  EXPECT_EQ(fixtures::Read(folder / "odd name.mov").facts, Still("PNG"));
}

TEST(MediaFacts, APictureLongerThanItsHeaderIsReadByItsHeader) {
  const process::Folder folder;
  std::string bytes = process::ReadFile(fixtures::File("still.jpg"));
  bytes.resize(std::size_t{3} << 20);
  process::WriteFile(folder / "long.jpg", bytes);
  EXPECT_EQ(fixtures::Read(folder / "long.jpg").facts, Still("JPEG"));
}

}  // namespace
}  // namespace standalone
