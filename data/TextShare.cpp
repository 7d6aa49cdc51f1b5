#include "data/TextShare.h"

#include "host/qelcore/Strings.h"

namespace Vantrel {

qelcore::UTF8String TextShare::Share(std::string_view text) {
  if (text.empty()) return {};
  const auto found = texts.find(text);
  return found != texts.end() ? *found : *texts.emplace(text).first;
}

std::string_view TextShare::ToUTF8(const std::u16string& name) {
  const auto found = names.find(name);
  if (found != names.end()) return found->second.View();
  return names.emplace(name, qelcore::string::UTF16to8(name)).first->second.View();
}

}  // namespace Vantrel
