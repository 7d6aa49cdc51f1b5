#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

#include "standalone/import/TextHash.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The names of the effects that are there to be used, as somebody listed them. [any-thread]
class STANDALONE_API EffectsList {
 public:
  void Add(std::string_view name) { names.emplace(name); }
  /// Whether an effect of exactly that name is listed.
  bool Names(std::string_view effect) const { return names.contains(effect); }
  std::size_t Count() const noexcept { return names.size(); }

 private:
  std::unordered_set<std::string, TextHash, std::equal_to<>> names;
};

/// Reads a text with one name a line, UTF-8. Blanks around a name, empty lines, a byte-order mark and
/// the carriage returns of CRLF are left out. Throws ImportError, with its line, for bytes that are no
/// UTF-8.
STANDALONE_API EffectsList ParseEffectsList(std::string_view text);

/// The same for a file. Throws ImportError, also for a file that is missing, empty or unreadable.
STANDALONE_API EffectsList ReadEffectsList(const std::filesystem::path& file);

/// Calls those effects missing that somebody added to a clip and `present` does not name, unless the
/// timeline itself says whether they are missing. What draws text is no effect in that sense, nor are
/// transitions.
STANDALONE_API void MarkMissingEffects(DocumentDraft& document, const EffectsList& present);

}  // namespace standalone
