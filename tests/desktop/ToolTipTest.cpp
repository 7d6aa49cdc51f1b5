#include "standalone/window/ToolTip.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTextDocument>
#include <QToolTip>
#include <string>

namespace standalone {
namespace {

/// As tooltips lay their text out.
class Laid {
 public:
  explicit Laid(const QString& toolTip) {
    label.setFont(QToolTip::font());
    label.setWordWrap(true);
    label.setText(toolTip);
    document.setHtml(toolTip);
  }
  int GetWidth() const { return label.sizeHint().width(); }
  int GetHeight() const { return label.sizeHint().height(); }
  std::string GetText() const { return document.toPlainText().trimmed().toStdString(); }

 private:
  QLabel label;
  QTextDocument document;
};

std::string MakeLongText() {
  std::string text;
  for (int i = 0; i < 30; ++i) text += "words and ";
  return text + "more";
}

TEST(ToolTip, AnEmptyTextHasNone) {
  EXPECT_TRUE(MakeToolTip("", 200).isEmpty());
}

TEST(ToolTip, ALongTextIsBrokenAtTheWidth) {
  const Laid narrow(MakeToolTip(MakeLongText(), 200));
  const Laid wide(MakeToolTip(MakeLongText(), 400));
  EXPECT_NEAR(narrow.GetWidth(), 200, 6);
  EXPECT_NEAR(wide.GetWidth(), 400, 6);
  EXPECT_GT(narrow.GetHeight(), wide.GetHeight());
}

TEST(ToolTip, AShortTextTakesNoMoreRoomThanItNeeds) {
  EXPECT_LT(Laid(MakeToolTip("Scale", 200)).GetWidth(), 100);
}

TEST(ToolTip, LinesBreakWhereTheTextSaysSo) {
  const int line = Laid(MakeToolTip("one", 200)).GetHeight();
  for (const std::uint32_t width : {0U, 200U}) {
    const Laid three(MakeToolTip("one\ntwo\nthree\n", width));
    EXPECT_NEAR(three.GetHeight(), 3 * line, 2) << width;
    EXPECT_EQ(three.GetText(), "one\ntwo\nthree") << width;
  }
  const Laid broken(MakeToolTip("Active Filters: \n" + MakeLongText(), 200));
  EXPECT_EQ(broken.GetText().substr(0, 17), "Active Filters: \n");
}

TEST(ToolTip, SignsOfMarkupStandForThemselves) {
  EXPECT_EQ(Laid(MakeToolTip("<b>a & b</b>", 200)).GetText(), "<b>a & b</b>");
}

}  // namespace
}  // namespace standalone
