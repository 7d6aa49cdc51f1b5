#include "standalone/media/StreamFacts.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "host/qelmediatypes/TickTime.h"
#include "standalone/media/CodecNames.h"
#include "standalone/media/PictureRate.h"

namespace standalone {
namespace {

MediaRatio ToRatio(AVRational value) {
  if (value.num <= 0 || value.den <= 0) return {};
  const int divisor = std::gcd(value.num, value.den);
  return {value.num / divisor, value.den / divisor};
}

const AVStream* FindStream(const AVFormatContext& context, AVMediaType type) {
  for (unsigned i = 0; i < context.nb_streams; ++i) {
    const AVStream* const stream = context.streams[i];
    const bool isCover = (stream->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
    if (stream->codecpar->codec_type == type && !isCover) return stream;
  }
  return nullptr;
}

__extension__ typedef __int128 Wide;

/// 0: not known, or absurd.
std::int64_t ToTicks(std::int64_t value, AVRational timeBase) {
  if (value == AV_NOPTS_VALUE || value <= 0 || timeBase.num <= 0 || timeBase.den <= 0) return 0;
  // Below 2^126: a time base's numerator has 31 bits, and what has more than 57 is no duration.
  constexpr std::int64_t kLongest = std::int64_t{1} << 57;
  if (value > kLongest) return 0;
  const Wide ticks =
      Wide{value} * timeBase.num * qelmediatypes::TickTime::kTicksPerSecond / timeBase.den;
  return ticks > std::numeric_limits<std::int64_t>::max() ? 0 : static_cast<std::int64_t>(ticks);
}

/// The file's duration, else that of the stream.
std::int64_t ReadDuration(const AVFormatContext& context, const AVStream& stream) {
  const std::int64_t ofStream = ToTicks(stream.duration, stream.time_base);
  return ofStream != 0 ? ofStream : ToTicks(context.duration, AVRational{1, AV_TIME_BASE});
}

/// What containers state is exact; the rate that libav guesses from the first time stamps may count
/// fields.
MediaRatio ReadPictureRate(const AVStream& stream) {
  const MediaRatio average = SettlePictureRate(ToRatio(stream.avg_frame_rate));
  return average.IsKnown() ? average : SettlePictureRate(ToRatio(stream.r_frame_rate));
}

void ReadPicture(const AVStream& stream, MediaFacts& facts) {
  const AVCodecParameters& parameters = *stream.codecpar;
  facts.hasPicture = true;
  facts.width = std::max(parameters.width, 0);
  facts.height = std::max(parameters.height, 0);
  MediaRatio aspect = ToRatio(stream.sample_aspect_ratio);
  if (!aspect.IsKnown()) aspect = ToRatio(parameters.sample_aspect_ratio);
  if (aspect.IsKnown()) facts.pixelAspect = aspect;
  if (!facts.isStill) facts.pictureRate = ReadPictureRate(stream);
}

/// An APNG that does not move is a PNG. libav counts the pictures of a GIF.
bool IsStill(const Demuxer& demuxer, const AVStream& picture) {
  if (picture.codecpar->codec_id == AV_CODEC_ID_APNG) return false;
  return demuxer.IsPictureKind() && picture.nb_frames <= 1;
}

}  // namespace

MediaFacts CollectFacts(const Demuxer& demuxer) {
  const AVFormatContext& context = demuxer.Get();
  const AVStream* const picture = FindStream(context, AVMEDIA_TYPE_VIDEO);
  const AVStream* const sound = FindStream(context, AVMEDIA_TYPE_AUDIO);
  const AVStream* const main = picture != nullptr ? picture : sound;
  MediaFacts facts;
  if (main == nullptr) return facts;
  facts.isStill = picture != nullptr && IsStill(demuxer, *picture);
  facts.codec = GetCodecName(*main->codecpar, demuxer.IsPictureKind());
  facts.fourCC = GetFourCC(*main->codecpar);
  if (!facts.isStill) facts.duration = ReadDuration(context, *main);
  if (picture != nullptr) ReadPicture(*picture, facts);
  facts.hasSound = sound != nullptr;
  if (sound != nullptr) facts.sampleRate = std::max(sound->codecpar->sample_rate, 0);
  return facts;
}

bool LacksFacts(const MediaFacts& facts) {
  if (!facts.hasPicture && !facts.hasSound) return true;
  if (facts.codec.empty()) return true;
  if (facts.hasSound && facts.sampleRate <= 0) return true;
  if (!facts.hasPicture) return false;
  if (facts.width <= 0 || facts.height <= 0) return true;
  return !facts.isStill && !facts.pictureRate.IsKnown();
}

}  // namespace standalone
