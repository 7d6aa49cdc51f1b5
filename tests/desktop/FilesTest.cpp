#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QSettings>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "standalone/desktop/FileWatch.h"
#include "standalone/desktop/RecentFiles.h"
#include "support/Process.h"

namespace standalone {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class Watch : public testing::Test {
 protected:
  Watch() {
    process::WriteFile(folder / "cut.otio", "one");
    process::WriteFile(folder / "other.otio", "one");
    watch->Add(Name("cut.otio"));
  }
  QString Name(const std::string& file) const { return (folder / file).c_str(); }
  /// A change of a file that is watched too comes after all earlier ones.
  bool WaitForMarker() {
    watch->Add(Name("marker"));
    process::WriteFile(folder / "marker", "there");
    return WaitFor([&] { return !told.empty() && told.back() == (folder / "marker").native(); });
  }
  bool IsTold(std::size_t times = 1) {
    return WaitFor([&] { return told.size() >= times; });
  }

  process::Folder folder;
  std::vector<std::string> told;
  std::unique_ptr<FileWatch> watch =
      std::make_unique<FileWatch>([this](const QString& file) { told.push_back(file.toStdString()); });
};

TEST_F(Watch, AFileThatIsWrittenInPlaceIsTold) {
  process::WriteFile(folder / "cut.otio", "two and more");
  ASSERT_TRUE(IsTold());
  EXPECT_THAT(told, ElementsAre((folder / "cut.otio").native()));
}

TEST_F(Watch, AFileThatIsReplacedIsToldEachTime) {
  for (std::size_t i = 1; i <= 2; ++i) {
    process::WriteFile(folder / "new", "version " + std::to_string(i));
    std::filesystem::rename(folder / "new", folder / "cut.otio");
    ASSERT_TRUE(IsTold(i));
  }
  process::WriteFile(folder / "cut.otio", "written in place again");
  ASSERT_TRUE(IsTold(3));
  EXPECT_THAT(told, Each((folder / "cut.otio").native()));
}

TEST_F(Watch, AFileThatIsReplacedWhileSomebodyHoldsTheOldOneIsFollowed) {
  const std::ifstream held(folder / "cut.otio");
  process::WriteFile(folder / "new", "version 2");
  std::filesystem::rename(folder / "new", folder / "cut.otio");
  ASSERT_TRUE(IsTold());
  process::WriteFile(folder / "cut.otio", "written in place");
  EXPECT_TRUE(IsTold(2));
}

TEST_F(Watch, AFileThatIsDeletedAndComesBackIsTold) {
  std::filesystem::remove(folder / "cut.otio");
  ASSERT_TRUE(WaitForMarker());
  EXPECT_THAT(told, ElementsAre((folder / "marker").native()));
  process::WriteFile(folder / "cut.otio", "two");
  ASSERT_TRUE(IsTold(2));
  EXPECT_EQ(told.back(), (folder / "cut.otio").native());
}

TEST_F(Watch, AFileThatWentAwayAndCameBackUnchangedIsNotToldButFollowed) {
  std::filesystem::rename(folder / "cut.otio", folder / "away");
  ASSERT_TRUE(WaitForMarker());
  std::filesystem::rename(folder / "away", folder / "cut.otio");
  process::WriteFile(folder / "marker", "there again");
  ASSERT_TRUE(IsTold(2));
  EXPECT_THAT(told, Each((folder / "marker").native()));
  process::WriteFile(folder / "cut.otio", "two");
  ASSERT_TRUE(IsTold(3));
  EXPECT_EQ(told.back(), (folder / "cut.otio").native());
}

TEST_F(Watch, OtherFilesOfTheFolderAreNotTold) {
  process::WriteFile(folder / "other.otio", "two");
  ASSERT_TRUE(WaitForMarker());
  EXPECT_THAT(told, ElementsAre((folder / "marker").native()));
}

TEST_F(Watch, AFileThatIsNoLongerWatchedIsNotTold) {
  watch->Add(Name("other.otio"));
  watch->Remove(Name("cut.otio"));
  process::WriteFile(folder / "cut.otio", "two");
  process::WriteFile(folder / "other.otio", "two");
  ASSERT_TRUE(IsTold());
  ASSERT_TRUE(WaitForMarker());
  EXPECT_THAT(told, ElementsAre((folder / "other.otio").native(), (folder / "marker").native()));
  watch->Remove(Name("other.otio"));
  watch->Remove(Name("marker"));
}

TEST_F(Watch, AWatchThatIsGoneTellsNothing) {
  process::WriteFile(folder / "cut.otio", "two");
  watch.reset();
  QApplication::processEvents();
  EXPECT_THAT(told, IsEmpty());
}

/// Settings in a folder of the test's own.
class Recent : public testing::Test {
 protected:
  Recent() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.GetPath().c_str());
    QCoreApplication::setOrganizationName("recent-files-test");
    QCoreApplication::setApplicationName("recent-files-test");
  }
  ~Recent() override {
    QCoreApplication::setOrganizationName({});
    QCoreApplication::setApplicationName({});
  }
  QString Make(const std::string& name) {
    process::WriteFile(folder / name, name);
    return (folder / name).c_str();
  }

  process::Folder folder;
  RecentFiles recent;
};

TEST_F(Recent, TheNewestStandsFirstAndOnlyOnce) {
  const QString one = Make("one");
  const QString two = Make("two");
  EXPECT_TRUE(recent.GetFiles().isEmpty());
  recent.Add(one);
  recent.Add(two);
  EXPECT_EQ(RecentFiles().GetFiles(), QStringList({two, one}));
  recent.Add(one);
  EXPECT_EQ(recent.GetFiles(), QStringList({one, two}));
}

TEST_F(Recent, FilesThatAreGoneAreLeftOut) {
  recent.Add(Make("one"));
  recent.Add(Make("two"));
  std::filesystem::remove(folder / "two");
  EXPECT_EQ(recent.GetFiles(), QStringList(Make("one")));
}

TEST_F(Recent, NoMoreThanTenAreKept) {
  for (int i = 0; i < 12; ++i) recent.Add(Make(std::to_string(i)));
  ASSERT_EQ(recent.GetFiles().size(), RecentFiles::kMost);
  EXPECT_EQ(recent.GetFiles().front(), Make("11"));
  EXPECT_EQ(recent.GetFiles().back(), Make("2"));
}

TEST_F(Recent, TheListIsCleared) {
  recent.Add(Make("one"));
  recent.Clear();
  EXPECT_TRUE(recent.GetFiles().isEmpty());
}

}  // namespace
}  // namespace standalone
