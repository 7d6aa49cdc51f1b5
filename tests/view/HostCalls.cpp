#include <memory>
#include <string>
#include <utility>

#include "host/MZ/Sequences.h"
#include "host/UIF/Commands.h"
#include "host/UIF/DC.h"
#include "host/qelui/Controls.h"
#include "host/qelui/ImageHandler.h"
#include "host/qelui/MultiColumnTree.h"
#include "support/LocalizerHostCalls.h"
#include "support/PanelHostCalls.h"

namespace {

std::string Format(const qelui::Rect& area) {
  return hostcalls::Format(area.left) + " " + hostcalls::Format(area.top) + " " +
         hostcalls::Format(area.width) + " " + hostcalls::Format(area.height);
}

}  // namespace

namespace MZ {

qelcore::Ref<ML::IPlayer> GetSequencePlayer(const qelcore::Ref<BE::ISequence>& sequence,
                                            int playbackPreference) {
  Called("GetSequencePlayer", playbackPreference);
  using Function = qelcore::Ref<ML::IPlayer> (*)(const qelcore::Ref<BE::ISequence>&, int);
  static const auto real =
      Real<Function>("_ZN2MZ17GetSequencePlayerERKN7qelcore3RefIN2BE9ISequenceEEEi");
  return real(sequence, playbackPreference);
}

}  // namespace MZ

namespace UIF {

bool CommandHandler::ObeyCommand(const Command& command) {
  Called("Base obeys", command.GetID());
  using Function = bool (*)(CommandHandler*, const Command&);
  static const auto real = Real<Function>("_ZN3UIF14CommandHandler11ObeyCommandERKNS_7CommandE");
  return real(this, command);
}

}  // namespace UIF

namespace UIF::DC {

void FillRect(qelui::Drawbot& drawbot, const qelui::Rect& area, const qelui::ColorRGBA& color) {
  Called("FillRect", Format(area));
  using Function = void (*)(qelui::Drawbot&, const qelui::Rect&, const qelui::ColorRGBA&);
  static const auto real =
      Real<Function>("_ZN3UIF2DC8FillRectERN5qelui7DrawbotERKNS1_4RectERKNS1_9ColorRGBAE");
  real(drawbot, area, color);
}

}  // namespace UIF::DC

namespace qelui::ui {

void UI_Node::UI_SetToolTip(const qelcore::UTF8String& text, std::uint32_t maximumWidth) {
  Called("UI_SetToolTip", text.View(), maximumWidth);
  using Function = void (*)(UI_Node*, const qelcore::UTF8String&, std::uint32_t);
  static const auto real =
      Real<Function>("_ZN5qelui2ui7UI_Node13UI_SetToolTipERKN7qelcore10UTF8StringEj");
  real(this, text, maximumWidth);
}

}  // namespace qelui::ui

namespace qelui::controls {

void UI_ControlView::NotifyWhenChanged(ui::SharedMessageFunction callback) {
  Called("NotifyWhenChanged");
  using Function = void (*)(UI_ControlView*, ui::SharedMessageFunction);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls14UI_ControlView17NotifyWhenChangedESt10shared_ptrIKSt8functionIFvRKNS_2ui"
      "7MessageEEEE");
  real(this, std::move(callback));
}

void UI_InteractiveControlView::NotifyWhenChangedInteractively(ui::SharedMessageFunction callback) {
  Called("NotifyWhenChangedInteractively");
  using Function = void (*)(UI_InteractiveControlView*, ui::SharedMessageFunction);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls25UI_InteractiveControlView30NotifyWhenChangedInteractivelyESt10shared_"
      "ptrIKSt8"
      "functionIFvRKNS_2ui7MessageEEEE");
  real(this, std::move(callback));
}

void UI_StaticText::SetValue(const qelcore::UTF8String& newText) {
  Called("Set status", newText.View());
  using Function = void (*)(UI_StaticText*, const qelcore::UTF8String&);
  static const auto real =
      Real<Function>("_ZN5qelui8controls13UI_StaticText8SetValueERKN7qelcore10UTF8StringE");
  real(this, newText);
}

void UI_Slider::SetRange(double newMinimum, double newMaximum) {
  Called("SetRange", newMinimum, newMaximum);
  static const auto real =
      Real<void (*)(UI_Slider*, double, double)>("_ZN5qelui8controls9UI_Slider8SetRangeEdd");
  real(this, newMinimum, newMaximum);
}

double UI_Slider::GetValue() const {
  Called("Read slider");
  static const auto real =
      Real<double (*)(const UI_Slider*)>("_ZNK5qelui8controls9UI_Slider8GetValueEv");
  return real(this);
}

CheckboxValue UI_Checkbox::GetValue() const {
  Called("Read checkbox");
  static const auto real =
      Real<CheckboxValue (*)(const UI_Checkbox*)>("_ZNK5qelui8controls11UI_Checkbox8GetValueEv");
  return real(this);
}

void ImageHandler::SetImageState(std::size_t newState) {
  Called("SetImageState", newState);
  static const auto real =
      Real<void (*)(ImageHandler*, std::size_t)>("_ZN5qelui8controls12ImageHandler13SetImageStateEm");
  real(this, newState);
}

void UI_MultiColumnTree::SetRowHeight(float height) {
  Called("SetRowHeight", height);
  static const auto real = Real<void (*)(UI_MultiColumnTree*, float)>(
      "_ZN5qelui8controls18UI_MultiColumnTree12SetRowHeightEf");
  real(this, height);
}

}  // namespace qelui::controls
