#include "host/UIF/Commands.h"

#include "standalone/runtime/Runtime.h"

namespace UIF {

using standalone::AssertMainThread;

CommandHandler::CommandHandler() = default;
CommandHandler::~CommandHandler() = default;

bool CommandHandler::FindCommandStatus(CommandID, bool&) {
  AssertMainThread("CommandHandler::FindCommandStatus");
  return false;
}

bool CommandHandler::ObeyCommand(const Command&) {
  AssertMainThread("CommandHandler::ObeyCommand");
  return false;
}

Commander::Commander() = default;
Commander::~Commander() = default;

void Commander::NowOnDuty() {
  AssertMainThread("Commander::NowOnDuty");
  isOnDuty = true;
}

void Commander::NowOffDuty() {
  AssertMainThread("Commander::NowOffDuty");
  isOnDuty = false;
}

std::string_view Commander::GetCommandContextName() const {
  return "global";
}

bool Commander::AllowClose() {
  return true;
}

void Commander::UpdateCommandForDisableMenuAppStatus(CommandID, bool&) {}
void Commander::OnSelectFindBox() {}
void Commander::OnSelectNextPanel() {}
void Commander::OnSelectPreviousPanel() {}

}  // namespace UIF
