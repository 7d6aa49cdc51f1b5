#pragma once

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Says when a file has changed on disk, also when it was replaced by another one of its name, as most
/// programs save. Changes that follow each other closely are said once, when the file has come to rest,
/// whatever else goes on in its folder.
/// [main-thread]
class STANDALONE_API FileWatch final : public QObject {
 public:
  explicit FileWatch(std::function<void(const QString& file)> changed, QObject* parent = nullptr);

  void Add(const QString& file);
  void Remove(const QString& file);

 private:
  struct Looks {
    /// What the file looked like when it was said last that it changed, and a moment ago.
    QString told;
    QString last;
  };

  /// What a file looks like from outside; nothing of one that is not there.
  static QString Describe(const QString& file);
  void StartRest();
  /// Follows a file that is another one now under the same name.
  void WatchAnew(const QString& file);
  void Look();

  const std::function<void(const QString&)> changed;
  QFileSystemWatcher watcher;
  QTimer rest;
  QHash<QString, Looks> looks;
};

}  // namespace standalone
