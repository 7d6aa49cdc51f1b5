#pragma once

#include <string_view>

#include "host/qelcore/UTF8String.h"
#include "standalone/model/FlatTable.h"

namespace standalone {

/// Gives equal texts of one document one buffer. Media names, effects and comments repeat on almost
/// every clip. One thread at a time.
class TextPool {
 public:
  /// The text, sharing its buffer with every equal one taken from this pool; so two texts of a pool are
  /// equal exactly when their views begin at the same address.
  qelcore::UTF8String Share(std::string_view text);

 private:
  FlatTable<qelcore::UTF8String> texts;
};

}  // namespace standalone
