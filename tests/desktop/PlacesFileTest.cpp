#include "standalone/desktop/PlacesFile.h"

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>

#include "desktop/DesktopFixture.h"
#include "support/Process.h"

namespace standalone {
namespace {

using testing::IsEmpty;

class PlacesFileTest : public DesktopFixture {
 protected:
  PlacesFileTest() {
    button.setCheckable(true);
    button.setGeometry(20, 30, 100, 24);
    window.setGeometry(100, 100, 300, 200);
    Show(window);
  }
  static QJsonObject Find(const QString& name) {
    for (const auto& place : QJsonDocument::fromJson(PlacesFile::Describe()).array()) {
      if (place.toObject()["name"].toString() == name) return place.toObject();
    }
    return {};
  }

  process::Folder folder;
  QWidget window;
  QPushButton button{"Gaps", &window};
};

TEST_F(PlacesFileTest, ItSaysWhereOnTheScreenAWidgetIs) {
  const QJsonArray area = Find("Gaps")["area"].toArray();
  ASSERT_EQ(area.size(), 4);
  EXPECT_EQ(QPoint(area[0].toInt(), area[1].toInt()), button.mapToGlobal(QPoint()));
  EXPECT_EQ(QSize(area[2].toInt(), area[3].toInt()), button.size());
}

TEST_F(PlacesFileTest, ItSaysWhatIsChecked) {
  EXPECT_FALSE(Find("Gaps").contains("checked"));
  button.setChecked(true);
  EXPECT_TRUE(Find("Gaps")["checked"].toBool());
}

TEST_F(PlacesFileTest, WhatIsHiddenHasNoPlace) {
  button.hide();
  EXPECT_TRUE(Find("Gaps").isEmpty());
}

TEST_F(PlacesFileTest, TheFileFollowsTheWindow) {
  const auto file = folder / "places.json";
  const PlacesFile places(QString::fromStdString(file.native()));
  EXPECT_TRUE(WaitFor([&] { return process::ReadFile(file).find("Gaps") != std::string::npos; }));
  button.setText("Clips");
  EXPECT_TRUE(WaitFor([&] { return process::ReadFile(file).find("Clips") != std::string::npos; }));
}

TEST_F(PlacesFileTest, WithoutANameNothingIsWritten) {
  const PlacesFile places{QString()};
  EXPECT_THAT(places.children(), IsEmpty());
}

}  // namespace
}  // namespace standalone
