#include "standalone/media/CodecNames.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "standalone/media/LibAV.h"

namespace standalone {
namespace {

struct CodecName {
  AVCodecID id;
  std::string_view name;
};

constexpr std::array kNames = {
    CodecName{AV_CODEC_ID_H264, "H.264"},
    CodecName{AV_CODEC_ID_HEVC, "H.265"},
    CodecName{AV_CODEC_ID_MPEG1VIDEO, "MPEG-1"},
    CodecName{AV_CODEC_ID_MPEG2VIDEO, "MPEG-2"},
    CodecName{AV_CODEC_ID_MPEG4, "MPEG-4"},
    CodecName{AV_CODEC_ID_PRORES, "ProRes"},
    CodecName{AV_CODEC_ID_DNXHD, "DNxHD"},
    CodecName{AV_CODEC_ID_CFHD, "CineForm"},
    CodecName{AV_CODEC_ID_DVVIDEO, "DV"},
    CodecName{AV_CODEC_ID_MJPEG, "Motion JPEG"},
    CodecName{AV_CODEC_ID_JPEG2000, "JPEG 2000"},
    CodecName{AV_CODEC_ID_QTRLE, "Animation"},
    CodecName{AV_CODEC_ID_RAWVIDEO, "Uncompressed"},
    CodecName{AV_CODEC_ID_V210, "Uncompressed 10-bit"},
    CodecName{AV_CODEC_ID_VP8, "VP8"},
    CodecName{AV_CODEC_ID_VP9, "VP9"},
    CodecName{AV_CODEC_ID_AV1, "AV1"},
    CodecName{AV_CODEC_ID_FFV1, "FFV1"},
    CodecName{AV_CODEC_ID_HAP, "Hap"},
    CodecName{AV_CODEC_ID_VC1, "VC-1"},
    CodecName{AV_CODEC_ID_WMV3, "Windows Media Video 9"},
    CodecName{AV_CODEC_ID_PNG, "PNG"},
    CodecName{AV_CODEC_ID_APNG, "APNG"},
    CodecName{AV_CODEC_ID_TIFF, "TIFF"},
    CodecName{AV_CODEC_ID_GIF, "GIF"},
    CodecName{AV_CODEC_ID_BMP, "BMP"},
    CodecName{AV_CODEC_ID_DPX, "DPX"},
    CodecName{AV_CODEC_ID_EXR, "OpenEXR"},
    CodecName{AV_CODEC_ID_PSD, "Photoshop"},
    CodecName{AV_CODEC_ID_SGI, "SGI"},
    CodecName{AV_CODEC_ID_WEBP, "WebP"},
    CodecName{AV_CODEC_ID_PCM_ALAW, "A-law"},
    CodecName{AV_CODEC_ID_PCM_MULAW, "\u00b5-law"},
    CodecName{AV_CODEC_ID_AAC, "AAC"},
    CodecName{AV_CODEC_ID_MP2, "MP2"},
    CodecName{AV_CODEC_ID_MP3, "MP3"},
    CodecName{AV_CODEC_ID_AC3, "AC-3"},
    CodecName{AV_CODEC_ID_EAC3, "E-AC-3"},
    CodecName{AV_CODEC_ID_DTS, "DTS"},
    CodecName{AV_CODEC_ID_FLAC, "FLAC"},
    CodecName{AV_CODEC_ID_ALAC, "Apple Lossless"},
    CodecName{AV_CODEC_ID_OPUS, "Opus"},
    CodecName{AV_CODEC_ID_VORBIS, "Vorbis"},
};

/// Flavours of one codec that the container's code tells apart.
struct FlavourName {
  AVCodecID id;
  std::string_view fourCC;
  std::string_view name;
};

constexpr std::array kFlavours = {
    FlavourName{AV_CODEC_ID_PRORES, "apco", "ProRes 422 Proxy"},
    FlavourName{AV_CODEC_ID_PRORES, "apcs", "ProRes 422 LT"},
    FlavourName{AV_CODEC_ID_PRORES, "apcn", "ProRes 422"},
    FlavourName{AV_CODEC_ID_PRORES, "apch", "ProRes 422 HQ"},
    FlavourName{AV_CODEC_ID_PRORES, "ap4h", "ProRes 4444"},
    FlavourName{AV_CODEC_ID_PRORES, "ap4x", "ProRes 4444 XQ"},
    FlavourName{AV_CODEC_ID_DNXHD, "AVdh", "DNxHR"},
};

constexpr std::uint32_t MakeFourCC(std::string_view text) {
  std::uint32_t code = 0;
  for (const char c : text) code = code << 8 | static_cast<unsigned char>(c);
  return code;
}

bool IsPCM(AVCodecID id) {
  return id >= AV_CODEC_ID_FIRST_AUDIO && id < AV_CODEC_ID_ADPCM_IMA_QT;
}

bool IsADPCM(AVCodecID id) {
  return id >= AV_CODEC_ID_ADPCM_IMA_QT && id < AV_CODEC_ID_AMR_NB;
}

std::string_view DescribeByLibAV(AVCodecID id) {
  const AVCodecDescriptor* const descriptor = avcodec_descriptor_get(id);
  if (descriptor == nullptr) return {};
  const std::string_view text =
      descriptor->long_name == nullptr ? descriptor->name : descriptor->long_name;
  return text.substr(0, std::min(text.find(" ("), text.find(" / ")));
}

}  // namespace

unsigned GetFourCC(const AVCodecParameters& stream) {
  // libav keeps the first character in the lowest byte.
  const std::uint32_t code = __builtin_bswap32(stream.codec_tag);
  for (int shift = 0; shift < 32; shift += 8) {
    const std::uint32_t c = code >> shift & 0xFF;
    if (c < 0x20 || c > 0x7E) return 0;
  }
  return code;
}

std::string GetCodecName(const AVCodecParameters& stream, bool isPictureFile) {
  if (isPictureFile && stream.codec_id == AV_CODEC_ID_MJPEG) return "JPEG";
  const std::uint32_t fourCC = GetFourCC(stream);
  for (const FlavourName& flavour : kFlavours) {
    if (flavour.id == stream.codec_id && MakeFourCC(flavour.fourCC) == fourCC) {
      return std::string(flavour.name);
    }
  }
  const auto* const found = std::find_if(kNames.begin(), kNames.end(), [&](const CodecName& entry) {
    return entry.id == stream.codec_id;
  });
  if (found != kNames.end()) return std::string(found->name);
  if (IsPCM(stream.codec_id)) return "PCM";
  if (IsADPCM(stream.codec_id)) return "ADPCM";
  return std::string(DescribeByLibAV(stream.codec_id));
}

}  // namespace standalone
