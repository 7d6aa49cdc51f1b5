#include "standalone/desktop/FileWatch.h"

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <utility>

namespace standalone {

namespace {
/// A file that looked the same at two times this far apart is at rest: long enough for a program that
/// writes in several steps.
constexpr int kRestMilliseconds = 150;
}  // namespace

FileWatch::FileWatch(std::function<void(const QString&)> changed, QObject* parent)
    : QObject(parent), changed(std::move(changed)) {
  rest.setSingleShot(true);
  rest.setInterval(kRestMilliseconds);
  connect(&rest, &QTimer::timeout, this, [this] { Look(); });
  connect(&watcher, &QFileSystemWatcher::fileChanged, this, [this] { StartRest(); });
  connect(&watcher, &QFileSystemWatcher::directoryChanged, this, [this] { StartRest(); });
}

void FileWatch::Add(const QString& file) {
  const QString now = Describe(file);
  looks.insert(file, {now, now});
  watcher.addPath(file);
  // A file that is replaced is another file: its folder tells of the new one.
  watcher.addPath(QFileInfo(file).absolutePath());
}

void FileWatch::Remove(const QString& file) {
  looks.remove(file);
  watcher.removePath(file);
  const QString folder = QFileInfo(file).absolutePath();
  for (auto other = looks.keyBegin(); other != looks.keyEnd(); ++other) {
    if (QFileInfo(*other).absolutePath() == folder) return;
  }
  watcher.removePath(folder);
}

QString FileWatch::Describe(const QString& file) {
  struct stat status {};
  if (stat(QFile::encodeName(file).constData(), &status) != 0) return {};
  return QString("%1 %2 %3.%4")
      .arg(status.st_ino)
      .arg(status.st_size)
      .arg(status.st_mtim.tv_sec)
      .arg(status.st_mtim.tv_nsec);
}

void FileWatch::StartRest() {
  if (!rest.isActive()) rest.start();
}

void FileWatch::WatchAnew(const QString& file) {
  watcher.removePath(file);
  watcher.addPath(file);
}

void FileWatch::Look() {
  QStringList changedFiles;
  for (auto look = looks.begin(); look != looks.end(); ++look) {
    const QString now = Describe(look.key());
    // While a program replaces the file there may be none for a moment.
    if (now.isEmpty()) continue;
    const bool isResting = now == look->last;
    look->last = now;
    if (!isResting || !watcher.files().contains(look.key())) {
      WatchAnew(look.key());
      // What happened before it was watched is seen then.
      StartRest();
    }
    if (isResting && now != look->told) {
      look->told = now;
      changedFiles.append(look.key());
    }
  }
  for (const QString& file : changedFiles) {
    if (looks.contains(file)) changed(file);
  }
}

}  // namespace standalone
