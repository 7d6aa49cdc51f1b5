#pragma once

#include "data/ColumnIdentifiers.h"

namespace Vantrel {

/// True for the columns whose texts are asked of a row's clip, where gaps have nothing to say.
constexpr bool IsClipColumn(ColumnID column) noexcept {
  switch (column) {
    case kColumnComment:
    case kColumnDescription:
    case kColumnFileName:
    case kColumnFilePath:
    case kColumnOfflineStatus:
    case kColumnMulticamCamera:
    case kColumnTapeName:
    case kColumnUsageCountInSequence:
    case kColumnVideoInfo:
      return true;
    default:
      return false;
  }
}

}  // namespace Vantrel
