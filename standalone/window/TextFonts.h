#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <memory>
#include <vector>

#include "host/qelcore/UTF8String.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ShapedLines.h"

namespace standalone {

/// A font, the measures of texts in it, and the lines drawn in it.
struct TextFont {
  QFont font;
  QFontMetricsF metrics;
  ShapedLines lines;
};

/// The fonts that controls name, each made once. The font of plain text is the application's; so is one
/// of an unknown name's nearest kin, as the system finds it. [main-thread]
class STANDALONE_API TextFonts {
 public:
  /// Valid until Clear.
  TextFont& Find(const qelcore::UTF8String& name);
  /// The user chose another font for the application.
  void Clear() noexcept { entries.clear(); }

 private:
  struct Entry {
    qelcore::UTF8String name;
    TextFont font;
  };
  /// One or two; entries keep their address.
  std::vector<std::unique_ptr<Entry>> entries;
};

}  // namespace standalone
