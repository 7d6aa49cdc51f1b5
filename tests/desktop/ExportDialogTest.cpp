#include "standalone/desktop/ExportDialog.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "desktop/DesktopFixture.h"
#include "host/qelcore/Files.h"
#include "support/Process.h"

namespace standalone {
namespace {

using qelcore::UTF8String;
using namespace qelcore::filesupport;

class ExportDialogTest : public DesktopFixture {
 protected:
  static ExportChoice MakeChoice(const char* name) { return {{}, UTF8String(name), {}, true}; }
  std::unique_ptr<ExportDialog> Make(const char* name = "Harbour") {
    return std::make_unique<ExportDialog>(MakeChoice(name), GetFolder());
  }
  QString GetFolder() const { return folder.GetPath().c_str(); }

  static QLineEdit& GetField(const ExportDialog& dialog, const char* name) {
    for (auto* const field : dialog.findChildren<QLineEdit*>()) {
      if (field->accessibleName() == name) return *field;
    }
    throw std::runtime_error(name);
  }
  static void SetExtension(const ExportDialog& dialog, const char* extension) {
    dialog.findChild<QComboBox*>()->setEditText(extension);
  }
  static QPushButton& GetExportButton(const ExportDialog& dialog) {
    for (auto* const button : dialog.findChildren<QPushButton*>()) {
      if (button->text() == "&Export") return *button;
    }
    throw std::runtime_error("no export button");
  }
  static bool CanExport(const ExportDialog& dialog) { return GetExportButton(dialog).isEnabled(); }
  static bool Says(const ExportDialog& dialog, const char* sentence) {
    const auto labels = dialog.findChildren<QLabel*>();
    return std::ranges::any_of(labels, [&](const QLabel* label) { return label->text() == sentence; });
  }
  static bool Answer(ExportDialog& dialog, QMessageBox::StandardButton answer) {
    WhenNested([&dialog, answer] {
      auto* const question = dialog.findChild<QMessageBox*>();
      ASSERT_NE(question, nullptr);
      question->button(answer)->click();
    });
    GetExportButton(dialog).click();
    return dialog.result() == QDialog::Accepted;
  }

  process::Folder folder;
};

TEST_F(ExportDialogTest, ItStartsWithTheSequencesNameInTheUsualFolder) {
  const auto dialog = Make();
  const ExportChoice choice = dialog->GetChoice();
  EXPECT_EQ(choice.folder.View(), folder.GetPath().native());
  EXPECT_EQ(choice.fileName.View(), "Harbour");
  EXPECT_EQ(choice.extension.View(), ".csv");
  EXPECT_TRUE(choice.isOpenedAfterwards);
  EXPECT_TRUE(CanExport(*dialog));
  EXPECT_EQ(ToText(dialog->GetFile()), (folder / "Harbour.csv").native());
}

TEST_F(ExportDialogTest, WhatThePanelSaysGoesFirst) {
  const ExportDialog dialog(
      {UTF8String(folder.GetPath().native()), UTF8String("Cut"), UTF8String(".txt"), false}, "/tmp");
  const ExportChoice choice = dialog.GetChoice();
  EXPECT_EQ(choice.folder.View(), folder.GetPath().native());
  EXPECT_EQ(choice.extension.View(), ".txt");
  EXPECT_FALSE(choice.isOpenedAfterwards);
}

TEST_F(ExportDialogTest, ANameThatNoFileCanHaveIsMadeOneThatItCan) {
  EXPECT_EQ(Make("Reel 1/2\\3\n4")->GetChoice().fileName.View(), "Reel 1-2-3-4");
}

TEST_F(ExportDialogTest, AnExtensionIsJoinedAsItIsTyped) {
  const auto dialog = Make();
  SetExtension(*dialog, "csv");
  EXPECT_EQ(ToText(dialog->GetFile()), (folder / "Harbourcsv").native());
  SetExtension(*dialog, "");
  EXPECT_EQ(ToText(dialog->GetFile()), (folder / "Harbour").native());
  EXPECT_TRUE(CanExport(*dialog));
}

TEST_F(ExportDialogTest, TheFileIsTheOneThatTheHostWrites) {
  const auto dialog = Make("Häfen 1");
  for (const QString& written : {GetFolder(), GetFolder() + "/"}) {
    GetField(*dialog, "Folder").setText(written);
    const ExportChoice choice = dialog->GetChoice();
    std::string path(choice.folder.View());
    path.append("\\").append(choice.fileName.View()).append(choice.extension.View());
    File file(path, StorageType::kPlatformFile);
    file.Create(false);
    OPlatformByteStream(file, OPlatformByteStream::kWrite).Close();
    EXPECT_TRUE(std::filesystem::exists(dialog->GetFile().toStdString()));
    std::filesystem::remove(dialog->GetFile().toStdString());
  }
}

TEST_F(ExportDialogTest, WhatNamesNoFileIsRefusedWithAReason) {
  const auto dialog = Make();
  const auto expectRefusal = [&](const char* sentence) {
    EXPECT_FALSE(CanExport(*dialog)) << sentence;
    EXPECT_TRUE(Says(*dialog, sentence)) << sentence;
    dialog->accept();
    EXPECT_NE(dialog->result(), QDialog::Accepted);
  };
  QLineEdit& name = GetField(*dialog, "Name");
  name.clear();
  expectRefusal("The file needs a name.");
  name.setText("a/b");
  expectRefusal("The name can't hold / or \\.");
  name.setText("a\\b");
  expectRefusal("The name can't hold / or \\.");
  name.setText("a");
  SetExtension(*dialog, "/b");
  expectRefusal("The name can't hold / or \\.");
  SetExtension(*dialog, ".csv");
  std::filesystem::create_directory(folder / "a.csv");
  name.setText("");
  name.setText("a");
  expectRefusal("There is a folder of that name.");
  name.setText("b");
  EXPECT_TRUE(CanExport(*dialog));
  EXPECT_TRUE(Says(*dialog, ""));
}

TEST_F(ExportDialogTest, FoldersThatCantBeWrittenToAreRefused) {
  const auto dialog = Make();
  QLineEdit& field = GetField(*dialog, "Folder");
  for (const QString& none : {QString(), GetFolder() + "/none"}) {
    field.setText(none);
    EXPECT_FALSE(CanExport(*dialog));
    EXPECT_TRUE(Says(*dialog, "There is no such folder."));
  }
  std::filesystem::create_directory(folder / "back\\slash");
  field.setText(GetFolder() + "/back\\slash");
  EXPECT_FALSE(CanExport(*dialog));
  EXPECT_TRUE(Says(*dialog, "A folder whose name holds \\ can't be used."));
}

TEST_F(ExportDialogTest, AFileThatExistsIsReplacedOnlyAfterAQuestion) {
  process::WriteFile(folder / "Harbour.csv", "old");
  EXPECT_FALSE(Answer(*Make(), QMessageBox::No));
  EXPECT_TRUE(Answer(*Make(), QMessageBox::Yes));
  EXPECT_EQ(process::ReadFile(folder / "Harbour.csv"), "old");
}

TEST_F(ExportDialogTest, ADialogThatGoesDuringTheQuestionIsNotConfirmed) {
  process::WriteFile(folder / "Harbour.csv", "old");
  auto dialog = Make();
  WhenNested([&] { dialog.reset(); });
  GetExportButton(*dialog).click();
  EXPECT_EQ(dialog, nullptr);
}

TEST_F(ExportDialogTest, AFolderIsBrowsedFor) {
  std::filesystem::create_directory(folder / "deliveries");
  const auto dialog = Make();
  const auto browse = [&](std::function<void(QFileDialog&)> act) {
    WhenNested([&dialog, act] { act(*dialog->findChild<QFileDialog*>()); });
    for (auto* const button : dialog->findChildren<QPushButton*>()) {
      if (button->text() == "&Browse…") button->click();
    }
  };
  browse([](QFileDialog& chooser) { chooser.reject(); });
  EXPECT_EQ(GetField(*dialog, "Folder").text(), GetFolder());
  browse([&](QFileDialog& chooser) {
    chooser.selectFile(GetFolder() + "/deliveries");
    static_cast<QDialog&>(chooser).accept();
  });
  EXPECT_EQ(GetField(*dialog, "Folder").text(), GetFolder() + "/deliveries");
}

TEST_F(ExportDialogTest, ADialogThatGoesWhileAFolderIsBrowsedForLeavesNothing) {
  auto dialog = Make();
  WhenNested([&] { dialog.reset(); });
  for (auto* const button : dialog->findChildren<QPushButton*>()) {
    if (button->text() != "&Browse…") continue;
    button->click();
    break;
  }
  EXPECT_EQ(dialog, nullptr);
}

TEST_F(ExportDialogTest, EverythingIsNamedAndReachedByKeyboard) {
  const auto dialog = Make();
  for (QWidget* const widget : dialog->findChildren<QWidget*>()) {
    const bool isReached = widget->focusPolicy() != Qt::NoFocus && widget->isVisibleTo(dialog.get()) &&
                           widget->focusProxy() == nullptr;
    if (!isReached) continue;
    const bool isNamed =
        !QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty();
    EXPECT_TRUE(isNamed) << widget->metaObject()->className();
  }
}

}  // namespace
}  // namespace standalone
