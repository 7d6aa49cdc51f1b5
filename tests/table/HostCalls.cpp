#include "support/HostCalls.h"

#include <functional>
#include <memory>
#include <utility>

#include "host/BE/Utilities.h"
#include "host/BE/VisitSequence.h"
#include "host/qelcore/Files.h"
#include "host/qelcore/Future.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Threads.h"
#include "host/qelui/Menu.h"
#include "host/qelui/MultiColumnTree.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "support/HostFaults.h"
#include "support/LocalizerHostCalls.h"
#include "table/ScheduleWatch.h"

using hostcalls::Called;
using hostcalls::Real;

namespace BE {

void VisitSequence(const qelcore::Ref<ISequence>& sequence, const SequenceVisitor& visitor) {
  Called("VisitSequence");
  const ScheduleWatch* const watch = ScheduleWatch::installed;
  if (watch != nullptr && watch->visit) watch->visit(visitor);
  using Function = void (*)(const qelcore::Ref<ISequence>&, const SequenceVisitor&);
  static const auto real = Real<Function>(
      "_ZN2BE13VisitSequenceERKN7qelcore3RefINS_9ISequenceEEERKSt8functionIFNS_13VisitorStatusERNS0_"
      "8IUnknownEEE");
  real(sequence, visitor);
}

qelmediatypes::TickTime SequenceUtils::GetZeroPoint(const qelcore::Ref<ISequence>& sequence) {
  Called("GetZeroPoint");
  using Function = qelmediatypes::TickTime (*)(const qelcore::Ref<ISequence>&);
  static const auto real =
      Real<Function>("_ZN2BE13SequenceUtils12GetZeroPointERKN7qelcore3RefINS_9ISequenceEEE");
  return real(sequence);
}

}  // namespace BE

namespace qelcore::threads {

void RecursiveMutex::Lock(const char* name, std::chrono::milliseconds limit) {
  Called("Lock", name, limit);
  using Function = void (*)(RecursiveMutex*, const char*, std::chrono::milliseconds);
  static const auto real = Real<Function>(
      "_ZN7qelcore7threads14RecursiveMutex4LockEPKcNSt6chrono8durationIlSt5ratioILl1ELl1000EEEE");
  real(this, name, limit);
}

void RecursiveMutex::Unlock() noexcept {
  Called("Unlock");
  using Function = void (*)(RecursiveMutex*);
  static const auto real = Real<Function>("_ZN7qelcore7threads14RecursiveMutex6UnlockEv");
  real(this);
}

void CallFromMainThread(std::function<void()> function, unsigned delayMilliseconds,
                        bool alsoInNestedLoops) {
  Called("CallFromMainThread", delayMilliseconds, alsoInNestedLoops);
  using Function = void (*)(std::function<void()>, unsigned, bool);
  static const auto real =
      Real<Function>("_ZN7qelcore7threads18CallFromMainThreadESt8functionIFvvEEjb");
  real(std::move(function), delayMilliseconds, alsoInNestedLoops);
}

std::shared_ptr<AsyncExecutor> GetCPUBoundExecutor() {
  Called("GetCPUBoundExecutor");
  using Function = std::shared_ptr<AsyncExecutor> (*)();
  static const auto real = Real<Function>("_ZN7qelcore7threads19GetCPUBoundExecutorEv");
  return real();
}

std::shared_ptr<AsyncThreadedSubExecutor> CreateQueueBasedSubExecutor(
    const std::shared_ptr<AsyncExecutor>& executor, int concurrency) {
  Called("CreateQueueBasedSubExecutor", concurrency);
  using Function =
      std::shared_ptr<AsyncThreadedSubExecutor> (*)(const std::shared_ptr<AsyncExecutor>&, int);
  static const auto real = Real<Function>(
      "_ZN7qelcore7threads27CreateQueueBasedSubExecutorERKSt10shared_ptrINS0_13AsyncExecutorEEi");
  auto made = real(executor, concurrency);
  if (ScheduleWatch* const watch = ScheduleWatch::installed) {
    watch->baseExecutor = executor;
    watch->concurrency = concurrency;
    watch->subExecutor = made;
  }
  return made;
}

}  // namespace qelcore::threads

namespace qelcore::async {

Future<void> AsyncWithExecutorAndContinuationExecutorAndDelay(
    const std::shared_ptr<threads::AsyncExecutor>& executor, std::chrono::milliseconds delay,
    const std::shared_ptr<threads::AsyncExecutor>& continuationExecutor,
    std::function<void()> function) {
  Called("Schedule");
  const std::shared_ptr<threads::AsyncExecutor>* runsOn = &executor;
  if (ScheduleWatch* const watch = ScheduleWatch::installed) {
    watch->executor = executor;
    watch->continuationExecutor = continuationExecutor;
    watch->delay = delay;
    if (watch->executorInstead != nullptr) runsOn = &watch->executorInstead;
  }
  using Function =
      Future<void> (*)(const std::shared_ptr<threads::AsyncExecutor>&, std::chrono::milliseconds,
                       const std::shared_ptr<threads::AsyncExecutor>&, std::function<void()>);
  static const auto real = Real<Function>(
      "_ZN7qelcore5async48AsyncWithExecutorAndContinuationExecutorAndDelayERKSt10shared_ptrINS_"
      "7threads13AsyncExecutorEENSt6chrono8durationIlSt5ratioILl1ELl1000EEEES6_St8functionIFvvEE");
  return real(*runsOn, delay, continuationExecutor, std::move(function));
}

}  // namespace qelcore::async

namespace qelcore::messaging {

void RegisterStation(const StationID& station) {
  Called("RegisterStation");
  using Function = void (*)(const StationID&);
  static const auto real =
      Real<Function>("_ZN7qelcore9messaging15RegisterStationERKNS_7utility15ImmutableStringE");
  real(station);
}

void DisposeStation(const StationID& station) noexcept {
  Called("DisposeStation");
  using Function = void (*)(const StationID&);
  static const auto real =
      Real<Function>("_ZN7qelcore9messaging14DisposeStationERKNS_7utility15ImmutableStringE");
  real(station);
}

}  // namespace qelcore::messaging

namespace qelcore::filesupport {

void File::Create(bool failIfExists) {
  Called("Create", failIfExists);
  using Function = void (*)(File*, bool);
  static const auto real = Real<Function>("_ZN7qelcore11filesupport4File6CreateEb");
  real(this, failIfExists);
}

void OPlatformByteStream::WriteBlock(const void* data, std::uint32_t size) {
  Called("WriteBlock", size);
  using Function = void (*)(OPlatformByteStream*, const void*, std::uint32_t);
  static const auto real =
      Real<Function>("_ZN7qelcore11filesupport19OPlatformByteStream10WriteBlockEPKvj");
  real(this, data, size);
}

void OPlatformByteStream::Close() {
  Called("Close");
  using Function = void (*)(OPlatformByteStream*);
  static const auto real = Real<Function>("_ZN7qelcore11filesupport19OPlatformByteStream5CloseEv");
  real(this);
}

}  // namespace qelcore::filesupport

namespace qelui::controls {

void UI_MultiColumnTree::SetWantsKeyboardFocus(bool wantsFocus) {
  Called("SetWantsKeyboardFocus", wantsFocus);
  using Function = void (*)(UI_MultiColumnTree*, bool);
  static const auto real =
      Real<Function>("_ZN5qelui8controls18UI_MultiColumnTree21SetWantsKeyboardFocusEb");
  real(this, wantsFocus);
}

void UI_MultiColumnTree::SetSupportMultipleSelections(bool isSupported) {
  Called("SetSupportMultipleSelections", isSupported);
  using Function = void (*)(UI_MultiColumnTree*, bool);
  static const auto real =
      Real<Function>("_ZN5qelui8controls18UI_MultiColumnTree28SetSupportMultipleSelectionsEb");
  real(this, isSupported);
}

void UI_MultiColumnTree::SetHeaderRow(const qelcore::Ref<UI_MultiColumnTreeHeaderRow>& headerRow) {
  Called("SetHeaderRow");
  using Function = void (*)(UI_MultiColumnTree*, const qelcore::Ref<UI_MultiColumnTreeHeaderRow>&);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls18UI_MultiColumnTree12SetHeaderRowERKN7qelcore3RefINS0_"
      "27UI_MultiColumnTreeHeaderRowEEE");
  real(this, headerRow);
}

void UI_MultiColumnTree::RemoveAllRows(bool isNotifying, bool isRedrawing) {
  Called("RemoveAllRows", isNotifying, isRedrawing);
  using Function = void (*)(UI_MultiColumnTree*, bool, bool);
  static const auto real = Real<Function>("_ZN5qelui8controls18UI_MultiColumnTree13RemoveAllRowsEbb");
  real(this, isNotifying, isRedrawing);
}

UI_MultiColumnTree::Row* UI_MultiColumnTree::CreateAndAppendRow(Row* parent, bool isVisible,
                                                                bool isDeferringLayout) {
  Called("CreateAndAppendRow", parent == nullptr ? "null" : "row", isVisible, isDeferringLayout);
  using Function = Row* (*)(UI_MultiColumnTree*, Row*, bool, bool);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls18UI_MultiColumnTree18CreateAndAppendRowEPNS0_21UI_MultiColumnTreeRowEbb");
  return real(this, parent, isVisible, isDeferringLayout);
}

void UI_MultiColumnTree::LayoutAfterAppendRow() {
  Called("LayoutAfterAppendRow");
  using Function = void (*)(UI_MultiColumnTree*);
  static const auto real =
      Real<Function>("_ZN5qelui8controls18UI_MultiColumnTree20LayoutAfterAppendRowEv");
  real(this);
}

void UI_MultiColumnTree::ScrollRowIntoView(Row* row, bool isAligningToTop, bool isImmediate,
                                           bool isRedrawing) {
  Called("ScrollRowIntoView", GetRowIndex(row), isAligningToTop, isImmediate, isRedrawing);
  using Function = void (*)(UI_MultiColumnTree*, Row*, bool, bool, bool);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls18UI_MultiColumnTree17ScrollRowIntoViewEPNS0_21UI_MultiColumnTreeRowEbbb");
  real(this, row, isAligningToTop, isImmediate, isRedrawing);
}

std::size_t UI_MultiColumnTreeHeaderRow::GetCountOfColumns() const {
  if (hostcalls::headerRowsHaveNoColumns) return 0;
  using Function = std::size_t (*)(const UI_MultiColumnTreeHeaderRow*);
  static const auto real =
      Real<Function>("_ZNK5qelui8controls27UI_MultiColumnTreeHeaderRow17GetCountOfColumnsEv");
  return real(this);
}

void UI_MultiColumnTreeHeaderRow::AppendColumn(const qelcore::UTF8String& text, std::uint32_t id) {
  Called("AppendColumn", text.View(), id);
  using Function = void (*)(UI_MultiColumnTreeHeaderRow*, const qelcore::UTF8String&, std::uint32_t);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls27UI_MultiColumnTreeHeaderRow12AppendColumnERKN7qelcore10UTF8StringEj");
  real(this, text, id);
}

void UI_MultiColumnTreeHeaderRow::RemoveColumn(std::uint32_t id) {
  Called("RemoveColumn", id);
  using Function = void (*)(UI_MultiColumnTreeHeaderRow*, std::uint32_t);
  static const auto real =
      Real<Function>("_ZN5qelui8controls27UI_MultiColumnTreeHeaderRow12RemoveColumnEj");
  real(this, id);
}

void UI_MultiColumnTreeHeaderRow::SetColumnName(std::uint32_t id, const qelcore::UTF8String& text) {
  Called("SetColumnName", id, text.View());
  using Function = void (*)(UI_MultiColumnTreeHeaderRow*, std::uint32_t, const qelcore::UTF8String&);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls27UI_MultiColumnTreeHeaderRow13SetColumnNameEjRKN7qelcore10UTF8StringE");
  real(this, id, text);
}

void UI_MultiColumnTreeHeaderRow::SetColumnWidth(std::uint32_t id, float width) {
  Called("SetColumnWidth", id, width);
  using Function = void (*)(UI_MultiColumnTreeHeaderRow*, std::uint32_t, float);
  static const auto real =
      Real<Function>("_ZN5qelui8controls27UI_MultiColumnTreeHeaderRow14SetColumnWidthEjf");
  real(this, id, width);
}

void UI_MultiColumnTreeHeaderRow::SetAllowColumnMovingByUser(bool isAllowed,
                                                             bool includingFirstColumn) {
  Called("SetAllowColumnMovingByUser", isAllowed, includingFirstColumn);
  using Function = void (*)(UI_MultiColumnTreeHeaderRow*, bool, bool);
  static const auto real =
      Real<Function>("_ZN5qelui8controls27UI_MultiColumnTreeHeaderRow26SetAllowColumnMovingByUserEbb");
  real(this, isAllowed, includingFirstColumn);
}

void UI_MultiColumnTreeHeaderRow::ShowSortIndicator(bool isShown) {
  Called("ShowSortIndicator", isShown);
  using Function = void (*)(UI_MultiColumnTreeHeaderRow*, bool);
  static const auto real =
      Real<Function>("_ZN5qelui8controls27UI_MultiColumnTreeHeaderRow17ShowSortIndicatorEb");
  real(this, isShown);
}

}  // namespace qelui::controls

namespace qelui::ui {

std::uint32_t UI_DoContextMenu(const std::shared_ptr<IOSMenu>& menu, UI_Node& node, Point position) {
  using Function = std::uint32_t (*)(const std::shared_ptr<IOSMenu>&, UI_Node&, Point);
  static const auto real = Real<Function>(
      "_ZN5qelui2ui16UI_DoContextMenuERKSt10shared_ptrINS0_7IOSMenuEERNS0_7UI_NodeENS_5PointE");
  const std::uint32_t chosen = real(menu, node, position);
  if (hostcalls::menusToggleTheChosenItem) menu->SetItemChecked(chosen, !menu->IsItemChecked(chosen));
  return chosen;
}

}  // namespace qelui::ui
