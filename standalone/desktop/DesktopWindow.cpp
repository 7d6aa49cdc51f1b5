#include "standalone/desktop/DesktopWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QVBoxLayout>
#include <utility>

#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
#include "host/qelcore/Threads.h"
#include "standalone/window/Utf8.h"
#include "standalone/window/WindowTheme.h"

namespace standalone {

namespace {

constexpr const char* kProgramName = "Sequence Index";
constexpr const char* kGeometryKey = "window/geometry";
constexpr const char* kStateKey = "window/state";
constexpr const char* kThemeKey = "theme";
constexpr const char* kLightTheme = "light";
constexpr const char* kDarkTheme = "dark";
constexpr int kFirstWidth = 1280;
constexpr int kFirstHeight = 800;
constexpr int kListWidth = 260;
constexpr int kPanelPercent = 45;
constexpr int kWhole = 100;
constexpr unsigned kSoon = 0;
constexpr bool kAlsoInNestedLoops = true;
constexpr std::int64_t kLargeStep = 10;

}  // namespace

DesktopWindow::DesktopWindow(StandaloneHost& host, LoadingOptions options)
    : host(host),
      dialogs(*this),
      fileWatch([this](const QString& file) { session->Reload(file.toStdString()); }),
      firstTimeFormat(options.timeFormat) {
  setWindowTitle(kProgramName);
  setAcceptDrops(true);
  setDockNestingEnabled(true);
  session.emplace(host.GetProject(), std::move(options), static_cast<DocumentObserver&>(*this));
  MakeCentre();
  MakeDocks();
  MakeStatusBar();
  MakeMenus();
  ListenToMessages();
  RestorePlaces();
  OpenIndexPanel();
  ShowActiveSequence();
}

DesktopWindow::~DesktopWindow() {
  host.GetRuntime().GetLog().SetObserver({});
  listener.reset();
  session.reset();
  host.GetProject().StopPlayback();
  ClosePanel();
}

void DesktopWindow::MakeCentre() {
  auto* const centre = new QWidget();
  auto* const layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  transport = new TransportBar();
  timeline = new TimelineView();
  layout->addWidget(transport);
  layout->addWidget(timeline);
  setCentralWidget(centre);
}

void DesktopWindow::MakeDocks() {
  setCorner(Qt::TopLeftCorner, Qt::LeftDockWidgetArea);
  setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
  SequenceList::Actions actions;
  actions.activate = [this](const Sequence& sequence) { host.GetProject().ActivateSequence(sequence); };
  actions.closeSequence = [this](const Sequence& sequence) {
    host.GetProject().CloseSequence(sequence);
  };
  actions.closeFile = [this](const std::filesystem::path& file) { session->Close(file); };
  sequenceList = new SequenceList(std::move(actions));
  sequenceDock = new QDockWidget("Sequences", this);
  sequenceDock->setObjectName("sequences");
  sequenceDock->setWidget(sequenceList);
  addDockWidget(Qt::LeftDockWidgetArea, sequenceDock);
  report = new ReportView();
  reportDock = new QDockWidget("Import Report", this);
  reportDock->setObjectName("report");
  reportDock->setWidget(report);
  addDockWidget(Qt::LeftDockWidgetArea, reportDock);
}

void DesktopWindow::MakeStatusBar() {
  statusLine = new StatusLine();
  auto* const selected = new QLabel();
  loadingBar = new LoadingBar([this] { session->Cancel(); });
  statusBar()->addWidget(statusLine, 1);
  statusBar()->addPermanentWidget(selected);
  statusBar()->addPermanentWidget(loadingBar);
  timeline->SetSelectionWatcher([selected](std::size_t count) {
    selected->setText(count == 0 ? QString() : QString("%1 selected in the timeline").arg(count));
  });
  ObserveFailures();
}

// Failures are reported on the thread they happen on.
void DesktopWindow::ObserveFailures() {
  const QPointer<DesktopWindow> self(this);
  host.GetRuntime().GetLog().SetObserver([self](const std::string& failure) {
    qelcore::threads::CallFromMainThread(
        [self, failure] {
          if (self) self->statusLine->Say(ToQString(failure));
        },
        kSoon, kAlsoInNestedLoops);
  });
}

void DesktopWindow::ListenToMessages() {
  listener = MessageListener::Make([this](const qelcore::messaging::Message& message) {
    if (dynamic_cast<const MZ::SequenceActivatedMessage*>(&message) != nullptr) {
      ShowActiveSequence();
    } else if (dynamic_cast<const BE::SequenceChangedMessage*>(&message) != nullptr) {
      ShowDocuments();
    }
  });
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_SequenceActivation, listener);
  const auto notification = qelcore::QueryInterface<BE::INotification>(host.GetProject().GetProject());
  if (notification) qelcore::messaging::AddWeakPtrListener(notification->GetStationID(), listener);
}

void DesktopWindow::RestorePlaces() {
  const QSettings settings;
  SetTheme(settings.value(kThemeKey) == kLightTheme ? ThemeName::kLight : ThemeName::kDark);
  ApplyTheme();
  resize(QSize(kFirstWidth, kFirstHeight).boundedTo(screen()->availableSize()));
  restoreGeometry(settings.value(kGeometryKey).toByteArray());
  hasPlaces = restoreState(settings.value(kStateKey).toByteArray());
}

void DesktopWindow::PlacePanel() {
  if (panelDock) resizeDocks({panelDock}, {height() * kPanelPercent / kWhole}, Qt::Vertical);
}

// Before, the docks have no room yet that could be shared out.
void DesktopWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (std::exchange(hasPlaces, true)) return;
  PlacePanel();
  resizeDocks({sequenceDock}, {kListWidth}, Qt::Horizontal);
}

void DesktopWindow::closeEvent(QCloseEvent* event) {
  QSettings settings;
  settings.setValue(kGeometryKey, saveGeometry());
  settings.setValue(kStateKey, saveState());
  session->Cancel();
  host.GetProject().StopPlayback();
  event->accept();
}

void DesktopWindow::ShowActiveSequence() {
  const auto active = host.GetProject().GetActiveSequence();
  timeline->SetSequence(active);
  transport->SetSequence(active);
  ShowDocuments();
}

void DesktopWindow::ShowDocuments() {
  const auto active = host.GetProject().GetActiveSequence();
  sequenceList->Show(session->GetDocuments(), active);
  const OpenDocument* const document = session->FindDocument(active);
  report->Show(document);
  reportDock->setWindowTitle(report->CountLines() == 0
                                 ? QString("Import Report")
                                 : QString("Import Report (%1)").arg(report->CountLines()));
  if (!active) return setWindowTitle(kProgramName);
  const QString name = ToQString(active->GetName().View());
  const QString file = document == nullptr ? QString() : ToQString(document->file.filename().native());
  setWindowTitle(QString("%1 — %2 — %3").arg(name, file, kProgramName));
}

void DesktopWindow::ChooseTheme(ThemeName name) {
  SetTheme(name);
  ApplyTheme();
  QSettings().setValue(kThemeKey, name == ThemeName::kLight ? kLightTheme : kDarkTheme);
}

// Keys that nobody under the pointer of the keyboard wanted.
void DesktopWindow::keyPressEvent(QKeyEvent* event) {
  if (!DoTransportKey(*event)) QMainWindow::keyPressEvent(event);
}

bool DesktopWindow::DoTransportKey(const QKeyEvent& event) {
  const bool isShifted = (event.modifiers() & Qt::ShiftModifier) != 0;
  if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier) return false;
  switch (event.key()) {
    case Qt::Key_Space:
      transport->PlayOrStop();
      return true;
    case Qt::Key_J:
      transport->Shuttle(-1);
      return true;
    case Qt::Key_K:
      transport->Stop();
      return true;
    case Qt::Key_L:
      transport->Shuttle(1);
      return true;
    case Qt::Key_Left:
      transport->StepFrames(isShifted ? -kLargeStep : -1);
      return true;
    case Qt::Key_Right:
      transport->StepFrames(isShifted ? kLargeStep : 1);
      return true;
    case Qt::Key_Up:
      transport->GoToCut(-1);
      return true;
    case Qt::Key_Down:
      transport->GoToCut(1);
      return true;
    case Qt::Key_Home:
      transport->GoToStart();
      return true;
    case Qt::Key_End:
      transport->GoToEnd();
      return true;
    default:
      return false;
  }
}

}  // namespace standalone
