#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "host/MZ/Messages.h"
#include "host/qelui/Events.h"
#include "standalone/framework/Framework.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "standalone/toolkit/TreeControl.h"
#include "support/Answers.h"
#include "support/Drafts.h"
#include "support/Process.h"
#include "support/SteppedHost.h"
#include "table/ColumnLayout.h"
#include "view/SequenceIndexView.h"

namespace Vantrel {

/// Hears what the panel and the players say, and meddles.
class Meddler final : public qelcore::messaging::Listener {
 public:
  explicit Meddler(std::function<void()> meddle) : meddle(std::move(meddle)) {}
  void ReceiveMessage(const qelcore::messaging::Message&) override { meddle(); }

 private:
  const std::function<void()> meddle;
};

/// Works with the panel in the host's own hands, while the pool builds, in random order: opens, edits
/// and closes sequences, moves the playhead and plays, clicks rows, changes columns, filters and
/// search, draws cells, closes the panel and opens it again. Some of it happens inside the broadcasts
/// and dialogs of the rest.
class RandomPanelUser {
 private:
  template <typename T>
  using Ref = qelcore::Ref<T>;
  using UTF8String = qelcore::UTF8String;

 public:
  static constexpr unsigned kSequences = 4;
  static constexpr std::int64_t kLongestFrame = 400;

  explicit RandomPanelUser(unsigned seed) : random(seed) {
    standalone::SwitchFeature("SequenceIndex", true);
    for (unsigned i = 0; i < kSequences; ++i) {
      sequences.push_back(AddSequence(MakeTimeline(std::to_string(i))));
    }
    answers.optionsAnswer = [this](const MZ::SequenceIndex::Options&) { return AnswerOptions(); };
    answers.menuAnswer = [this] {
      RunNestedLoop();
      return Pick(3) == 0 ? 100 + Pick(2) : 100000 + Pick(30);
    };
    answers.exportAnswer = [this](standalone::ExportChoice& choice) {
      choice = {HostPath(folder.GetPath().native()), UTF8String("list"), UTF8String(".csv"), false};
      RunNestedLoop();
      return true;
    };
    qelcore::messaging::AddWeakPtrListener(MZ::kStation_TrackItemActivation, meddler);
  }
  ~RandomPanelUser() { GetColumnLayoutStore().clear(); }
  RandomPanelUser(const RandomPanelUser&) = delete;
  RandomPanelUser& operator=(const RandomPanelUser&) = delete;

  standalone::StandaloneHost& GetHost() noexcept { return host; }
  const Ref<BE::ISequence>& GetFirstSequence() const { return sequences.front(); }
  unsigned Pick(unsigned count) { return static_cast<unsigned>(random() % count); }

  /// The panel, opened if it is not open. What is called of it must be held, as a window does: it may
  /// be closed meanwhile.
  std::shared_ptr<SequenceIndexView> GetView() {
    auto view = std::dynamic_pointer_cast<SequenceIndexView>(host.OpenPanel());
    qelcore::messaging::AddWeakPtrListener(view->GetTree()->GetStationID(), meddler);
    return view;
  }

  /// Does something.
  void Step() {
    using User = RandomPanelUser;
    static constexpr std::array kActions = {&User::Activate,
                                            &User::Close,
                                            &User::Edit,
                                            &User::Edit,
                                            &User::RefreshFromThePool,
                                            &User::ChooseFilters,
                                            &User::Search,
                                            &User::Seek,
                                            &User::Seek,
                                            &User::Shuttle,
                                            &User::Play,
                                            &User::Play,
                                            &User::ClickRow,
                                            &User::ClickRow,
                                            &User::DragOverRows,
                                            &User::ContextClickRow,
                                            &User::PressKey,
                                            &User::PressKey,
                                            &User::Scroll,
                                            &User::Resize,
                                            &User::ChangeDuty,
                                            &User::ChangeTimelineFlag,
                                            &User::ChangeColumns,
                                            &User::Export,
                                            &User::Draw,
                                            &User::Reopen,
                                            &User::Wait,
                                            &User::RunQueue,
                                            &User::RunQueue,
                                            &User::RunQueue};
    isMeddling = true;
    (this->*kActions[Pick(kActions.size())])();
  }

  /// Waits for everything that was begun, and does nothing of its own before the next step.
  void Settle() {
    isMeddling = false;
    host.GetProject().StopPlayback();
    host.GetRuntime().Drain();
  }

 private:
  // Chance.

  Ref<BE::ISequence> PickSequence() { return sequences[Pick(kSequences)]; }
  std::uint32_t PickModifiers() {
    return (Pick(3) == 0 ? qelui::ui::kModifierShift : 0) |
           (Pick(3) == 0 ? qelui::ui::kModifierControl : 0);
  }
  /// Now and then off the frames, outside the clips, or negative.
  qelmediatypes::TickTime PickTime() {
    const std::int64_t frame = static_cast<std::int64_t>(Pick(kLongestFrame)) - kLongestFrame / 10;
    return drafts::Frame(frame) + qelmediatypes::TickTime(Pick(2));
  }

  Ref<standalone::PlayerNode> PickPlayer() {
    auto player = standalone::FindPlayer(PickSequence());
    if (player) qelcore::messaging::AddWeakPtrListener(player->GetStationID(), meddler);
    return player;
  }
  std::optional<std::size_t> PickRow(const SequenceIndexTree& tree) {
    const auto count = static_cast<unsigned>(tree.CountRows());
    return count == 0 || Pick(10) == 0 ? std::nullopt : std::optional<std::size_t>(Pick(count));
  }
  standalone::SequenceDraft MakeTimeline(const std::string& name) {
    auto draft = drafts::MakeSequence(name);
    for (unsigned track = Pick(4); track < 4; ++track) {
      const bool isVideo = track < 2;
      FillTrack(drafts::AddTrack(
                    draft, isVideo ? standalone::TrackKind::kVideo : standalone::TrackKind::kAudio),
                name);
    }
    return draft;
  }
  void FillTrack(standalone::TrackDraft& track, const std::string& name) {
    std::int64_t frame = 0;
    for (unsigned i = Pick(30); i > 0; --i) {
      frame += Pick(3) == 0 ? Pick(9) : 0;
      const std::int64_t end = frame + 1 + Pick(20);
      auto& clip = drafts::AddClip(track, name + (Pick(2) == 0 ? " a" : " b"), frame, end);
      clip.isDisabled = Pick(4) == 0;
      frame = end;
    }
  }

  static UTF8String HostPath(std::string path) {
    std::ranges::replace(path, '/', '\\');
    return UTF8String(path);
  }

  // Steps. Each does something that people, the host or other modules do.

  Ref<SequenceIndexTree> GetTree() { return GetView()->GetTree(); }
  void Activate() { host.GetProject().ActivateSequence(PickSequence()); }
  void Close() { host.GetProject().CloseSequence(PickSequence()); }
  void Edit() {
    const auto sequence = PickSequence();
    host.GetProject().ReplaceSequence(sequence, MakeTimeline("edit " + std::to_string(++edits)));
  }
  void RefreshFromThePool() {
    qelcore::threads::GetCPUBoundExecutor()->Submit(
        [tree = GetTree()] { tree->RefreshDataListsAndTreeViewAsync(); });
  }
  void ChooseFilters() {
    const auto view = GetView();
    view->GetFilterButton()->Click(Pick(8));
  }
  void Search() {
    static constexpr std::array kTexts{"", "", "a", "A", "edit", " b", "gap", "nothing"};
    const auto view = GetView();
    view->GetSearchField()->Type(UTF8String(kTexts[Pick(kTexts.size())]));
    if (Pick(2) == 0) view->GetSearchField()->Commit();
  }
  void Seek() {
    if (const auto player = PickPlayer()) player->SetCurrentPosition(PickTime());
  }
  void Shuttle() {
    static constexpr std::array kSpeeds{1, 2, 8, 0, -1, -4};
    if (const auto player = PickPlayer()) player->Play(kSpeeds[Pick(kSpeeds.size())]);
  }
  void Play() {
    if (const auto player = PickPlayer()) player->Advance(drafts::Frame(Pick(12)));
  }
  void ClickRow() {
    const auto tree = GetTree();
    tree->GetControl().Click(PickRow(*tree), PickModifiers());
  }
  void DragOverRows() {
    const auto tree = GetTree();
    if (const auto row = PickRow(*tree)) tree->GetControl().DragTo(*row, PickModifiers());
  }
  void ContextClickRow() {
    const auto tree = GetTree();
    tree->GetControl().ContextClick(PickRow(*tree));
  }
  void PressKey() {
    using standalone::RowMove;
    static constexpr std::array kMoves{RowMove::kUp,       RowMove::kDown,  RowMove::kPageUp,
                                       RowMove::kPageDown, RowMove::kFirst, RowMove::kLast};
    const auto tree = GetTree();
    auto& control = tree->GetControl();
    const unsigned key = Pick(kMoves.size() + 2);
    if (key < kMoves.size()) return control.MoveCurrent(kMoves[key], PickModifiers());
    if (key == kMoves.size()) return control.SelectCurrent(PickModifiers());
    control.SelectAll();
  }
  void Scroll() {
    const auto view = GetView();
    view->GetTree()->GetControl().ScrollTo(static_cast<std::int64_t>(Pick(3000)) - 500);
    view->GetRowScaleSlider()->DragTo(Pick(5) / 4.0);
  }
  void Resize() {
    const auto view = GetView();
    view->Resize(qelui::Rect{0, 0, 400.0F + Pick(800), 60.0F + Pick(900)});
  }
  void ChangeDuty() {
    const auto view = GetView();
    Pick(2) == 0 ? view->NowOnDuty() : view->NowOffDuty();
  }
  void ChangeTimelineFlag() {
    const auto view = GetView();
    view->GetUpdateSelectionCheckbox()->Click();
  }
  void ChangeColumns() {
    const auto header = GetTree()->GetHeaderRow();
    const auto count = static_cast<unsigned>(header->GetCountOfColumns());
    if (Pick(3) == 0) header->MoveColumnByUser(Pick(count), Pick(count));
    if (Pick(3) == 0) header->ResizeColumnByUser(Pick(count), static_cast<float>(Pick(300)));
    using qelui::ui::MouseButton;
    using qelui::ui::PointerAction;
    header->UI_DoMouseEvent({PointerAction::kPress, {}, MouseButton::kContextMenu, 1});
  }
  void Export() {
    const auto view = GetView();
    view->ExportSequenceIndex();
  }
  void Draw() {
    const auto view = GetView();
    const auto& tree = *view->GetTree();
    standalone::RecordingDrawbot drawbot;
    view->DrawBackground(drawbot);
    tree.GetHeaderRow()->UI_Draw(drawbot);
    for (const std::size_t position : tree.GetControl().GetVisiblePositions()) {
      DrawRow(tree, position, drawbot);
    }
  }
  static void DrawRow(const SequenceIndexTree& tree, std::size_t position, qelui::Drawbot& drawbot) {
    const auto top = static_cast<float>(tree.GetControl().GetTop(position));
    for (std::size_t column = 0; column < tree.GetHeaderRow()->GetCountOfColumns(); ++column) {
      tree.DrawCellOfRow(drawbot, tree.GetRow(position), column, {0, top, 100, 25});
    }
  }
  void Reopen() {
    if (Pick(3) == 0) host.ClosePanel();
    GetView();
  }
  void Wait() { std::this_thread::sleep_for(std::chrono::microseconds(Pick(300))); }
  void RunQueue() { host.GetRuntime().GetMainQueue().RunOne(); }

  // What happens inside of steps.

  void RunNestedLoop() {
    const standalone::MainQueue::NestedLoop loop(host.GetRuntime().GetMainQueue());
    for (unsigned i = Pick(4); i > 0; --i) RunQueue();
  }
  void Meddle() {
    if (!isMeddling || meddlingDepth >= 2 || Pick(8) != 0) return;
    ++meddlingDepth;
    RunNestedLoop();
    Step();
    --meddlingDepth;
  }
  std::optional<MZ::SequenceIndex::Options> AnswerOptions() {
    RunNestedLoop();
    if (Pick(3) == 0) return std::nullopt;
    MZ::SequenceIndex::Options options;
    options.isKeepingGaps = Pick(2) == 0;
    options.matchMode = Pick(2);
    options.shortGapThreshold = static_cast<std::int32_t>(Pick(12)) - 1;
    for (auto& [id, isOn] : options.filterToggles) isOn = Pick(40) == 0;
    return options;
  }

  std::mt19937 random;
  const process::Folder folder;
  standalone::StandaloneHost host;
  Answers answers;
  std::vector<Ref<BE::ISequence>> sequences;
  std::shared_ptr<Meddler> meddler = std::make_shared<Meddler>([this] { Meddle(); });
  unsigned edits = 0;
  unsigned meddlingDepth = 0;
  bool isMeddling = false;
};

}  // namespace Vantrel
