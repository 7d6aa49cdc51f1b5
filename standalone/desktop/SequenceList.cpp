#include "standalone/desktop/SequenceList.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <utility>

#include "standalone/desktop/RoomyRows.h"
#include "standalone/desktop/TransportKeys.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

constexpr int kColumn = 0;
constexpr int kSequenceRole = Qt::UserRole;
constexpr int kFileRole = Qt::UserRole + 1;

QString ToFileText(const std::filesystem::path& file) {
  return ToQString(file.native());
}

}  // namespace

SequenceList::SequenceList(Actions actions, QWidget* parent)
    : QTreeWidget(parent), actions(std::move(actions)) {
  setAccessibleName("Sequences");
  setHeaderHidden(true);
  setFrameShape(QFrame::NoFrame);
  setExpandsOnDoubleClick(false);
  setItemDelegate(new RoomyRows(this));
  connect(this, &QTreeWidget::itemActivated, this,
          [this](const QTreeWidgetItem* item, int) { Activate(item); });
}

void SequenceList::Show(const std::vector<OpenDocument>& documents, const Sequence& active) {
  clear();
  sequences.clear();
  for (const OpenDocument& document : documents) {
    auto* const file = new QTreeWidgetItem(this, {ToQString(document.file.filename().native())});
    file->setToolTip(kColumn, ToFileText(document.file));
    file->setData(kColumn, kFileRole, ToFileText(document.file));
    for (const Sequence& sequence : document.sequences) {
      auto* const item = new QTreeWidgetItem(file, {ToQString(sequence->GetName().View())});
      item->setData(kColumn, kSequenceRole, static_cast<qulonglong>(sequences.size()));
      sequences.push_back(sequence);
      if (sequence != active) continue;
      QFont font = item->font(kColumn);
      font.setBold(true);
      item->setFont(kColumn, font);
      item->setData(kColumn, Qt::AccessibleDescriptionRole, "active");
      setCurrentItem(item);
    }
    file->setExpanded(true);
  }
}

SequenceList::Sequence SequenceList::FindSequence(const QTreeWidgetItem* item) const {
  const QVariant place = item->data(kColumn, kSequenceRole);
  return place.isValid() ? sequences.at(place.toULongLong()) : Sequence();
}

void SequenceList::Activate(const QTreeWidgetItem* item) {
  if (const Sequence sequence = FindSequence(item)) actions.activate(sequence);
}

void SequenceList::Close(const Entry& entry) {
  if (entry.sequence) {
    actions.closeSequence(entry.sequence);
  } else {
    actions.closeFile(entry.file);
  }
}

SequenceList::Entry SequenceList::FindEntry(const QTreeWidgetItem* item) const {
  const Sequence sequence = FindSequence(item);
  return {sequence, sequence ? std::string() : item->data(kColumn, kFileRole).toString().toStdString()};
}

void SequenceList::keyPressEvent(QKeyEvent* event) {
  const QTreeWidgetItem* const item = currentItem();
  if (IsPlaybackKey(*event)) return event->ignore();
  if (item == nullptr || event->key() != Qt::Key_Delete) return QTreeWidget::keyPressEvent(event);
  Close(FindEntry(item));
}

void SequenceList::contextMenuEvent(QContextMenuEvent* event) {
  const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
  const QTreeWidgetItem* const item = isByKey ? currentItem() : itemAt(event->pos());
  if (item == nullptr) return;
  // While the menu is open the list may be filled anew, and may go with its window.
  const Entry entry = FindEntry(item);
  const QPointer<QMenu> menu(new QMenu(this));
  if (entry.sequence) {
    menu->addAction("&Activate", this, [this, entry] { actions.activate(entry.sequence); });
    menu->addAction("&Close Sequence", this, [this, entry] { Close(entry); });
  } else {
    menu->addAction("&Close File", this, [this, entry] { Close(entry); });
  }
  menu->exec(isByKey ? viewport()->mapToGlobal(visualItemRect(item).center()) : event->globalPos());
  delete menu;
}

}  // namespace standalone
