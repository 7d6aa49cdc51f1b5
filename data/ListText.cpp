#include "data/ListText.h"

namespace Vantrel {

void AppendNames(std::string& listText, const NameList& names) {
  for (const qelcore::UTF8String& name : names) {
    listText.append(name.View()).append(kListSeparator);
  }
}

qelcore::UTF8String MakeListText(const NameList& names) {
  std::string listText;
  AppendNames(listText, names);
  return qelcore::UTF8String(listText);
}

}  // namespace Vantrel
