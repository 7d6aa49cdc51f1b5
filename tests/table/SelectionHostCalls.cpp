#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "host/MZ/Sequences.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Threads.h"
#include "host/qelui/MultiColumnTree.h"
#include "support/HostCalls.h"
#include "table/SelectionWatch.h"

using hostcalls::Called;
using hostcalls::Real;

namespace MZ {

qelcore::Ref<ML::IPlayer> GetSequencePlayer(const qelcore::Ref<BE::ISequence>& sequence,
                                            int playbackPreference) {
  Called("GetSequencePlayer", playbackPreference);
  const SelectionWatch* const watch = SelectionWatch::installed;
  if (watch != nullptr && watch->player) return *watch->player;
  using Function = qelcore::Ref<ML::IPlayer> (*)(const qelcore::Ref<BE::ISequence>&, int);
  static const auto real =
      Real<Function>("_ZN2MZ17GetSequencePlayerERKN7qelcore3RefIN2BE9ISequenceEEEi");
  return real(sequence, playbackPreference);
}

}  // namespace MZ

namespace qelcore::threads {

bool CurrentThreadIsMainThread() noexcept {
  const SelectionWatch* const watch = SelectionWatch::installed;
  if (watch != nullptr && watch->isOffMainThread) return false;
  static const auto real = Real<bool (*)()>("_ZN7qelcore7threads25CurrentThreadIsMainThreadEv");
  return real();
}

}  // namespace qelcore::threads

namespace qelcore::messaging {

void AddWeakPtrListener(const StationID& station, const std::weak_ptr<Listener>& listener) {
  Called("AddWeakPtrListener");
  using Function = void (*)(const StationID&, const std::weak_ptr<Listener>&);
  static const auto real = Real<Function>(
      "_ZN7qelcore9messaging18AddWeakPtrListenerERKNS_7utility15ImmutableStringERKSt8weak_ptrINS0_"
      "8ListenerEE");
  real(station, listener);
}

void RemoveListener(const StationID& station, const std::weak_ptr<Listener>& listener) {
  Called("RemoveListener");
  using Function = void (*)(const StationID&, const std::weak_ptr<Listener>&);
  static const auto real = Real<Function>(
      "_ZN7qelcore9messaging14RemoveListenerERKNS_7utility15ImmutableStringERKSt8weak_ptrINS0_"
      "8ListenerEE");
  real(station, listener);
}

void BroadcastMessageOnMainThread(const StationID& station, const Message& message) {
  Called("BroadcastMessageOnMainThread", station.View());
  using Function = void (*)(const StationID&, const Message&);
  static const auto real = Real<Function>(
      "_ZN7qelcore9messaging28BroadcastMessageOnMainThreadERKNS_7utility15ImmutableStringERKNS0_"
      "7MessageE");
  real(station, message);
}

void AsyncBroadcastMessagePtr(const StationID& station, std::shared_ptr<const Message> message) {
  Called("AsyncBroadcastMessagePtr", station.View());
  using Function = void (*)(const StationID&, std::shared_ptr<const Message>);
  static const auto real = Real<Function>(
      "_ZN7qelcore9messaging24AsyncBroadcastMessagePtrERKNS_7utility15ImmutableStringESt10shared_"
      "ptrIKNS0_7MessageEE");
  real(station, std::move(message));
}

}  // namespace qelcore::messaging

namespace qelui::controls {

void UI_MultiColumnTree::SetRowsSelectionChangedCallback(SharedRowsSelectionChangedFunction callback) {
  Called("SetRowsSelectionChangedCallback");
  if (SelectionWatch* const watch = SelectionWatch::installed) watch->rowsSelectionChanged = callback;
  using Function = void (*)(UI_MultiColumnTree*, SharedRowsSelectionChangedFunction);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls18UI_MultiColumnTree31SetRowsSelectionChangedCallbackESt10shared_"
      "ptrIKSt8functionIFvRKSt6vectorIPNS0_21UI_MultiColumnTreeRowESaIS6_EEEEE");
  real(this, std::move(callback));
}

void UI_MultiColumnTree::SetRowVisibilityChangedCallback(SharedRowVisibilityChangedFunction callback) {
  Called("SetRowVisibilityChangedCallback");
  if (SelectionWatch* const watch = SelectionWatch::installed) watch->rowVisibilityChanged = callback;
  using Function = void (*)(UI_MultiColumnTree*, SharedRowVisibilityChangedFunction);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls18UI_MultiColumnTree31SetRowVisibilityChangedCallbackESt10shared_"
      "ptrIKSt8functionIFvPNS0_21UI_MultiColumnTreeRowEEEE");
  real(this, std::move(callback));
}

bool UI_MultiColumnTree::IsRowVisible(const Row* row) const {
  Called("IsRowVisible");
  using Function = bool (*)(const UI_MultiColumnTree*, const Row*);
  static const auto real = Real<Function>(
      "_ZNK5qelui8controls18UI_MultiColumnTree12IsRowVisibleEPKNS0_21UI_MultiColumnTreeRowE");
  return real(this, row);
}

std::size_t UI_MultiColumnTree::CountRows() const {
  Called("CountRows");
  using Function = std::size_t (*)(const UI_MultiColumnTree*);
  static const auto real = Real<Function>("_ZNK5qelui8controls18UI_MultiColumnTree9CountRowsEv");
  return real(this);
}

std::vector<UI_MultiColumnTree::Row*> UI_MultiColumnTree::GetSelectedRows() const {
  Called("GetSelectedRows");
  using Function = std::vector<Row*> (*)(const UI_MultiColumnTree*);
  static const auto real = Real<Function>("_ZNK5qelui8controls18UI_MultiColumnTree15GetSelectedRowsEv");
  std::vector<Row*> rows = real(this);
  const SelectionWatch* const watch = SelectionWatch::installed;
  if (watch != nullptr && watch->isReversingSelectedRows) std::ranges::reverse(rows);
  return rows;
}

void UI_MultiColumnTree::SelectRow(Row* row, bool isExtending) {
  Called("SelectRow", GetRowIndex(row), isExtending);
  using Function = void (*)(UI_MultiColumnTree*, Row*, bool);
  static const auto real =
      Real<Function>("_ZN5qelui8controls18UI_MultiColumnTree9SelectRowEPNS0_21UI_MultiColumnTreeRowEb");
  real(this, row, isExtending);
}

void UI_MultiColumnTree::DeselectAllRows(bool isNotifying) {
  Called("DeselectAllRows", isNotifying);
  using Function = void (*)(UI_MultiColumnTree*, bool);
  static const auto real = Real<Function>("_ZN5qelui8controls18UI_MultiColumnTree15DeselectAllRowsEb");
  real(this, isNotifying);
}

}  // namespace qelui::controls
