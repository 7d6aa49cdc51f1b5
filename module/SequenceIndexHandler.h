#pragma once

#include <memory>
#include <string_view>

#include "host/BE/Model.h"
#include "host/HSL/Handler.h"
#include "host/UIF/Commands.h"
#include "host/UIF/TabView.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

class SequenceIndexView;

/// Serves the Sequence Index panel: declares its window class, its entry in the Window menu and its
/// wing menu for as long as it lives, creates the panel's tab view, and keeps the tab's title in step
/// with the active sequence. Created by CreateSequenceIndexHandler. [main-thread]
class SequenceIndexHandler final : public HSL::Handler, public qelcore::messaging::Listener {
 public:
  /// Subscribes to nothing; that comes with the first tab view.
  explicit SequenceIndexHandler(const qelcore::UTF8String& handlerID);
  ~SequenceIndexHandler() override;

  /// The live handler of the panel; empty when there is none, or one of another class.
  static std::shared_ptr<SequenceIndexHandler> Find();

  bool FindCommandStatus(UIF::CommandID id, bool& isEnabled) override;
  bool ObeyCommand(const UIF::Command& command) override;
  std::string_view GetCommandContextName() const override;

  /// Creates the view, which replaces the one before, and realises it in `frame`. Throws:
  /// null_pointer_exception naming BE::INotification when there is no active project; the view then
  /// exists but was not realised.
  std::shared_ptr<UIF::TabView> CreateTabView(
      const std::shared_ptr<UIF::WorkspaceFrame>& frame) override;
  bool ShouldRestoreWithWorkspace() const override;

  void ReceiveMessage(const qelcore::messaging::Message& message) override;

  /// The view created last, or empty.
  const std::shared_ptr<SequenceIndexView>& GetView() const noexcept { return view; }

 private:
  /// A declared window class, withdrawn with its windows on destruction.
  class WindowClassRegistration {
   public:
    WindowClassRegistration();
    ~WindowClassRegistration();
    WindowClassRegistration(const WindowClassRegistration&) = delete;
    WindowClassRegistration& operator=(const WindowClassRegistration&) = delete;
  };

  void SubscribeToStations();
  void SetTitle(const qelcore::Ref<BE::ISequence>& sequence);

  std::shared_ptr<SequenceIndexView> view;
  // Declared last, so that the window class is withdrawn before the view goes.
  WindowClassRegistration windowClass;
};

/// The handler's factory: a new handler, or an empty pointer while the panel's feature is switched off.
/// [main-thread]
std::shared_ptr<HSL::Handler> CreateSequenceIndexHandler(const qelcore::UTF8String& handlerID);

/// The tab's title while `sequence` (which may be empty) is the active one. [main-thread]
qelcore::UTF8String MakeTabViewTitle(const qelcore::Ref<BE::ISequence>& sequence);

}  // namespace Vantrel
