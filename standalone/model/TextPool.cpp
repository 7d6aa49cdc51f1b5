#include "standalone/model/TextPool.h"

namespace standalone {

qelcore::UTF8String TextPool::Share(std::string_view text) {
  if (text.empty()) return {};
  if (const auto found = texts.find(text); found != texts.end()) return found->second;
  qelcore::UTF8String shared(text);
  texts.emplace(shared.View(), shared);
  return shared;
}

}  // namespace standalone
