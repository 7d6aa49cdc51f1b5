#include "standalone/model/TextPool.h"

#include <functional>

namespace standalone {

qelcore::UTF8String TextPool::Share(std::string_view text) {
  if (text.empty()) return {};
  const std::uint64_t hash = std::hash<std::string_view>()(text);
  const auto isSame = [text](const qelcore::UTF8String& known) { return known.View() == text; };
  if (const qelcore::UTF8String* const known = texts.Find(hash, isSame)) return *known;
  qelcore::UTF8String shared(text);
  texts.Add(hash, shared);
  return shared;
}

}  // namespace standalone
