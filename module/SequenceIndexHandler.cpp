#include "module/SequenceIndexHandler.h"

#include "data/LocalizedText.h"
#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
#include "host/UIF/ShortcutManager.h"
#include "host/UIF/Windows.h"
#include "host/qelappsupport/Features.h"
#include "host/qelcore/Localizer.h"
#include "module/FeatureFlag.h"
#include "table/MessageIDs.h"
#include "view/SequenceIndexView.h"
#include "view/WingMenu.h"

namespace Vantrel {

namespace {

constexpr UIF::WindowClassType kDockablePanel{1};
constexpr bool kIsActivated = true;

const qelcore::UTF8String& GetNoSequenceTitle() {
  static const auto title = Localize(
      "$$$/Corvel/Handlers/SequenceIndex/SequenceIndexTabViewTitleNoSeq="
      "Sequence Index: (no sequence)#{comment}QELMX-4248997");
  return title;
}

}  // namespace

SequenceIndexHandler::WindowClassRegistration::WindowClassRegistration() {
  UIF::AddWindowClass(UIF::kSequenceIndexWindowTypeID, HSL::kSequenceIndexHandlerID, kDockablePanel);
}

SequenceIndexHandler::WindowClassRegistration::~WindowClassRegistration() {
  UIF::RemoveWindowClass(UIF::kSequenceIndexWindowTypeID);
}

SequenceIndexHandler::SequenceIndexHandler(const qelcore::UTF8String& handlerID)
    : HSL::Handler(handlerID, HSL::kSequenceIndexHandlerID, 0) {
  static const auto title = Localize(
      "$$$/Corvel/Handlers/SequenceIndex/SequenceIndexTitle=Sequence Index#{comment}QELMX-4248997");
  UIF::AddWindow(UIF::kSequenceIndexWindowTypeID, UIF::kDefaultWindowID, title,
                 UIF::kDefaultWindowContextID);
  UIF::ShortcutManager::Instance().AddWindowMenuID(kSequenceIndexFeatureName, title, kWingMenuID);
}

SequenceIndexHandler::~SequenceIndexHandler() = default;

std::shared_ptr<SequenceIndexHandler> SequenceIndexHandler::Find() {
  return std::dynamic_pointer_cast<SequenceIndexHandler>(
      HSL::Handler::FindHandler(HSL::kSequenceIndexHandlerID));
}

bool SequenceIndexHandler::FindCommandStatus(UIF::CommandID id, bool& isEnabled) {
  return UIF::CommandHandler::FindCommandStatus(id, isEnabled);
}

bool SequenceIndexHandler::ObeyCommand(const UIF::Command& command) {
  return HSL::Handler::ObeyCommand(command);
}

std::string_view SequenceIndexHandler::GetCommandContextName() const {
  return kSequenceIndexFeatureName;
}

std::shared_ptr<UIF::TabView> SequenceIndexHandler::CreateTabView(
    const std::shared_ptr<UIF::WorkspaceFrame>& frame) {
  const qelcore::UTF8String& noSequenceTitle = GetNoSequenceTitle();
  view = qelcore::memory::MakeShareable<SequenceIndexView>(SharedFrom(this));
  view->SubscribeToStations();
  view->Create(HSL::kSequenceIndexHandlerID, noSequenceTitle, frame, kIsActivated);
  if (const auto sequence = MZ::GetActiveSequence()) SetTitle(sequence);
  SubscribeToStations();
  return view;
}

bool SequenceIndexHandler::ShouldRestoreWithWorkspace() const {
  return true;
}

void SequenceIndexHandler::SubscribeToStations() {
  const std::weak_ptr<qelcore::messaging::Listener> self = SharedFrom(this);
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_Info, self);
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_SequenceActivation, self);
  const auto notification = qelcore::RequireInterface<BE::INotification>(MZ::GetActiveProject());
  qelcore::messaging::AddWeakPtrListener(notification->GetStationID(), self);
}

void SequenceIndexHandler::ReceiveMessage(const qelcore::messaging::Message& message) {
  if (view == nullptr) return;
  const auto id = message.GetID();
  if (id == MessageIDOf<BE::MessageNameForProjectClosedMessage>()) {
    SetTitle({});
  } else if (id == MessageIDOf<BE::MessageNameForSequenceChangedMessage>()) {
    SetTitle(static_cast<const BE::SequenceChangedMessage&>(message).GetSequence());
  } else if (id == MessageIDOf<MZ::MessageNameForSequenceActivatedMessage>()) {
    const auto& sequence = static_cast<const MZ::SequenceActivatedMessage&>(message).GetSequence();
    if (sequence) SetTitle(sequence);
  } else if (id == MessageIDOf<MZ::MessageNameForSequenceClosedMessage>()) {
    // The title keeps the name of the sequence that was closed until another one is activated.
    const auto& sequence = static_cast<const MZ::SequenceClosedMessage&>(message).GetSequence();
    if (sequence) SetTitle(sequence);
  }
}

void SequenceIndexHandler::SetTitle(const qelcore::Ref<BE::ISequence>& sequence) {
  view->SetName(MakeTabViewTitle(sequence));
}

std::shared_ptr<HSL::Handler> CreateSequenceIndexHandler(const qelcore::UTF8String& handlerID) {
  if (!qelappsupport::feature::IsFeatureEnabled(kSequenceIndexFeatureName)) return nullptr;
  auto handler = qelcore::memory::MakeShareable<SequenceIndexHandler>(handlerID);
  handler->PostSharedPtrInit();
  return handler;
}

qelcore::UTF8String MakeTabViewTitle(const qelcore::Ref<BE::ISequence>& sequence) {
  if (!sequence) return GetNoSequenceTitle();
  static const auto title = Localize(
      "$$$/Corvel/Handlers/SequenceIndex/SequenceIndexTabViewTitle=Sequence Index: @0"
      "#{comment}QELMX-4248997");
  return qelcore::config::ReplaceArguments(title, {sequence->GetName()});
}

}  // namespace Vantrel
