#pragma once

#include <cstdint>

/// The columns of the Sequence Index. A column's identifier is also its id in the header row and its
/// command id in the header's menu. The order is that of the identifiers, not of the display.
namespace Vantrel {

using ColumnID = std::uint32_t;

inline constexpr ColumnID kColumnIndex = 100000;  ///< "#"
inline constexpr ColumnID kColumnCodec = 100001;
inline constexpr ColumnID kColumnComment = 100002;
inline constexpr ColumnID kColumnDescription = 100003;
inline constexpr ColumnID kColumnDuration = 100004;
inline constexpr ColumnID kColumnEndTime = 100005;
inline constexpr ColumnID kColumnFileName = 100006;
inline constexpr ColumnID kColumnFilePath = 100007;
inline constexpr ColumnID kColumnFontsUsed = 100008;
inline constexpr ColumnID kColumnFontsMissing = 100009;
inline constexpr ColumnID kColumnFrameRate = 100010;
inline constexpr ColumnID kColumnLabelColor = 100011;
inline constexpr ColumnID kColumnOfflineStatus = 100012;
inline constexpr ColumnID kColumnEffectsMissing = 100013;
inline constexpr ColumnID kColumnMulticamCamera = 100014;
inline constexpr ColumnID kColumnClipName = 100015;
inline constexpr ColumnID kColumnEffects = 100016;
inline constexpr ColumnID kColumnTransitions = 100017;
inline constexpr ColumnID kColumnProxyMediaPath = 100018;
inline constexpr ColumnID kColumnProxyStatus = 100019;
inline constexpr ColumnID kColumnSourceClipName = 100020;
inline constexpr ColumnID kColumnStartTime = 100021;
inline constexpr ColumnID kColumnTapeName = 100022;
inline constexpr ColumnID kColumnTrack = 100023;
inline constexpr ColumnID kColumnUsageCountInSequence = 100024;
inline constexpr ColumnID kColumnVideoInfo = 100025;

/// The lowest and the highest identifier; every number between them is a column.
inline constexpr ColumnID kFirstColumn = kColumnIndex;
inline constexpr ColumnID kLastColumn = kColumnVideoInfo;

}  // namespace Vantrel
