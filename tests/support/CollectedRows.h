#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "data/CellText.h"
#include "data/RowCollection.h"
#include "data/TrackItemRowData.h"
#include "host/BE/MediaTypes.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/Runtime.h"
#include "support/Drafts.h"

/// Rows of sequences in the real model.
namespace rows {

/// A host with its project, for the length of a test.
class Host {
 public:
  qelcore::Ref<BE::ISequence> Add(standalone::SequenceDraft draft) {
    return project.AddDocument(drafts::MakeDocument(std::move(draft))).front();
  }
  void Replace(const qelcore::Ref<BE::ISequence>& sequence, standalone::SequenceDraft draft) {
    project.ReplaceSequence(sequence, std::move(draft));
  }

 private:
  standalone::Runtime runtime;
  standalone::ProjectModel project;
};

/// All rows of a sequence, in visiting order.
inline Vantrel::TrackItemDataList Collect(const qelcore::Ref<BE::ISequence>& sequence) {
  Vantrel::TrackItemDataList rows;
  Vantrel::CollectRows(sequence, {BE::kMediaType_Video, BE::kMediaType_Audio}, rows);
  return rows;
}

inline std::vector<std::string> Names(const Vantrel::TrackItemDataList& rows) {
  std::vector<std::string> names;
  for (const auto& row : rows) names.emplace_back(row.name.View());
  return names;
}

inline void Number(Vantrel::TrackItemDataList& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i].index = i;
}

/// The texts of one column, from the first row on.
inline std::vector<std::string> Texts(const Vantrel::TrackItemDataList& rows,
                                      Vantrel::ColumnID column) {
  std::vector<std::string> texts;
  for (const auto& row : rows) texts.emplace_back(Vantrel::CellText(row, column).View());
  return texts;
}

}  // namespace rows
