#include "view/StatusText.h"

#include <string>

#include "data/LocalizedText.h"
#include "host/qelcore/Localizer.h"

namespace Vantrel {

namespace {

using qelcore::config::ReplaceArguments;

qelcore::UTF8String MakeRowCountText(std::size_t rowCount) {
  static const auto text =
      Localize("$$$/Tessalo/Handlers/SequenceIndex/Items=@0 Items#{comment}QELMX-4248997");
  return ReplaceArguments(text, {std::to_string(rowCount)});
}

qelcore::UTF8String MakeSelectionText(std::size_t selectedCount, std::size_t rowCount) {
  static const auto text = Localize(
      "$$$/Tessalo/Handlers/SequenceIndex/ItemsSelected=@0 of @1 Item(s) Selected"
      "#{comment}QELMX-4248997");
  return ReplaceArguments(text, {std::to_string(selectedCount), std::to_string(rowCount)});
}

}  // namespace

qelcore::UTF8String MakeStatusText(std::size_t selectedCount, std::size_t rowCount) {
  return selectedCount == 0 ? MakeRowCountText(rowCount) : MakeSelectionText(selectedCount, rowCount);
}

}  // namespace Vantrel
