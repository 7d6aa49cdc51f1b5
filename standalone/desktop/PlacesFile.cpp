#include "standalone/desktop/PlacesFile.h"

#include <QAccessible>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>
#include <QSaveFile>
#include <QWidget>
#include <algorithm>

namespace standalone {

namespace {

constexpr int kMilliseconds = 40;
/// A table has as many cells as it has; who drives a window needs the first.
constexpr int kMostChildren = 400;

QJsonObject DescribeOne(const QAccessibleInterface& face) {
  const QRect area = face.rect();
  QJsonObject one{{"role", face.role()},
                  {"name", face.text(QAccessible::Name)},
                  {"value", face.text(QAccessible::Value)},
                  {"area", QJsonArray{area.x(), area.y(), area.width(), area.height()}}};
  const QAccessible::State state = face.state();
  if (state.checked) one.insert("checked", true);
  if (state.selected) one.insert("selected", true);
  if (state.focused) one.insert("focused", true);
  if (state.active) one.insert("active", true);
  if (state.disabled) one.insert("disabled", true);
  return one;
}

void DescribeAll(const QAccessibleInterface* face, QJsonArray& places) {
  if (face == nullptr || !face->isValid() || face->state().invisible) return;
  places.append(DescribeOne(*face));
  const int count = std::min(face->childCount(), kMostChildren);
  for (int i = 0; i < count; ++i) DescribeAll(face->child(i), places);
}

}  // namespace

PlacesFile::PlacesFile(const QString& file, QObject* parent) : QObject(parent), file(file) {
  if (file.isEmpty()) return;
  connect(&timer, &QTimer::timeout, this, [this] { Write(); });
  timer.start(kMilliseconds);
}

QByteArray PlacesFile::Describe() {
  QJsonArray places;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) DescribeAll(QAccessible::queryAccessibleInterface(window), places);
  }
  return QJsonDocument(places).toJson(QJsonDocument::Indented);
}

void PlacesFile::Write() {
  const QByteArray now = Describe();
  if (now == written) return;
  QSaveFile saved(file);
  if (saved.open(QIODevice::WriteOnly) && saved.write(now) == now.size() && saved.commit()) {
    written = now;
  }
}

}  // namespace standalone
