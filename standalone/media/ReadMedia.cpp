#include "standalone/media/ReadMedia.h"

#include <cstring>

#include "standalone/media/Demuxer.h"
#include "standalone/media/InputFile.h"
#include "standalone/media/KnownKinds.h"
#include "standalone/media/ReadFailure.h"
#include "standalone/media/StreamFacts.h"
#include "standalone/media/contract/TimeLimitReason.h"

namespace standalone {
namespace {

void RequireLimit(ReadLimit& limit) {
  if (!limit.IsReached()) return;
  if (limit.IsCancelled()) throw ReadFailure{MediaOutcome::kCancelled, "reading was cancelled"};
  throw ReadFailure{MediaOutcome::kTimeLimit, GetTimeLimitReason(limit.GetTimeLimit())};
}

MediaFacts ReadStreams(InputFile& file, ReadLimit& limit) {
  Demuxer demuxer(file, limit);
  MediaFacts facts = CollectFacts(demuxer);
  if (LacksFacts(facts)) {
    demuxer.ReadOn();
    facts = CollectFacts(demuxer);
  }
  const bool hasSize = (facts.width > 0 && facts.height > 0) || demuxer.IsCutOff();
  const bool isUsable = (facts.hasPicture && hasSize) || (facts.hasSound && facts.sampleRate > 0);
  if (!isUsable) throw ReadFailure{MediaOutcome::kDamaged, "it holds neither picture nor sound"};
  return facts;
}

/// What ended the read: the limit, the platform, or the content.
ReadFailure Explain(ReadFailure failure, const MediaReadRequest& request, const InputFile& file) {
  if (file.GetError() != 0) return {MediaOutcome::kInaccessible, std::strerror(file.GetError())};
  if (failure.outcome == MediaOutcome::kDamaged && !ClaimsKnownKind(request.path)) {
    failure.outcome = MediaOutcome::kUnknownKind;
  }
  return failure;
}

}  // namespace

MediaFacts ReadMedia(const MediaReadRequest& request) {
  ReadLimit limit(request);
  RequireLimit(limit);
  InputFile file(request.path, limit);
  try {
    MediaFacts facts = ReadStreams(file, limit);
    RequireLimit(limit);
    return facts;
  } catch (const ReadFailure& failure) {
    RequireLimit(limit);
    throw Explain(failure, request, file);
  }
}

}  // namespace standalone
