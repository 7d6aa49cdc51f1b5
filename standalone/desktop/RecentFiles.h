#pragma once

#include <QString>
#include <QStringList>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The files that were opened last, newest first, kept from one run to the next in the settings of the
/// application that Qt was told of. [main-thread]
class STANDALONE_API RecentFiles {
 public:
  static constexpr qsizetype kMost = 10;

  /// Those that still exist.
  QStringList GetFiles() const;
  void Add(const QString& file);
  void Clear();
};

}  // namespace standalone
