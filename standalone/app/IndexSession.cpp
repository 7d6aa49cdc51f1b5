#include "standalone/app/IndexSession.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include "host/UIF/Commands.h"
#include "host/qelui/Controls.h"
#include "standalone/app/PanelCall.h"
#include "standalone/framework/Framework.h"

namespace standalone {

namespace {

constexpr UIF::CommandID kExportCommandID = 36003;
constexpr std::uint32_t kNoModifierKeys = 0;

Runtime::Setup MakeSetup(bool isProbing) {
  Runtime::Setup setup;
  setup.poolThreads = isProbing ? std::max(1U, std::thread::hardware_concurrency()) : 0;
  return setup;
}

/// The panel's only control of a kind.
template <typename Control>
Control& FindControl(const UIF::TabView& panel) {
  for (const auto& child : panel.GetChildViews()) {
    if (auto* const control = dynamic_cast<Control*>(child.Get())) return *control;
  }
  throw std::runtime_error("The Sequence Index panel lacks a control that this command needs.");
}

}  // namespace

IndexSession::IndexSession(bool isProbing)
    : host(MakeSetup(isProbing)), module(GetModuleLibraryPath()), panelCloser(host) {
  SwitchFeature("SequenceIndex", true);
  const bool isOpen = CallPanel([this] { return host.OpenPanel() != nullptr; });
  if (!isOpen) throw std::runtime_error("The Sequence Index panel can't be opened.");
  Settle();
}

void IndexSession::Settle() {
  host.GetRuntime().Drain();
  const auto failures = host.GetRuntime().GetLog().TakeFailures();
  if (!failures.empty()) throw std::runtime_error("The index can't be built: " + failures.front());
}

void IndexSession::ChooseRows(const MZ::SequenceIndex::Options& options) {
  answers.options = options;
  auto& button = FindControl<qelui::controls::UI_PictureButton>(GetPanel());
  CallPanel([&button] { button.Click(kNoModifierKeys); });
  Settle();
}

void IndexSession::Search(const std::string& text) {
  auto& field = FindControl<qelui::controls::UI_SearchBox>(GetPanel());
  CallPanel([&] {
    field.Type(qelcore::UTF8String(text));
    field.Commit();
  });
  Settle();
}

std::vector<MenuItem> IndexSession::ChooseFromHeaderMenu(std::uint32_t command) {
  answers.menuCommand = command;
  const auto headerRow = GetTree().GetHeaderRow();
  CallPanel([&headerRow] {
    return headerRow->UI_DoMouseEvent(qelui::ui::MouseEvent(qelui::ui::PointerAction::kPress, {},
                                                            qelui::ui::MouseButton::kContextMenu, 1));
  });
  Settle();
  return answers.TakeMenuItems();
}

void IndexSession::ShowDocument(DocumentDraft document, std::size_t timeline) {
  const auto timelines = host.GetProject().AddDocument(std::move(document));
  if (timelines.empty()) throw std::runtime_error("The file holds no timeline.");
  host.GetProject().ActivateSequence(timelines.at(timeline));
  Settle();
}

qelui::controls::UI_MultiColumnTree& IndexSession::GetTree() const {
  return FindControl<qelui::controls::UI_MultiColumnTree>(GetPanel());
}

void IndexSession::Export(const std::filesystem::path& file) {
  answers.exportChoice = ExportChoice{qelcore::UTF8String(file.parent_path().native()),
                                      qelcore::UTF8String(file.stem().native()),
                                      qelcore::UTF8String(file.extension().native()), false};
  const bool isWritten =
      CallPanel([this] { return GetPanel().ObeyCommand(UIF::Command(kExportCommandID)); });
  Settle();
  if (!isWritten) throw std::runtime_error("The panel exported nothing.");
}

}  // namespace standalone
