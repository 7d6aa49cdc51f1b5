#pragma once

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStringList>
#include <QTest>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "standalone/desktop/DesktopWindow.h"
#include "standalone/runtime/FeatureRegistry.h"
#include "standalone/window/TreeWidget.h"
#include "support/Process.h"

namespace standalone {

/// A timeline file of that name, with one video track of clips of a second each.
inline std::string MakeTimelineFile(const std::string& name, const std::vector<std::string>& clips) {
  const auto time = [](int frames) {
    return R"({"OTIO_SCHEMA": "RationalTime.1", "rate": 25, "value": )" + std::to_string(frames) + "}";
  };
  std::string children;
  for (const std::string& clip : clips) {
    if (!children.empty()) children += ",\n";
    children += R"({"OTIO_SCHEMA": "Clip.2", "name": ")" + clip +
                R"(", "source_range": {"OTIO_SCHEMA": "TimeRange.1", "start_time": )" + time(0) +
                R"(, "duration": )" + time(25) + "}}";
  }
  return R"({"OTIO_SCHEMA": "Timeline.1", "name": ")" + name +
         R"(", "tracks": {"OTIO_SCHEMA": "Stack.1", "children": [{"OTIO_SCHEMA": "Track.1",)"
         R"( "kind": "Video", "children": [)" +
         children + "]}]}}";
}

/// The desktop program's window over a host whose schedule the test has in hand, with settings of its
/// own.
class DesktopWindowFixture : public DesktopFixture {
 protected:
  DesktopWindowFixture() {
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QString::fromStdString(folder.GetPath().native()));
    QApplication::setOrganizationName("sequence-index-test");
    SwitchFeature("SequenceIndex", true);
    options.isProbing = false;
    MakeWindow();
  }
  ~DesktopWindowFixture() override {
    window.reset();
    SettleAll();
    SetTheme(ThemeName::kDark);
  }
  void MakeWindow() {
    window.reset();
    window = std::make_unique<DesktopWindow>(*host, options);
    Show(*window);
  }
  void SettleAll() {
    for (int i = 0; i < 3; ++i) {
      host.Settle();
      Settle();
      QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  std::filesystem::path Write(const std::string& name, const std::string& text) {
    process::WriteFile(folder / name, text);
    return folder / name;
  }
  std::filesystem::path Open(const std::filesystem::path& file) {
    window->OpenFiles({file});
    SettleAll();
    return file;
  }
  /// A file of two clips, one second each.
  std::filesystem::path OpenCut(const std::string& name = "Cut") {
    return Open(Write(name + ".otio", MakeTimelineFile(name, {"First", "Second"})));
  }

  /// The entry of a menu, found as a user does; null when there is none.
  QAction* FindAction(const QStringList& path) {
    QList<QAction*> actions = window->menuBar()->actions();
    QAction* found = nullptr;
    for (const QString& step : path) {
      found = nullptr;
      for (QAction* const action : actions) {
        if (action->text().remove('&') == step) found = action;
      }
      if (found == nullptr) return nullptr;
      if (QMenu* const menu = found->menu()) {
        emit menu->aboutToShow();
        actions = menu->actions();
      }
    }
    return found;
  }
  void Choose(const QStringList& path) {
    QAction* const action = FindAction(path);
    ASSERT_NE(action, nullptr) << path.join(" > ").toStdString();
    ASSERT_TRUE(action->isEnabled()) << path.join(" > ").toStdString();
    action->trigger();
    SettleAll();
  }

  /// The first widget of a class within another.
  template <typename Widget>
  static Widget* Find(QWidget& within) {
    for (QWidget* const child : within.findChildren<QWidget*>()) {
      if (auto* const found = dynamic_cast<Widget*>(child)) return found;
    }
    return nullptr;
  }
  TreeWidget* GetTable() { return Find<TreeWidget>(*window); }
  std::size_t CountRows() { return GetTable()->GetTree()->CountRows(); }
  std::string GetTitle() { return ToText(window->windowTitle()); }
  std::string GetPanelTitle() { return ToText(window->GetPanelDock()->windowTitle()); }
  std::string GetSentence() { return ToText(window->GetStatusLine().GetSentence()); }
  std::string GetTime() { return ToText(window->GetTransport().GetTimeField().text()); }
  /// The dialog that is open over the window.
  template <typename Dialog>
  Dialog* FindDialog() {
    for (QWidget* const top : QApplication::topLevelWidgets()) {
      auto* const dialog = dynamic_cast<Dialog*>(top);
      if (dialog != nullptr && dialog->isVisible()) return dialog;
    }
    return nullptr;
  }
  Sequence GetActive() { return host->GetProject().GetActiveSequence(); }

  process::Folder folder;
  LoadingOptions options;
  std::unique_ptr<DesktopWindow> window;
};

}  // namespace standalone
