#include "table/ColumnCatalogue.h"

#include <algorithm>
#include <array>

#include "data/LocalizedText.h"

namespace Vantrel {

namespace {

struct ColumnDefinition {
  ColumnID id;
  const char* nameKey;
  std::uint64_t width;
  bool isShown;
};

// In default display order. Keys are names in translation files: what looks odd in them ("Handler" in
// the singular, names without "IndexColumn") is how they stand there.
constexpr std::array<ColumnDefinition, 26> kColumns{{
    {kColumnIndex, "$$$/Handlers/SequenceIndex/IndexColumnIndex=##{comment}QELMX-4248997", 30, true},
    {kColumnLabelColor,
     "$$$/Handlers/SequenceIndex/IndexColumnLabelColor=Label Color#{comment}QELMX-4248997", 10, true},
    {kColumnClipName, "$$$/Handlers/SequenceIndex/IndexColumnName=Clip Name#{comment}QELMX-4248997",
     200, true},
    {kColumnTrack, "$$$/Handlers/SequenceIndex/IndexColumnTrackIndex=Track#{comment}QELMX-4248997", 50,
     true},
    {kColumnStartTime,
     "$$$/Handlers/SequenceIndex/IndexColumnStartTime=Start Time#{comment}QELMX-4248997", 100, true},
    {kColumnDuration, "$$$/Handlers/SequenceIndex/IndexColumnDuration=Duration#{comment}QELMX-4248997",
     100, true},
    {kColumnEffects, "$$$/Handlers/SequenceIndex/PresentEffects=Effects#{comment}QELMX-4248997", 200,
     true},
    {kColumnTransitions,
     "$$$/Handlers/SequenceIndex/PresentTransitions=Transitions#{comment}QELMX-4248997", 200, true},
    {kColumnOfflineStatus,
     "$$$/Handlers/SequenceIndex/IndexColumnOfflineStatus=Offline Status#{comment}QELMX-4248997", 100,
     false},
    {kColumnFontsUsed,
     "$$$/Handlers/SequenceIndex/IndexColumnFontsUsed=Fonts Used#{comment}QELMX-4248997", 100, false},
    {kColumnFontsMissing,
     "$$$/Handlers/SequenceIndex/IndexColumnFontsMissing=Fonts Missing#{comment}QELMX-4248997", 100,
     false},
    {kColumnEndTime, "$$$/Handlers/SequenceIndex/IndexColumnEndTime=End Time#{comment}QELMX-4248997",
     100, false},
    {kColumnFileName, "$$$/Handlers/SequenceIndex/IndexColumnFileName=File Name#{comment}QELMX-4248997",
     130, false},
    {kColumnFilePath, "$$$/Handlers/SequenceIndex/IndexColumnFilePath=File Path#{comment}QELMX-4248997",
     146, false},
    {kColumnSourceClipName,
     "$$$/Handlers/SequenceIndex/IndexSourceMasterClipName=Source Clip Name#{comment}QELMX-4248997",
     200, false},
    {kColumnProxyMediaPath,
     "$$$/Handlers/SequenceIndex/IndexProxyPath=Proxy Media Path#{comment}QELMX-4248997", 136, false},
    {kColumnProxyStatus,
     "$$$/Handlers/SequenceIndex/IndexProxyStatus=Proxy Status#{comment}QELMX-4248997", 110, false},
    {kColumnEffectsMissing,
     "$$$/Handlers/SequenceIndex/EffectsMissing=Effects Missing#{comment}QELMX-4248997", 117, false},
    {kColumnMulticamCamera,
     "$$$/Handlers/SequenceIndex/IndexColumnMulticamCamera=Multicam Camera#{comment}QELMX-4248997", 125,
     false},
    {kColumnFrameRate,
     "$$$/Handler/SequenceIndex/IndexColumnFrameRate=Frame Rate#{comment}QELMX-4248997", 100, false},
    {kColumnCodec, "$$$/Handlers/SequenceIndex/IndexColumnCodec=Codec#{comment}QELMX-4248997", 66,
     false},
    {kColumnUsageCountInSequence,
     "$$$/Handlers/SequenceIndex/IndexColumnUsageCount=Usage Count In Sequence#{comment}QELMX-4248997",
     59, false},
    {kColumnTapeName, "$$$/Handlers/SequenceIndex/IndexColumnTapeName=Tape Name#{comment}QELMX-4248997",
     91, false},
    {kColumnDescription,
     "$$$/Handlers/SequenceIndex/IndexColumnDescription=Description#{comment}QELMX-4248997", 179,
     false},
    {kColumnComment, "$$$/Handlers/SequenceIndex/IndexColumnComment=Comment#{comment}QELMX-4248997",
     180, false},
    {kColumnVideoInfo,
     "$$$/Handler/SequenceIndex/IndexColumnVideoInfo=Video Info#{comment}QELMX-4248997", 120, false},
}};

ColumnLayoutEntry MakeEntry(const ColumnDefinition& column, std::int32_t position) {
  ColumnLayoutEntry entry;
  entry.id = column.id;
  entry.name = Localize(column.nameKey);
  entry.defaultWidth = entry.width = column.width;
  entry.defaultShown = entry.shown = column.isShown;
  entry.defaultPosition = entry.position = position;
  return entry;
}

ColumnLayoutList MakeCatalogue() {
  ColumnLayoutList catalogue;
  catalogue.reserve(kColumns.size());
  std::int32_t position = 0;
  for (const ColumnDefinition& column : kColumns) catalogue.push_back(MakeEntry(column, ++position));
  SortByName(catalogue);
  return catalogue;
}

const ColumnLayoutList& ReadColumnCatalogue() {
  static const ColumnLayoutList catalogue = MakeCatalogue();
  return catalogue;
}

}  // namespace

ColumnLayoutList GetColumnCatalogue() {
  return ReadColumnCatalogue();
}

qelcore::UTF8String GetColumnName(ColumnID id) {
  const ColumnLayoutList& catalogue = ReadColumnCatalogue();
  const auto found = std::ranges::find(catalogue, id, &ColumnLayoutEntry::id);
  return found == catalogue.end() ? qelcore::UTF8String() : found->name;
}

void SortByName(ColumnLayoutList& columns) {
  std::ranges::sort(columns, std::ranges::less(), &ColumnLayoutEntry::name);
}

}  // namespace Vantrel
