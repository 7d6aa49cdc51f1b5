#include "data/ListText.h"

namespace Vantrel {

void ListTexts::Clear() noexcept {
  missing.clear();
  present.clear();
}

void AppendName(std::string& listText, std::string_view name) {
  listText.append(name).append(kListSeparator);
}

void AppendName(std::string& listText, std::string_view prefix, std::string_view name) {
  AppendName(listText.append(prefix), name);
}

std::string MakeListText(const NameList& names) {
  std::string listText;
  for (const qelcore::UTF8String& name : names) AppendName(listText, name.View());
  return listText;
}

}  // namespace Vantrel
