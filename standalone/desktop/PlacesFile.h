#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Keeps a file up to date that says what is on the screen, for programs that drive the windows from
/// outside: a JSON array of what assistive programs are told of, each with its role (a number of
/// QAccessible), "name", "value", "area" ([x, y, width, height] on the screen) and, where they are
/// true, "checked", "selected", "focused", "active" and "disabled". Always whole: it is replaced when
/// anything in it changes. [main-thread]
class STANDALONE_API PlacesFile final : public QObject {
 public:
  /// An empty name: nothing is written.
  explicit PlacesFile(const QString& file, QObject* parent = nullptr);

  /// What the file holds when it is written now.
  static QByteArray Describe();

 private:
  void Write();

  const QString file;
  QByteArray written;
  QTimer timer;
};

}  // namespace standalone
