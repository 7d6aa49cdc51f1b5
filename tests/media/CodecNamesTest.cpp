#include "standalone/media/CodecNames.h"

#include <gtest/gtest.h>

#include "standalone/media/LibAV.h"

namespace standalone {
namespace {

constexpr bool kIsPictureFile = true;
constexpr bool kIsMovie = false;

AVCodecParameters MakeStream(AVCodecID id, const char* fourCC = "\0\0\0\0") {
  AVCodecParameters stream{};
  stream.codec_id = id;
  stream.codec_tag = MKTAG(fourCC[0], fourCC[1], fourCC[2], fourCC[3]);
  return stream;
}

std::string NameOf(AVCodecID id, const char* fourCC = "\0\0\0\0") {
  return GetCodecName(MakeStream(id, fourCC), kIsMovie);
}

TEST(CodecNames, AreThoseThatEditorsUse) {
  EXPECT_EQ(NameOf(AV_CODEC_ID_H264), "H.264");
  EXPECT_EQ(NameOf(AV_CODEC_ID_HEVC, "hvc1"), "H.265");
  EXPECT_EQ(NameOf(AV_CODEC_ID_PRORES, "apch"), "ProRes 422 HQ");
  EXPECT_EQ(NameOf(AV_CODEC_ID_PRORES, "ap4h"), "ProRes 4444");
  EXPECT_EQ(NameOf(AV_CODEC_ID_PRORES), "ProRes");
  EXPECT_EQ(NameOf(AV_CODEC_ID_DNXHD, "AVdn"), "DNxHD");
  EXPECT_EQ(NameOf(AV_CODEC_ID_DNXHD, "AVdh"), "DNxHR");
}

TEST(CodecNames, AllPlainSamplesArePCM) {
  EXPECT_EQ(NameOf(AV_CODEC_ID_PCM_S16LE), "PCM");
  EXPECT_EQ(NameOf(AV_CODEC_ID_PCM_F32BE), "PCM");
  EXPECT_EQ(NameOf(AV_CODEC_ID_PCM_S24LE, "in24"), "PCM");
  EXPECT_EQ(NameOf(AV_CODEC_ID_PCM_ALAW), "A-law");
  EXPECT_EQ(NameOf(AV_CODEC_ID_ADPCM_MS), "ADPCM");
}

TEST(CodecNames, TheSameCodecIsAStillsOrAMovies) {
  EXPECT_EQ(GetCodecName(MakeStream(AV_CODEC_ID_MJPEG), kIsPictureFile), "JPEG");
  EXPECT_EQ(GetCodecName(MakeStream(AV_CODEC_ID_MJPEG), kIsMovie), "Motion JPEG");
}

TEST(CodecNames, OthersAreLibAVsWordsCutShort) {
  EXPECT_EQ(NameOf(AV_CODEC_ID_SVQ1), "Sorenson Vector Quantizer 1");
  EXPECT_EQ(NameOf(AV_CODEC_ID_RV40), "RealVideo 4.0");
  EXPECT_EQ(NameOf(AV_CODEC_ID_NONE), "");
}

TEST(FourCCs, HaveTheirFirstCharacterInTheHighestByte) {
  EXPECT_EQ(GetFourCC(MakeStream(AV_CODEC_ID_H264, "avc1")), 0x61766331u);
  EXPECT_EQ(GetFourCC(MakeStream(AV_CODEC_ID_QTRLE, "rle ")), 0x726C6520u);
}

TEST(FourCCs, ANumberIsNone) {
  EXPECT_EQ(GetFourCC(MakeStream(AV_CODEC_ID_PCM_S16LE, "\1\0\0\0")), 0u);
  EXPECT_EQ(GetFourCC(MakeStream(AV_CODEC_ID_H264, "avc\xE9")), 0u);
}

}  // namespace
}  // namespace standalone
