#include "standalone/desktop/ReportView.h"

#include <QHeaderView>

#include "standalone/desktop/RoomyRows.h"
#include "standalone/desktop/TransportKeys.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

/// The sentence, and below it the place.
QString DescribeNote(const ImportNote& note) {
  QStringList place;
  if (!note.place.empty()) place.append(ToQString(note.place));
  if (note.line != 0) place.append(QString("line %1").arg(note.line));
  const QString sentence = ToQString(note.sentence);
  return place.isEmpty() ? sentence : sentence + '\n' + place.join(", ");
}

}  // namespace

ReportView::ReportView(QWidget* parent) : QTreeWidget(parent) {
  setAccessibleName("Import report");
  setFrameShape(QFrame::NoFrame);
  setHeaderHidden(true);
  header()->setSectionResizeMode(QHeaderView::Stretch);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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
    auto* const item = new QTreeWidgetItem(group, {DescribeNote(note)});
    item->setToolTip(0, item->text(0));
    ++lineCount;
  }
  group->setFirstColumnSpanned(true);
  group->setExpanded(true);
}

}  // namespace standalone
