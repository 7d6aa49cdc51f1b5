#include "standalone/desktop/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace standalone {

namespace {
constexpr const char* kKey = "recentFiles";
}  // namespace

QStringList RecentFiles::GetFiles() const {
  QStringList files = QSettings().value(kKey).toStringList();
  files.removeIf([](const QString& file) { return !QFileInfo::exists(file); });
  return files;
}

void RecentFiles::Add(const QString& file) {
  QSettings settings;
  QStringList files = settings.value(kKey).toStringList();
  files.removeAll(file);
  files.prepend(file);
  settings.setValue(kKey, files.mid(0, kMost));
}

void RecentFiles::Clear() {
  QSettings().remove(kKey);
}

}  // namespace standalone
