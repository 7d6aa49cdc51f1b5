#include "standalone/desktop/ReportView.h"

#include <QHeaderView>

#include "standalone/desktop/RoomyRows.h"
#include "standalone/desktop/TransportKeys.h"
#include "standalone/window/ToolTip.h"

namespace standalone {

ReportView::ReportView(QWidget* parent) : QTreeWidget(parent) {
  setAccessibleName("Import report");
  setFrameShape(QFrame::NoFrame);
  setColumnCount(3);
  setHeaderLabels({"What", "Where", "Line"});
  header()->setSectionResizeMode(0, QHeaderView::Stretch);
  header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
  header()->setStretchLastSection(false);
  setWordWrap(true);
  setRootIsDecorated(false);
  setItemDelegate(new RoomyRows(this));
  // Rows are as high as their sentences need at the width of the column.
  connect(header(), &QHeaderView::sectionResized, this, [this] { scheduleDelayedItemsLayout(); });
}

void ReportView::Show(const OpenDocument* document) {
  clear();
  lineCount = 0;
  if (document == nullptr) return;
  if (!document->trouble.empty()) {
    ImportNote trouble;
    trouble.line = document->troubleLine;
    trouble.sentence = document->trouble + " What is shown is what was read before.";
    AddGroup("The file as it is now can't be read", {trouble});
  }
  AddGroup("Items", document->notes);
  AddGroup("The file", document->report);
}

void ReportView::keyPressEvent(QKeyEvent* event) {
  if (IsPlaybackKey(*event)) return event->ignore();
  QTreeWidget::keyPressEvent(event);
}

void ReportView::AddGroup(const QString& title, const std::vector<ImportNote>& notes) {
  if (notes.empty()) return;
  auto* const group = new QTreeWidgetItem(this, {title});
  for (const ImportNote& note : notes) {
    const QString line = note.line == 0 ? QString() : QString::number(note.line);
    auto* const item =
        new QTreeWidgetItem(group, {ToQString(note.sentence), ToQString(note.place), line});
    item->setToolTip(0, ToQString(note.sentence));
    ++lineCount;
  }
  group->setFirstColumnSpanned(true);
  group->setExpanded(true);
}

}  // namespace standalone
