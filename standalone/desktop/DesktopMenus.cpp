#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include "standalone/desktop/DesktopWindow.h"
#include "standalone/model/TimeFormat.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

/// A tenth of the slider's way.
constexpr double kRowScaleStep = 0.1;

constexpr const char* kShortcuts =
    "<table cellspacing='6'>"
    "<tr><td><b>Space</b></td><td>Play or stop</td></tr>"
    "<tr><td><b>J, K, L</b></td><td>Play backwards, stop, play; again: faster</td></tr>"
    "<tr><td><b>←, →</b></td><td>One frame back or on; with Shift ten</td></tr>"
    "<tr><td><b>↑, ↓</b></td><td>To the cut before or after</td></tr>"
    "<tr><td><b>Home, End</b></td><td>To the start or the end</td></tr>"
    "<tr><td><b>Ctrl+G</b></td><td>Type a time</td></tr>"
    "<tr><td><b>+, −, \\</b></td><td>In the timeline: zoom in, out, to all</td></tr>"
    "<tr><td><b>Ctrl+F</b></td><td>Search the index</td></tr>"
    "<tr><td><b>Ctrl+Shift+F</b></td><td>Choose filters</td></tr>"
    "<tr><td><b>Ctrl++, Ctrl+−</b></td><td>Higher or lower rows</td></tr>"
    "<tr><td><b>Ctrl+E</b></td><td>Export the index</td></tr>"
    "<tr><td><b>Tab</b></td><td>To the next control</td></tr>"
    "</table>"
    "<p>In the table: arrows, Page Up and Down, Home and End move; with Shift they select a range, with"
    " Ctrl they move without selecting. Space selects, Ctrl+Space toggles, Ctrl+A selects all, Ctrl+C"
    " copies the selected rows as text. ← and → scroll columns that do not fit. The Menu key chooses"
    " columns.</p>";

}  // namespace

QAction* DesktopWindow::AddAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                                  std::function<void()> action) {
  QAction* const added = menu.addAction(text);
  added->setShortcut(keys);
  connect(added, &QAction::triggered, this, std::move(action));
  return added;
}

void DesktopWindow::MakeMenus() {
  MakeFileMenu();
  MakeEditMenu();
  MakeViewMenu();
  MakePlaybackMenu();
  MakeWindowMenu();
  MakeHelpMenu();
}

void DesktopWindow::MakeFileMenu() {
  QMenu& menu = *menuBar()->addMenu("&File");
  AddAction(menu, "&Open…", QKeySequence::Open, [this] { AskForFiles(); });
  QMenu* const recent = menu.addMenu("Open &Recent");
  connect(recent, &QMenu::aboutToShow, this, [this, recent] { FillRecentFiles(*recent); });
  AddAction(menu, "Re&load", QKeySequence("Ctrl+R"), [this] { ReloadActiveFile(); });
  menu.addSeparator();
  AddAction(menu, "&Export Sequence Index…", QKeySequence("Ctrl+E"),
            [this] { ObeyPanelCommand(kExportCommand); });
  menu.addSeparator();
  AddAction(menu, "&Close Sequence", QKeySequence("Ctrl+W"), [this] { CloseActiveSequence(); });
  AddAction(menu, "Close &File", QKeySequence("Ctrl+Shift+W"), [this] { CloseActiveFile(); });
  menu.addSeparator();
  AddAction(menu, "&Quit", QKeySequence("Ctrl+Q"), [this] { close(); });
}

void DesktopWindow::MakeEditMenu() {
  QMenu& menu = *menuBar()->addMenu("&Edit");
  AddAction(menu, "&Find", QKeySequence::Find, [this] { FocusSearchField(); });
  AddAction(menu, "Fil&ters…", QKeySequence("Ctrl+Shift+F"), [this] { EditFilters(); });
}

void DesktopWindow::MakeViewMenu() {
  QMenu& menu = *menuBar()->addMenu("&View");
  MakeThemeMenu(*menu.addMenu("&Theme"));
  QMenu& rows = *menu.addMenu("&Row Scale");
  AddAction(rows, "&Higher", QKeySequence::ZoomIn, [this] { ScaleRows(kRowScaleStep); });
  AddAction(rows, "&Lower", QKeySequence::ZoomOut, [this] { ScaleRows(-kRowScaleStep); });
  AddAction(rows, "L&owest", QKeySequence("Ctrl+0"), [this] { ScaleRows(-1); });
  MakeTimeMenu(*menu.addMenu("Ti&me Display"));
  menu.addSeparator();
  AddAction(menu, "Zoom Timeline &In", {}, [this] { timeline->ZoomIn(); });
  AddAction(menu, "Zoom Timeline &Out", {}, [this] { timeline->ZoomOut(); });
  AddAction(menu, "Zoom Timeline to &All", {}, [this] { timeline->ZoomToFit(); });
}

void DesktopWindow::MakeThemeMenu(QMenu& menu) {
  auto* const group = new QActionGroup(this);
  const auto addTheme = [&](const QString& text, ThemeName name) {
    QAction* const action = AddAction(menu, text, {}, [this, name] { ChooseTheme(name); });
    action->setCheckable(true);
    group->addAction(action);
    connect(&menu, &QMenu::aboutToShow, action,
            [action, name] { action->setChecked(GetTheme() == name); });
  };
  addTheme("&Dark", ThemeName::kDark);
  addTheme("&Light", ThemeName::kLight);
}

void DesktopWindow::MakeTimeMenu(QMenu& menu) {
  auto* const group = new QActionGroup(this);
  const auto addFormat = [&](const QString& text, std::optional<TimeFormat> format) {
    QAction* const action =
        AddAction(menu, text, {}, [this, format] { session->SetTimeFormat(format); });
    action->setCheckable(true);
    group->addAction(action);
    action->setChecked(format == firstTimeFormat);
  };
  addFormat("As in the &File", std::nullopt);
  for (std::size_t i = 0; i < kTimeFormatNames.size(); ++i) {
    QString name = ToQString(kTimeFormatNames[i]);
    name[0] = name[0].toUpper();
    addFormat(name, static_cast<TimeFormat>(i));
  }
}

void DesktopWindow::MakePlaybackMenu() {
  QMenu& menu = *menuBar()->addMenu("&Playback");
  AddAction(menu, "&Play or Stop", {}, [this] { transport->PlayOrStop(); });
  AddAction(menu, "Play &Faster", {}, [this] { transport->Shuttle(1); });
  AddAction(menu, "Play &Backwards", {}, [this] { transport->Shuttle(-1); });
  menu.addSeparator();
  AddAction(menu, "&Go to Time", QKeySequence("Ctrl+G"), [this] {
    transport->GetTimeField().setFocus(Qt::ShortcutFocusReason);
    transport->GetTimeField().selectAll();
  });
  AddAction(menu, "Pre&vious Cut", {}, [this] { transport->GoToCut(-1); });
  AddAction(menu, "&Next Cut", {}, [this] { transport->GoToCut(1); });
}

void DesktopWindow::MakeWindowMenu() {
  QMenu* const menu = menuBar()->addMenu("&Window");
  auto* const features = new QMenu("&Experimental Features", menu);
  features->setToolTipsVisible(true);
  FillWindowMenu(*menu, *features);
  connect(menu, &QMenu::aboutToShow, this,
          [this, menu, features] { FillWindowMenu(*menu, *features); });
}

void DesktopWindow::MakeHelpMenu() {
  QMenu& menu = *menuBar()->addMenu("&Help");
  AddAction(menu, "&Keyboard Shortcuts", QKeySequence::HelpContents, [this] { ShowShortcuts(); });
  AddAction(menu, "&About", {}, [this] { ShowAbout(); });
}

void DesktopWindow::ShowShortcuts() {
  ShowText("Keyboard Shortcuts", kShortcuts);
}

void DesktopWindow::ShowAbout() {
  ShowText("About Sequence Index",
           QString("<b>Sequence Index %1</b><p>The clips and gaps of a timeline as a table.</p>")
               .arg(QApplication::applicationVersion()));
}

// Goes with the window, whenever that goes.
void DesktopWindow::ShowText(const QString& title, const QString& text) {
  auto* const box = new QMessageBox(QMessageBox::NoIcon, title, text, QMessageBox::Close, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::RichText);
  box->open();
}

}  // namespace standalone
