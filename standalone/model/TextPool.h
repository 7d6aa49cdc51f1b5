#pragma once

#include <string_view>

#include "host/qelcore/UTF8String.h"
#include "standalone/model/FlatTable.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Gives equal texts of one document one buffer. Media names, effects and comments repeat on almost
/// every clip. One thread at a time.
class STANDALONE_API TextPool {
 public:
  /// The text, sharing its buffer with every equal one taken from this pool; so two texts of a pool are
  /// equal exactly when their views begin at the same address.
  qelcore::UTF8String Share(std::string_view text);
  /// The same; a text that is new to the pool keeps its buffer.
  qelcore::UTF8String Share(const qelcore::UTF8String& text);

 private:
  template <typename Text>
  qelcore::UTF8String ShareText(const Text& text);

  FlatTable<qelcore::UTF8String> texts;
};

}  // namespace standalone
