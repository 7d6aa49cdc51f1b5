#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

#include "standalone/desktop/DesktopWindow.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

constexpr const char* kFileFilter = "Timelines (*.otio *.otioz *.otiod content.otio);;All files (*)";

QString ToText(const std::filesystem::path& file) {
  return ToQString(file.native());
}

/// As compilers write places; line 0: none.
QString MakePlace(const QString& file, std::size_t line) {
  return line == 0 ? file : QString("%1:%2").arg(file).arg(line);
}

}  // namespace

void DesktopWindow::OpenFiles(const std::vector<std::filesystem::path>& files) {
  for (const auto& file : files) OpenFile(file);
}

void DesktopWindow::OpenFile(const std::filesystem::path& file) {
  session->Open(file);
  // Also when the first thing that is heard of it is its end.
  if (session->IsBusy() && loadingBar->isHidden()) loadingBar->Show(file, LoadingStep::kTimeline, 0);
}

void DesktopWindow::AskForFiles() {
  const QStringList recent = recentFiles.GetFiles();
  const QString folder = recent.isEmpty() ? QDir::currentPath() : QFileInfo(recent.front()).path();
  auto* const dialog = new QFileDialog(this, "Open Timelines", folder, kFileFilter);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setFileMode(QFileDialog::ExistingFiles);
  connect(dialog, &QFileDialog::filesSelected, this, [this](const QStringList& files) {
    for (const QString& file : files) OpenFile(file.toStdString());
  });
  dialog->open();
}

void DesktopWindow::FillRecentFiles(QMenu& menu) {
  menu.clear();
  for (const QString& file : recentFiles.GetFiles()) {
    QString name = file;
    menu.addAction(name.replace('&', "&&"), [this, file] { OpenFile(file.toStdString()); });
  }
  const bool isEmpty = menu.isEmpty();
  menu.addSeparator();
  menu.addAction("&Clear List", [this] { recentFiles.Clear(); })->setEnabled(!isEmpty);
}

void DesktopWindow::ReloadActiveFile() {
  const OpenDocument* const document = session->FindDocument(host.GetProject().GetActiveSequence());
  if (document != nullptr) session->Reload(std::filesystem::path(document->file));
}

void DesktopWindow::CloseActiveFile() {
  const OpenDocument* const document = session->FindDocument(host.GetProject().GetActiveSequence());
  if (document != nullptr) session->Close(std::filesystem::path(document->file));
}

void DesktopWindow::CloseActiveSequence() {
  const auto active = host.GetProject().GetActiveSequence();
  if (active) host.GetProject().CloseSequence(active);
}

void DesktopWindow::LoadingProgressed(const std::filesystem::path& file, LoadingStep step,
                                      double fraction) {
  loadingBar->Show(file, step, fraction);
}

void DesktopWindow::LoadingEnded(const std::filesystem::path&) {
  loadingBar->Clear();
}

void DesktopWindow::DocumentChanged(const OpenDocument& document) {
  const QString file = ToText(document.file);
  recentFiles.Add(file);
  fileWatch.Add(file);
  ShowDocuments();
  if (document.trouble.empty()) return statusLine->Settle(file);
  statusLine->Say(MakePlace(file, document.troubleLine) + ": " + ToQString(document.trouble) +
                      " What is shown is what was read before.",
                  file);
}

void DesktopWindow::DocumentFailed(const std::filesystem::path& file, std::size_t line,
                                   const std::string& sentence) {
  const QString text = ToText(file);
  statusLine->Say(MakePlace(text, line) + ": " + ToQString(sentence), text);
}

void DesktopWindow::MediaFilesCantBeRead(const std::string& sentence) {
  statusLine->Say(ToQString(sentence));
}

void DesktopWindow::DocumentClosed(const std::filesystem::path& file) {
  fileWatch.Remove(ToText(file));
  statusLine->Settle(ToText(file));
  ShowDocuments();
}

void DesktopWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void DesktopWindow::dropEvent(QDropEvent* event) {
  for (const QUrl& url : event->mimeData()->urls()) {
    if (url.isLocalFile()) OpenFile(url.toLocalFile().toStdString());
  }
  event->acceptProposedAction();
}

}  // namespace standalone
