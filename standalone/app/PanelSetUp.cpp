#include "standalone/app/PanelSetUp.h"

#include <iostream>
#include <utility>
#include <vector>

#include "standalone/app/ColumnMenu.h"
#include "standalone/app/CommandError.h"
#include "standalone/app/SequenceChoice.h"

namespace standalone {

namespace {

std::vector<std::string> GetTimelineNames(const DocumentDraft& document) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < document.timelineCount; ++i) names.push_back(document.sequences[i].name);
  return names;
}

/// The first sequence, with a word about it where there are others.
std::size_t ChooseFirst(const std::string& file, const std::vector<std::string>& names) {
  if (names.size() > 1) {
    const std::string count = std::to_string(names.size());
    std::cerr << MakeReportLine(file, 0,
                                "Showing \"" + names.front() + "\", the first of " + count +
                                    " sequences; --sequence NAME or --sequence #N shows another one.")
              << '\n';
  }
  return 0;
}

}  // namespace

void SetUpPanel(IndexSession& session, const IndexOptions& options) {
  ShowColumns(session, options.columns);
  if (options.rows != MZ::SequenceIndex::Options()) session.ChooseRows(options.rows);
  if (!options.search.empty()) session.Search(options.search);
}

void ShowTimeline(IndexSession& session, DocumentReader& reader, const std::string& file,
                  const IndexOptions& options) {
  DocumentDraft document = reader.Read(file);
  const auto names = GetTimelineNames(document);
  const std::size_t chosen =
      options.sequence ? ChooseSequence(names, *options.sequence) : ChooseFirst(file, names);
  if (options.timeFormat) {
    for (SequenceDraft& sequence : document.sequences) sequence.timeFormat = *options.timeFormat;
  }
  session.ShowDocument(std::move(document), chosen);
}

}  // namespace standalone
