#pragma once

#include <QMainWindow>
#include <QPointer>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "standalone/assembly/StandaloneHost.h"
#include "standalone/desktop/DesktopDialogs.h"
#include "standalone/desktop/FileWatch.h"
#include "standalone/desktop/LoadingBar.h"
#include "standalone/desktop/PanelDock.h"
#include "standalone/desktop/RecentFiles.h"
#include "standalone/desktop/ReportView.h"
#include "standalone/desktop/SequenceList.h"
#include "standalone/desktop/StatusLine.h"
#include "standalone/desktop/TimelineView.h"
#include "standalone/desktop/TransportBar.h"
#include "standalone/documents/DocumentSession.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/timeline/MessageListener.h"
#include "standalone/toolkit/ThemeColors.h"

class QAction;
class QMenu;

namespace standalone {

/// The program's window: the timeline of the active sequence with its transport, and around it the
/// panels of modules, the list of open sequences, and what is to be said of the opened files.
/// [main-thread]
class STANDALONE_API DesktopWindow final : public QMainWindow, private DocumentObserver {
 public:
  /// `host` must outlive the window; its module is loaded.
  DesktopWindow(StandaloneHost& host, LoadingOptions options);
  /// Cancels what is being read, stops playback and closes the panel.
  ~DesktopWindow() override;

  /// Opens timeline files, one after the other.
  void OpenFiles(const std::vector<std::filesystem::path>& files);
  /// Opens the Sequence Index panel, or brings it to the front; nothing while its feature is off.
  void OpenIndexPanel();

  TimelineView& GetTimeline() const noexcept { return *timeline; }
  TransportBar& GetTransport() const noexcept { return *transport; }
  SequenceList& GetSequenceList() const noexcept { return *sequenceList; }
  ReportView& GetReport() const noexcept { return *report; }
  DocumentSession& GetSession() noexcept { return *session; }
  LoadingBar& GetLoadingBar() const noexcept { return *loadingBar; }
  StatusLine& GetStatusLine() const noexcept { return *statusLine; }
  DesktopDialogs& GetDialogs() noexcept { return dialogs; }
  /// The panel's dock; null while it is closed.
  PanelDock* GetPanelDock() const noexcept { return panelDock; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  using Sequence = qelcore::Ref<BE::ISequence>;

  // Building it: DesktopWindow.cpp and DesktopMenus.cpp.
  void MakeCentre();
  void MakeDocks();
  void MakeStatusBar();
  void ObserveFailures();
  void MakeMenus();
  void MakeFileMenu();
  void MakeEditMenu();
  void MakeViewMenu();
  void MakeThemeMenu(QMenu& menu);
  void MakeTimeMenu(QMenu& menu);
  void MakePlaybackMenu();
  void MakeWindowMenu();
  void MakeHelpMenu();
  QAction* AddAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                     std::function<void()> action);
  void ListenToMessages();
  void RestorePlaces();
  /// Gives the panel the larger part of the window.
  void PlacePanel();

  // Files: DesktopFiles.cpp.
  void OpenFile(const std::filesystem::path& file);
  void AskForFiles();
  void FillRecentFiles(QMenu& menu);
  void ReloadActiveFile();
  void CloseActiveFile();
  void CloseActiveSequence();
  void ShowDocuments();
  void LoadingProgressed(const std::filesystem::path& file, LoadingStep step, double fraction) override;
  void LoadingEnded(const std::filesystem::path& file) override;
  void DocumentChanged(const OpenDocument& document) override;
  void DocumentFailed(const std::filesystem::path& file, std::size_t line,
                      const std::string& sentence) override;
  void MediaFilesCantBeRead(const std::string& sentence) override;
  void DocumentClosed(const std::filesystem::path& file) override;

  // The panel: DesktopPanel.cpp.
  void ClosePanel();
  void ObeyPanelCommand(UIF::CommandID id);
  void FillWindowMenu(QMenu& menu, QMenu& features);
  void FillFeatureMenu(QMenu& menu);
  void SwitchFeatureOn(const std::string& name, bool isOn);
  void FocusSearchField();
  void EditFilters();
  void ScaleRows(double step);
  template <typename Control>
  Control* FindControl() const;

  void ShowActiveSequence();
  void ChooseTheme(ThemeName name);
  bool DoTransportKey(const QKeyEvent& event);
  void ShowShortcuts();
  void ShowAbout();
  void ShowText(const QString& title, const QString& text);

  StandaloneHost& host;
  DesktopDialogs dialogs;
  RecentFiles recentFiles;
  FileWatch fileWatch;
  std::shared_ptr<MessageListener> listener;
  TimelineView* timeline = nullptr;
  TransportBar* transport = nullptr;
  SequenceList* sequenceList = nullptr;
  ReportView* report = nullptr;
  StatusLine* statusLine = nullptr;
  LoadingBar* loadingBar = nullptr;
  QDockWidget* sequenceDock = nullptr;
  QDockWidget* reportDock = nullptr;
  QPointer<PanelDock> panelDock;
  /// Where the panel was when it was closed, and how large.
  Qt::DockWidgetArea panelArea = Qt::TopDockWidgetArea;
  std::optional<QSize> panelSize;
  /// Whether the docks have places that the user left them in, or had the chance to.
  bool hasPlaces = false;
  const std::optional<TimeFormat> firstTimeFormat;
  std::optional<DocumentSession> session;
};

}  // namespace standalone
