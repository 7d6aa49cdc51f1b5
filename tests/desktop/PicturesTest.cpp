#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desktop/DesktopFixture.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "standalone/desktop/ExportDialog.h"
#include "standalone/desktop/OptionsDialog.h"
#include "standalone/desktop/ReportView.h"
#include "standalone/desktop/SequenceList.h"
#include "standalone/desktop/TimelineView.h"
#include "standalone/desktop/TransportBar.h"
#include "standalone/import/LabelPalette.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/window/TabViewWidget.h"
#include "standalone/window/WindowTheme.h"
#include "support/Process.h"
#include "view/SequenceIndexView.h"

namespace standalone {
namespace {

/// Every widget in both themes and at two resolutions. The pictures are kept for people to look at
/// where WIDGET_PICTURES names a folder for them.
class Pictures : public DesktopFixture {
 protected:
  Pictures() {
    auto read = ReadTimelineFile(SOURCE_FOLDER "/samples/demo.otio");
    notes = read.notes;
    sequences = host->GetProject().AddDocument(std::move(read.document));
    host->GetProject().ActivateSequence(sequences.front());
    host.Settle();
  }
  ~Pictures() override {
    SetTheme(ThemeName::kDark);
    ApplyTheme();
  }

  void Take(QWidget& widget, const std::string& name) {
    for (const auto theme : {ThemeName::kDark, ThemeName::kLight}) {
      SetTheme(theme);
      ApplyTheme();
      widget.show();
      Settle();
      for (const int scale : {1, 2}) {
        const QImage image = Grab(widget, scale);
        EXPECT_FALSE(IsOfOneColor(image)) << name;
        const std::string end = theme == ThemeName::kDark ? "-dark" : "-light";
        Keep(image, name + end + "-x" + std::to_string(scale) + ".png");
      }
    }
  }
  static bool IsOfOneColor(const QImage& image) {
    QImage plain(image.size(), image.format());
    plain.setDevicePixelRatio(image.devicePixelRatio());
    plain.fill(image.pixelColor(0, 0));
    return image == plain;
  }
  static void Keep(const QImage& image, const std::string& name) {
    const char* const folder = std::getenv("WIDGET_PICTURES");
    if (folder == nullptr) return;
    std::filesystem::create_directories(folder);
    image.save(QDir(folder).filePath(QString::fromStdString(name)));
  }

  std::vector<ImportNote> notes;
  std::vector<Sequence> sequences;
};

TEST_F(Pictures, Dialogs) {
  MZ::SequenceIndex::Options options;
  options.filterToggles[1] = true;
  options.labelColors = {kLabelPalette[4].color, kLabelPalette[9].color, {1, 2, 3, 255}};
  OptionsDialog dialog(options);
  Take(dialog, "options");
  const process::Folder folder;
  ExportDialog exporting({{}, qelcore::UTF8String("Harbour"), {}, true}, folder.GetPath().c_str());
  Take(exporting, "export");
  ExportDialog refusing({}, "/no/such/folder");
  Take(refusing, "export-trouble");
}

TEST_F(Pictures, Timeline) {
  TimelineView timeline;
  timeline.resize(1100, 320);
  timeline.show();
  Settle();
  timeline.SetSequence(sequences.front());
  const auto player = FindPlayer(sequences.front());
  player->SetCurrentPosition(drafts::Frame(300));
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&timeline, &enter);
  Take(timeline, "timeline");
  for (int i = 0; i < 3; ++i) timeline.ZoomIn();
  Take(timeline, "timeline-near");
  TimelineView empty;
  empty.resize(600, 200);
  Take(empty, "timeline-empty");
}

TEST_F(Pictures, Transport) {
  TransportBar transport;
  transport.resize(700, transport.sizeHint().height());
  transport.SetSequence(sequences.front());
  Take(transport, "transport");
  transport.Shuttle(-1);
  transport.Shuttle(-1);
  Take(transport, "transport-playing");
  transport.Stop();
  transport.SetSequence({});
  Take(transport, "transport-disabled");
}

TEST_F(Pictures, Lists) {
  OpenDocument document{SOURCE_FOLDER "/samples/demo.otio", sequences, notes, {}, {}};
  SequenceList list({});
  list.resize(240, 200);
  list.Show({document}, sequences.front());
  Take(list, "sequences");
  ImportNote note;
  note.sentence = "The clip's duration is negative; it is shown with a duration of 0.";
  note.place = "V1, clip 12";
  note.line = 340;
  document.notes.push_back(note);
  document.trouble = "The file ends in the middle.";
  ReportView report;
  report.resize(420, 260);
  report.Show(&document);
  Take(report, "report");
}

TEST_F(Pictures, Panel) {
  const auto view = qelcore::memory::MakeShareable<Vantrel::SequenceIndexView>(
      std::shared_ptr<Vantrel::SequenceIndexHandler>());
  view->Create("handler", qelcore::UTF8String("Sequence Index"),
               std::make_shared<UIF::WorkspaceFrame>(qelui::Rect{0, 0, 1000, 400}), true);
  host.Settle();
  TabViewWidget widget(view);
  widget.resize(1000, 400);
  Take(widget, "panel");
}

}  // namespace
}  // namespace standalone
