#include <exception>

#include "standalone/media/IndexLimit.h"
#include "standalone/media/LibAV.h"
#include "standalone/media/ReadFailure.h"
#include "standalone/media/ReadMedia.h"

namespace standalone {
namespace {

/// Larger tables than the longest recordings have; a damaged length must not ask for all memory.
constexpr std::size_t kLargestBlock = std::size_t{256} << 20;

/// This library is libav's only user in the process.
void SetUpLibAV() {
  av_log_set_level(AV_LOG_QUIET);
  av_log_set_callback(&LimitIndex);
  av_max_alloc(kLargestBlock);
}

}  // namespace
}  // namespace standalone

extern "C" __attribute__((visibility("default"))) void ReadSequenceIndexMedia(
    const standalone::MediaReadRequest& request, standalone::MediaReading& reading) noexcept {
  using namespace standalone;
  static const bool isSetUp = (SetUpLibAV(), true);
  (void)isSetUp;
  reading = MediaReading();
  try {
    reading.facts = ReadMedia(request);
    reading.outcome = MediaOutcome::kRead;
  } catch (ReadFailure& failure) {
    reading.outcome = failure.outcome;
    reading.reason = std::move(failure.reason);
  } catch (const std::exception&) {
    reading.outcome = MediaOutcome::kInaccessible;
    reading.reason = "there is not enough memory";
  }
}
