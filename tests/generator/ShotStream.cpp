#include "generator/ShotStream.h"

#include <algorithm>

namespace generator {

ShotStream::ShotStream(const ShotStyle& style, const MediaLibrary& library, Chance chance,
                       std::size_t shotCount, std::int64_t longest)
    : style(style),
      files(library.Get(style.media)),
      chance(chance),
      shotCount(shotCount),
      longest(longest) {}

Shot ShotStream::Next() {
  Shot shot;
  shot.gapBefore = PickGap();
  shot.length = PickLength();
  shot.media = &PickMedia();
  shot.offset = static_cast<std::int64_t>(chance.Below(300));
  shot.isSilent = chance.OneIn(style.silentOneIn);
  shot.isRetimed = chance.OneIn(40);
  shot.number = ++count;
  return shot;
}

/// Takes of one scene are cut against each other; now and then one comes back from elsewhere.
const MediaFile& ShotStream::PickMedia() {
  constexpr std::size_t kTakesOfAScene = 8;
  const std::size_t takes = std::min(kTakesOfAScene, files.size());
  if (chance.OneIn(6)) return files[chance.Below(files.size())];
  const std::size_t scene = files.size() * (count % shotCount) / shotCount;
  return files[(scene + chance.Below(takes)) % files.size()];
}

std::int64_t ShotStream::PickLength() {
  const bool isLong = chance.OneIn(style.longOneIn);
  const std::size_t length = isLong ? style.shortest + chance.Below(style.longest)
                                    : style.shortest + chance.Below(style.spread);
  return std::min(static_cast<std::int64_t>(length), longest);
}

/// Some gaps are a frame or two that nobody meant.
std::int64_t ShotStream::PickGap() {
  if (!chance.OneIn(style.gapOneIn)) return 0;
  const std::size_t widest = chance.OneIn(4) ? 4 : style.widestGap;
  return static_cast<std::int64_t>(1 + chance.Below(widest));
}

}  // namespace generator
