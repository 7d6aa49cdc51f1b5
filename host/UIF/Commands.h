#pragma once

#include <cstdint>
#include <string_view>

#include "host/HostAPI.h"

namespace UIF {

using CommandID = std::uint32_t;

/// A command that was chosen in a menu or by a shortcut.
class Command {
 public:
  explicit Command(CommandID id) noexcept : id(id) {}
  CommandID GetID() const noexcept { return id; }

 private:
  CommandID id;
};

/// Knows commands. All operations are [main-thread].
class HOST_API CommandHandler {
 public:
  virtual ~CommandHandler();

  /// Tells whether this handler knows a command, and if so whether it can be chosen now. The base
  /// knows none: false, `isEnabled` untouched.
  virtual bool FindCommandStatus(CommandID id, bool& isEnabled);

  /// Carries a command out. True when it was handled. The base handles none.
  virtual bool ObeyCommand(const Command& command);

 protected:
  CommandHandler();
};

/// A command handler that can be on duty: the one that the user works in.
class HOST_API Commander : public CommandHandler {
 public:
  ~Commander() override;

  /// Lets a menu-less application mode change a command's status. The base does nothing.
  virtual void UpdateCommandForDisableMenuAppStatus(CommandID id, bool& isEnabled);

  /// The user begins, or ends, to work in this commander; an override calls the base.
  virtual void NowOnDuty();
  virtual void NowOffDuty();
  bool IsOnDuty() const noexcept { return isOnDuty; }

  /// The identifier of the command context whose shortcuts apply while on duty; the base: "global".
  virtual std::string_view GetCommandContextName() const;

  /// Whether the panel may close now; the base: true.
  virtual bool AllowClose();
  /// The user asked for the search field, the next or the previous panel. The base does nothing.
  virtual void OnSelectFindBox();
  virtual void OnSelectNextPanel();
  virtual void OnSelectPreviousPanel();

 protected:
  Commander();

 private:
  bool isOnDuty = false;
};

}  // namespace UIF
