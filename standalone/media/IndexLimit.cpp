#include "standalone/media/IndexLimit.h"

#include <cstdint>

#include "standalone/media/LibAV.h"

namespace standalone {
namespace {

/// 24 bytes each; three days of pictures at 60 a second.
constexpr std::int64_t kMostIndexEntries = std::int64_t{1} << 24;

std::int64_t CountIndexEntries(const AVFormatContext& context) {
  std::int64_t count = 0;
  for (unsigned i = 0; i < context.nb_streams; ++i) {
    count += avformat_index_get_entries_count(context.streams[i]);
  }
  return count;
}

}  // namespace

void LimitIndex(void* sender, int, const char*, va_list) noexcept {
  // Decoders and filters send messages too; each sender begins with its class.
  if (sender == nullptr || *static_cast<const AVClass**>(sender) != avformat_get_class()) return;
  auto& context = *static_cast<AVFormatContext*>(sender);
  if (CountIndexEntries(context) > kMostIndexEntries) context.max_streams = 0;
}

}  // namespace standalone
