#include "standalone/model/TextPool.h"

#include <functional>

namespace standalone {

using qelcore::UTF8String;

template <typename Text>
UTF8String TextPool::ShareText(const Text& text) {
  const std::string_view bytes = text;
  if (bytes.empty()) return {};
  const std::uint64_t hash = std::hash<std::string_view>()(bytes);
  const auto isSame = [&text](const UTF8String& known) { return known == text; };
  if (const UTF8String* const known = texts.Find(hash, isSame)) return *known;
  UTF8String shared(text);
  texts.Add(hash, shared);
  return shared;
}

UTF8String TextPool::Share(std::string_view text) {
  return ShareText(text);
}

UTF8String TextPool::Share(const UTF8String& text) {
  return ShareText(text);
}

}  // namespace standalone
