#include "standalone/desktop/ExportDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

constexpr const char* kExtensions[] = {".csv", ".txt"};
constexpr int kWidth = 460;

/// Names of sequences may hold what names of files can't.
QString MakeFileName(const QString& name) {
  QString fileName = name;
  for (const QChar forbidden : {QChar('/'), QChar('\\'), QChar('\0'), QChar('\n'), QChar('\r')}) {
    fileName.replace(forbidden, '-');
  }
  return fileName;
}

qelcore::UTF8String ToUTF8(const QString& text) {
  return qelcore::UTF8String(text.toStdString());
}

}  // namespace

ExportDialog::ExportDialog(const ExportChoice& choice, const QString& folder, QWidget* parent)
    : QDialog(parent),
      folderField(new QLineEdit(choice.folder.Empty() ? folder : ToQString(choice.folder.View()))),
      nameField(new QLineEdit(MakeFileName(ToQString(choice.fileName.View())))),
      extensionField(new QComboBox()),
      opensAfterwards(new QCheckBox("&Open the file afterwards")),
      trouble(new QLabel()),
      buttons(new QDialogButtonBox(QDialogButtonBox::Cancel)) {
  setWindowTitle("Export Sequence Index");
  setMinimumWidth(kWidth);
  for (const char* const extension : kExtensions) extensionField->addItem(extension);
  extensionField->setEditable(true);
  if (!choice.extension.Empty()) extensionField->setCurrentText(ToQString(choice.extension.View()));
  opensAfterwards->setChecked(choice.isOpenedAfterwards);
  trouble->setTextFormat(Qt::PlainText);
  trouble->setWordWrap(true);

  auto* const browse = new QPushButton("&Browse…");
  auto* const folderRow = new QHBoxLayout();
  folderRow->addWidget(folderField);
  folderRow->addWidget(browse);
  auto* const form = new QFormLayout(this);
  form->addRow("&Folder", folderRow);
  static_cast<QLabel*>(form->labelForField(folderRow))->setBuddy(folderField);
  form->addRow("&Name", nameField);
  form->addRow("E&xtension", extensionField);
  form->addRow(QString(), opensAfterwards);
  form->addRow(trouble);
  form->addRow(buttons);
  folderField->setAccessibleName("Folder");
  nameField->setAccessibleName("Name");
  extensionField->setAccessibleName("Extension");
  buttons->addButton("&Export", QDialogButtonBox::AcceptRole)->setDefault(true);

  connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
  connect(folderField, &QLineEdit::textChanged, this, [this] { ShowTrouble(); });
  connect(nameField, &QLineEdit::textChanged, this, [this] { ShowTrouble(); });
  connect(extensionField, &QComboBox::editTextChanged, this, [this] { ShowTrouble(); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  nameField->selectAll();
  nameField->setFocus();
  ShowTrouble();
}

// The dialog may go with its window while another one is open over it, which goes too then.
void ExportDialog::Browse() {
  const QPointer<QFileDialog> chooser(new QFileDialog(this, "Export to", folderField->text()));
  chooser->setFileMode(QFileDialog::Directory);
  chooser->setOption(QFileDialog::ShowDirsOnly);
  const bool isChosen = chooser->exec() == QDialog::Accepted;
  if (!chooser) return;
  if (isChosen) folderField->setText(chooser->selectedFiles().value(0));
  delete chooser;
}

bool ExportDialog::AskToReplace() {
  const QPointer<QMessageBox> question(new QMessageBox(
      QMessageBox::Question, windowTitle(), QString("“%1” exists. Replace it?").arg(GetFile()),
      QMessageBox::Yes | QMessageBox::No, this));
  question->setTextFormat(Qt::PlainText);
  question->setDefaultButton(QMessageBox::No);
  const int answer = question->exec();
  if (!question) return false;
  delete question;
  return answer == QMessageBox::Yes;
}

ExportChoice ExportDialog::GetChoice() const {
  return {ToUTF8(folderField->text()), ToUTF8(nameField->text()), ToUTF8(extensionField->currentText()),
          opensAfterwards->isChecked()};
}

QString ExportDialog::GetFile() const {
  return QDir(folderField->text()).filePath(nameField->text() + extensionField->currentText());
}

QString ExportDialog::FindTrouble() const {
  const QString fileName = nameField->text() + extensionField->currentText();
  if (!QFileInfo(folderField->text()).isDir()) return "There is no such folder.";
  if (nameField->text().isEmpty()) return "The file needs a name.";
  if (folderField->text().contains('\\')) return "A folder whose name holds \\ can't be used.";
  if (fileName.contains('/') || fileName.contains('\\')) return "The name can't hold / or \\.";
  if (QFileInfo(GetFile()).isDir()) return "There is a folder of that name.";
  return {};
}

void ExportDialog::ShowTrouble() {
  const QString found = FindTrouble();
  trouble->setText(found);
  for (QAbstractButton* const button : buttons->buttons()) {
    if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
      button->setEnabled(found.isEmpty());
  }
}

void ExportDialog::accept() {
  if (!FindTrouble().isEmpty()) return;
  if (QFileInfo::exists(GetFile()) && !AskToReplace()) return;
  QDialog::accept();
}

}  // namespace standalone
