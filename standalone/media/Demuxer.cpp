#include "standalone/media/Demuxer.h"

#include <new>

#include "standalone/media/KnownKinds.h"
#include "standalone/media/ReadFailure.h"

namespace standalone {
namespace {

/// Bytes in which a kind shows itself; sound may begin with large tags.
constexpr unsigned kRecognitionSize = 1 << 20;
/// libav's own defaults, fixed here: they find the streams of broadcast transport streams.
constexpr std::int64_t kProbeSize = 5'000'000;
constexpr std::int64_t kAnalyzedMicroseconds = std::int64_t{5} * AV_TIME_BASE;
/// More streams than any recorder writes.
constexpr int kMostStreams = 256;

int AskLimit(void* limit) {
  return static_cast<ReadLimit*>(limit)->IsReached() ? 1 : 0;
}

/// Whatever a file names, it stays closed.
int RefuseToOpen(AVFormatContext*, AVIOContext** io, const char*, int, AVDictionary**) {
  *io = nullptr;
  return AVERROR(EPERM);
}

const AVInputFormat* RecogniseKind(AVIOContext* io) {
  const AVInputFormat* format = nullptr;
  // Without a name: the content alone decides.
  const int score = av_probe_input_buffer2(io, &format, "", nullptr, 0, kRecognitionSize);
  if (score < AVPROBE_SCORE_RETRY || format == nullptr || !IsKnownKind(*format)) {
    throw ReadFailure{MediaOutcome::kDamaged, "its content is of no known kind"};
  }
  return format;
}

AVFormatContext* MakeContext(AVIOContext* io, ReadLimit& limit) {
  AVFormatContext* const context = avformat_alloc_context();
  if (context == nullptr) throw std::bad_alloc();
  context->pb = io;
  context->flags |= AVFMT_FLAG_CUSTOM_IO;
  context->io_open = &RefuseToOpen;
  context->interrupt_callback = AVIOInterruptCB{&AskLimit, &limit};
  context->probesize = kProbeSize;
  context->max_analyze_duration = kAnalyzedMicroseconds;
  context->max_streams = kMostStreams;
  return context;
}

}  // namespace

Demuxer::Demuxer(InputFile& file, ReadLimit& limit) : file(file) {
  const AVInputFormat* const format = RecogniseKind(file.GetIO());
  const std::int64_t headerSize = GetHeaderSize(*format);
  if (headerSize > 0) file.CutOffAfter(headerSize);
  AVDictionary* options = nullptr;
  av_dict_set(&options, "protocol_whitelist", "file", 0);
  context = MakeContext(file.GetIO(), limit);
  const int result = avformat_open_input(&context, "", format, &options);
  av_dict_free(&options);
  // A failure has freed the context. Lack of memory too is damage: a wrong length that asked for more
  // than a block may hold.
  if (result < 0) throw ReadFailure{MediaOutcome::kDamaged, "its content is damaged or incomplete"};
}

Demuxer::~Demuxer() {
  avformat_close_input(&context);
}

void Demuxer::ReadOn() {
  avformat_find_stream_info(context, nullptr);
}

bool Demuxer::IsPictureKind() const {
  return standalone::IsPictureKind(*context->iformat);
}

}  // namespace standalone
