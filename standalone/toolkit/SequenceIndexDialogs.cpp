#include "host/DLG/SequenceIndexDialogs.h"

#include <utility>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/DialogProvider.h"
#include "standalone/toolkit/ModalQuestion.h"

namespace DLG {

using standalone::AskUser;
using standalone::DialogProvider;

std::optional<MZ::SequenceIndex::Options> DoSequenceIndexOptionsDialog(
    const MZ::SequenceIndex::Options& current) {
  standalone::AssertMainThread("DoSequenceIndexOptionsDialog");
  return AskUser(std::optional<MZ::SequenceIndex::Options>(),
                 [&](DialogProvider& provider) { return provider.EditOptions(current); });
}

bool DoExportSequenceIndexDialog(qelcore::UTF8String& folder, qelcore::UTF8String& fileName,
                                 qelcore::UTF8String& extension, bool& isOpenedAfterwards) {
  standalone::AssertMainThread("DoExportSequenceIndexDialog");
  standalone::ExportChoice choice{folder, fileName, extension, isOpenedAfterwards};
  if (!AskUser(false, [&](DialogProvider& provider) { return provider.ChooseExport(choice); })) {
    return false;
  }
  folder = std::move(choice.folder);
  fileName = std::move(choice.fileName);
  extension = std::move(choice.extension);
  isOpenedAfterwards = choice.isOpenedAfterwards;
  return true;
}

}  // namespace DLG
