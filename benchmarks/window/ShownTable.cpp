#include "window/ShownTable.h"

#include <QApplication>
#include <algorithm>
#include <map>
#include <utility>

#include "generator/LongDocument.h"
#include "table/ColumnLayout.h"

namespace benchmarks {

namespace {

using Tables = std::map<std::size_t, std::unique_ptr<ShownTable>>;

Tables& GetTables() {
  static Tables tables;
  return tables;
}

Tables& GetBeginnings() {
  static Tables tables;
  return tables;
}

qelcore::Ref<BE::ISequence> MakeBeginning(std::size_t clips) {
  constexpr std::size_t kWhole = 1'000'000;
  generator::TimelineShape shape;
  shape.clips = kWhole;
  auto document = generator::MakeDocument(shape);
  auto& tracks = document.sequences.front().tracks;
  for (auto& track : tracks) {
    const std::size_t kept = std::min(clips / tracks.size(), track.items.size());
    track.items.erase(track.items.begin() + static_cast<std::ptrdiff_t>(kept), track.items.end());
  }
  return Inputs::Get().GetHost()->GetProject().AddDocument(std::move(document)).front();
}

}  // namespace

ShownTable& ShownTable::Get(std::size_t clips) {
  std::unique_ptr<ShownTable>& table = GetTables()[clips];
  if (!table) table = std::make_unique<ShownTable>(Inputs::Get().GetSequence(clips));
  return *table;
}

ShownTable& ShownTable::GetBeginning(std::size_t clips) {
  std::unique_ptr<ShownTable>& table = GetBeginnings()[clips];
  if (!table) table = std::make_unique<ShownTable>(MakeBeginning(clips));
  return *table;
}

void ShownTable::DropAll() {
  GetTables().clear();
  GetBeginnings().clear();
}

ShownTable::ShownTable(const qelcore::Ref<BE::ISequence>& sequence) {
  SteppedHost& host = Inputs::Get().GetHost();
  tree = qelcore::Ref(new Vantrel::SequenceIndexTree({}, 0, kRowHeight));
  host->GetProject().ActivateSequence(sequence);
  tree->SetSequence(sequence);
  ShareWidth();
  widget = std::make_unique<standalone::TreeWidget>(tree);
  widget->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  widget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  widget->resize(kViewport);
  widget->show();
  Settle();
  widget->resize(kViewport + widget->size() - widget->viewport()->size());
  Settle();
}

void ShownTable::ShareWidth() {
  for (auto& column : Vantrel::GetColumnLayoutStore()) column.shown = true;
  const auto headerRow = tree->GetHeaderRow();
  Vantrel::ApplyColumnLayout(headerRow);
  float width = 0;
  for (const auto& column : Vantrel::GetColumnLayoutStore())
    width += headerRow->GetColumnWidth(column.id);
  for (const auto& column : Vantrel::GetColumnLayoutStore()) {
    const float share = headerRow->GetColumnWidth(column.id) / width;
    headerRow->SetColumnWidth(column.id, share * static_cast<float>(kViewport.width()));
  }
}

void ShownTable::Settle() {
  constexpr int kRounds = 3;
  Inputs::Get().GetHost().Settle();
  for (int i = 0; i < kRounds; ++i) QApplication::processEvents();
}

}  // namespace benchmarks
