#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include "host/BE/VisitSequence.h"
#include "host/HSL/Handler.h"
#include "host/MZ/Sequences.h"
#include "host/UIF/ShortcutManager.h"
#include "host/UIF/TabView.h"
#include "host/UIF/Windows.h"
#include "host/qelcore/Files.h"
#include "host/qelcore/Future.h"
#include "host/qelcore/Messaging.h"
#include "host/qelui/Controls.h"
#include "host/qelui/Node.h"
#include "host/qelui/Theme.h"
#include "support/HostCalls.h"
#include "support/HostFaults.h"

// The calls that a panel makes, watched: definitions, for exactly one source of a test program.

using hostcalls::Called;
using hostcalls::Real;

namespace BE {

void VisitSequence(const qelcore::Ref<ISequence>& sequence, const SequenceVisitor& visitor) {
  Called("VisitSequence");
  using Function = void (*)(const qelcore::Ref<ISequence>&, const SequenceVisitor&);
  static const auto real = Real<Function>(
      "_ZN2BE13VisitSequenceERKN7qelcore3RefINS_9ISequenceEEERKSt8functionIFNS_13VisitorStatusERNS0_"
      "8IUnknownEEE");
  real(sequence, visitor);
}

}  // namespace BE

namespace MZ {

qelcore::Ref<BE::IProject> GetActiveProject() {
  if (hostcalls::activeProjectInstead) return *hostcalls::activeProjectInstead;
  using Function = qelcore::Ref<BE::IProject> (*)();
  static const auto real = Real<Function>("_ZN2MZ16GetActiveProjectEv");
  return real();
}

}  // namespace MZ

namespace HSL {

void Handler::PostSharedPtrInit() {
  Called("PostSharedPtrInit");
  using Function = void (*)(Handler*);
  static const auto real = Real<Function>("_ZN3HSL7Handler17PostSharedPtrInitEv");
  real(this);
}

}  // namespace HSL

namespace UIF {

void AddWindowClass(std::string_view windowTypeID, std::string_view handlerID, WindowClassType type) {
  Called("AddWindowClass", windowTypeID, handlerID, static_cast<std::uint32_t>(type));
  using Function = void (*)(std::string_view, std::string_view, WindowClassType);
  static const auto real = Real<Function>(
      "_ZN3UIF14AddWindowClassESt17basic_string_viewIcSt11char_traitsIcEES3_NS_15WindowClassTypeE");
  real(windowTypeID, handlerID, type);
}

void RemoveWindowClass(std::string_view windowTypeID) noexcept {
  Called("RemoveWindowClass", windowTypeID);
  using Function = void (*)(std::string_view);
  static const auto real =
      Real<Function>("_ZN3UIF17RemoveWindowClassESt17basic_string_viewIcSt11char_traitsIcEE");
  real(windowTypeID);
}

void AddWindow(std::string_view windowTypeID, std::uint32_t windowID, const qelcore::UTF8String& title,
               std::uint32_t windowContextID) {
  Called("AddWindow", windowTypeID, windowID, title.View(), windowContextID);
  using Function = void (*)(std::string_view, std::uint32_t, const qelcore::UTF8String&, std::uint32_t);
  static const auto real = Real<Function>(
      "_ZN3UIF9AddWindowESt17basic_string_viewIcSt11char_traitsIcEEjRKN7qelcore10UTF8StringEj");
  real(windowTypeID, windowID, title, windowContextID);
}

void ShortcutManager::AddWindowMenuID(std::string_view id, const qelcore::UTF8String& title,
                                      std::string_view wingMenuID) {
  Called("AddWindowMenuID", id, title.View(), wingMenuID);
  using Function =
      void (*)(ShortcutManager*, std::string_view, const qelcore::UTF8String&, std::string_view);
  static const auto real = Real<Function>(
      "_ZN3UIF15ShortcutManager15AddWindowMenuIDESt17basic_string_viewIcSt11char_traitsIcEERKN7qelcore"
      "10UTF8StringES4_");
  real(this, id, title, wingMenuID);
}

std::shared_ptr<CommandContext> ShortcutManager::GetContext(std::string_view id) const {
  Called("GetContext", id);
  using Function = std::shared_ptr<CommandContext> (*)(const ShortcutManager*, std::string_view);
  static const auto real = Real<Function>(
      "_ZNK3UIF15ShortcutManager10GetContextESt17basic_string_viewIcSt11char_traitsIcEE");
  return real(this, id);
}

std::shared_ptr<CommandContext> ShortcutManager::AddContext(std::string_view id,
                                                            const qelcore::UTF8String& title) {
  Called("AddContext", id, title.View());
  using Function = std::shared_ptr<CommandContext> (*)(ShortcutManager*, std::string_view,
                                                       const qelcore::UTF8String&);
  static const auto real = Real<Function>(
      "_ZN3UIF15ShortcutManager10AddContextESt17basic_string_viewIcSt11char_traitsIcEERKN7qelcore"
      "10UTF8StringE");
  return real(this, id, title);
}

void TabView::Create(std::string_view handlerID, const qelcore::UTF8String& title,
                     const std::shared_ptr<WorkspaceFrame>& frame, bool isActivated) {
  Called("Create tab", handlerID, title.View(), isActivated);
  using Function = void (*)(TabView*, std::string_view, const qelcore::UTF8String&,
                            const std::shared_ptr<WorkspaceFrame>&, bool);
  static const auto real = Real<Function>(
      "_ZN3UIF7TabView6CreateESt17basic_string_viewIcSt11char_traitsIcEERKN7qelcore10UTF8StringERKSt10"
      "shared_ptrINS_14WorkspaceFrameEEb");
  real(this, handlerID, title, frame, isActivated);
}

void TabView::SetName(const qelcore::UTF8String& title) {
  Called("SetName", title.View());
  using Function = void (*)(TabView*, const qelcore::UTF8String&);
  static const auto real = Real<Function>("_ZN3UIF7TabView7SetNameERKN7qelcore10UTF8StringE");
  real(this, title);
}

void TabView::SetHasQELChildViews(bool hasChildViews) {
  Called("SetHasQELChildViews", hasChildViews);
  using Function = void (*)(TabView*, bool);
  static const auto real = Real<Function>("_ZN3UIF7TabView19SetHasQELChildViewsEb");
  real(this, hasChildViews);
}

void TabView::EnableDoubleBuffering(bool isEnabled) {
  Called("EnableDoubleBuffering", isEnabled);
  using Function = void (*)(TabView*, bool);
  static const auto real = Real<Function>("_ZN3UIF7TabView21EnableDoubleBufferingEb");
  real(this, isEnabled);
}

void TabView::AddChildView(const qelcore::Ref<qelui::ui::UI_SubView>& control) {
  Called("AddChildView");
  using Function = void (*)(TabView*, const qelcore::Ref<qelui::ui::UI_SubView>&);
  static const auto real =
      Real<Function>("_ZN3UIF7TabView12AddChildViewERKN7qelcore3RefIN5qelui2ui10UI_SubViewEEE");
  real(this, control);
}

}  // namespace UIF

namespace qelui::ui {

void UI_Node::UI_SetEnabled(bool isEnabled) {
  Called("UI_SetEnabled", isEnabled);
  using Function = void (*)(UI_Node*, bool);
  static const auto real = Real<Function>("_ZN5qelui2ui7UI_Node13UI_SetEnabledEb");
  real(this, isEnabled);
}

}  // namespace qelui::ui

namespace qelui::controls {

qelcore::UTF8String UI_TextEdit::GetValueUTF8() const {
  Called("GetValueUTF8");
  using Function = qelcore::UTF8String (*)(const UI_TextEdit*);
  static const auto real = Real<Function>("_ZNK5qelui8controls11UI_TextEdit12GetValueUTF8Ev");
  return real(this);
}

}  // namespace qelui::controls

namespace qelui::skins {

bool IsRunningV7OrBeyond() {
  if (hostcalls::isRunningAnOldSkin) return false;
  static const auto real = Real<bool (*)()>("_ZN5qelui5skins19IsRunningV7OrBeyondEv");
  return real();
}

}  // namespace qelui::skins

namespace qelcore::messaging {

void AddWeakPtrListener(const StationID& station, const std::weak_ptr<Listener>& listener) {
  Called("AddWeakPtrListener", station.View());
  using Function = void (*)(const StationID&, const std::weak_ptr<Listener>&);
  static const auto real = Real<Function>(
      "_ZN7qelcore9messaging18AddWeakPtrListenerERKNS_7utility15ImmutableStringERKSt8weak_ptrINS0_"
      "8ListenerEE");
  real(station, listener);
}

void RemoveListener(const StationID& station, const std::weak_ptr<Listener>& listener) {
  Called("RemoveListener", station.View());
  using Function = void (*)(const StationID&, const std::weak_ptr<Listener>&);
  static const auto real = Real<Function>(
      "_ZN7qelcore9messaging14RemoveListenerERKNS_7utility15ImmutableStringERKSt8weak_ptrINS0_"
      "8ListenerEE");
  real(station, listener);
}

}  // namespace qelcore::messaging

namespace qelcore::async {

Future<void> AsyncWithExecutorAndContinuationExecutorAndDelay(
    const std::shared_ptr<threads::AsyncExecutor>& executor, std::chrono::milliseconds delay,
    const std::shared_ptr<threads::AsyncExecutor>& continuationExecutor,
    std::function<void()> function) {
  Called("Schedule");
  using Function =
      Future<void> (*)(const std::shared_ptr<threads::AsyncExecutor>&, std::chrono::milliseconds,
                       const std::shared_ptr<threads::AsyncExecutor>&, std::function<void()>);
  static const auto real = Real<Function>(
      "_ZN7qelcore5async48AsyncWithExecutorAndContinuationExecutorAndDelayERKSt10shared_ptrINS_"
      "7threads13AsyncExecutorEENSt6chrono8durationIlSt5ratioILl1ELl1000EEEES6_St8functionIFvvEE");
  return real(executor, delay, continuationExecutor, std::move(function));
}

}  // namespace qelcore::async

namespace qelcore::filesupport {

void File::Create(bool failIfExists) {
  Called("Create file", GetPathUTF8().View(), failIfExists);
  using Function = void (*)(File*, bool);
  static const auto real = Real<Function>("_ZN7qelcore11filesupport4File6CreateEb");
  real(this, failIfExists);
}

}  // namespace qelcore::filesupport
