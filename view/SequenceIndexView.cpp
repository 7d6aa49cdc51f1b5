#include "view/SequenceIndexView.h"

#include <string>
#include <string_view>

#include "host/DLG/SequenceIndexDialogs.h"
#include "host/UIF/Application.h"
#include "host/qelcore/UTF8String.h"
#include "view/WingMenu.h"

namespace Vantrel {

namespace {

constexpr UIF::CommandID kReservedCommandA = 36001;
constexpr UIF::CommandID kReservedCommandB = 36002;
constexpr UIF::CommandID kExportCommand = 36003;

bool IsReserved(UIF::CommandID id) {
  return id == kReservedCommandA || id == kReservedCommandB;
}

constexpr std::string_view kPathSeparator = "\\";

// The dialog supplies the extension with its dot, so the three texts are joined as they stand.
qelcore::UTF8String MakeExportPath(std::string_view folder, std::string_view fileName,
                                   std::string_view extension) {
  std::string path(folder);
  if (!folder.ends_with(kPathSeparator)) path += kPathSeparator;
  path += fileName;
  path += extension;
  return qelcore::UTF8String(path);
}

}  // namespace

SequenceIndexView::SequenceIndexView(const std::shared_ptr<SequenceIndexHandler>& handler)
    : UIF::TabView(UIF::Application::Instance()), handler(handler) {}

SequenceIndexView::~SequenceIndexView() = default;

std::shared_ptr<SequenceIndexView> SequenceIndexView::GetSelf() {
  return SharedFrom(this);
}

bool SequenceIndexView::FindCommandStatus(UIF::CommandID id, bool& isEnabled) {
  if (!IsReserved(id) && id != kExportCommand) return false;
  isEnabled = id == kExportCommand;
  return true;
}

bool SequenceIndexView::ObeyCommand(const UIF::Command& command) {
  const auto self = GetSelf();
  if (IsReserved(command.GetID())) return true;
  if (command.GetID() == kExportCommand && ExportSequenceIndex()) return true;
  return UIF::CommandHandler::ObeyCommand(command);
}

void SequenceIndexView::NowOnDuty() {
  UIF::TabView::NowOnDuty();
  if (tree) tree->SetOnDuty(true);
}

void SequenceIndexView::NowOffDuty() {
  UIF::TabView::NowOffDuty();
  if (tree) tree->SetOnDuty(false);
}

std::string_view SequenceIndexView::GetWingMenuID() const {
  return kWingMenuID;
}

bool SequenceIndexView::ExportSequenceIndex() {
  // The dialog runs queued functions, one of which may close the panel.
  const auto self = GetSelf();
  if (!tree) return false;
  const auto sequence = tree->GetSequence();
  if (!sequence) return false;

  qelcore::UTF8String folder;
  qelcore::UTF8String fileName = sequence->GetName();
  qelcore::UTF8String extension;
  bool isOpenedAfterwards = true;
  if (!DLG::DoExportSequenceIndexDialog(folder, fileName, extension, isOpenedAfterwards)) return false;
  return tree->ExportSequenceIndexToCSV(MakeExportPath(folder, fileName, extension),
                                        isOpenedAfterwards);
}

}  // namespace Vantrel
