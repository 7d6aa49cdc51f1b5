#include <utility>

#include "host/qelui/MultiColumnTree.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "host/qelui/Theme.h"
#include "support/HostCalls.h"
#include "support/HostFaults.h"
#include "table/DrawingWatch.h"

using hostcalls::Called;
using hostcalls::Real;

namespace qelui::controls {

void UI_MultiColumnTree::SetDrawCellOfRowCallback(SharedDrawCellFunction callback) {
  Called("SetDrawCellOfRowCallback");
  if (DrawingWatch* const watch = DrawingWatch::installed) watch->drawCell = callback;
  using Function = void (*)(UI_MultiColumnTree*, SharedDrawCellFunction);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls18UI_MultiColumnTree24SetDrawCellOfRowCallbackESt10shared_"
      "ptrIKSt8functionIFvRNS_"
      "7DrawbotEPNS0_21UI_MultiColumnTreeRowEmRKNS_4RectEEEE");
  real(this, std::move(callback));
}

std::size_t UI_MultiColumnTree::GetRowIndex(const Row* row) const {
  Called("GetRowIndex");
  using Function = std::size_t (*)(const UI_MultiColumnTree*, const Row*);
  static const auto real = Real<Function>(
      "_ZNK5qelui8controls18UI_MultiColumnTree11GetRowIndexEPKNS0_21UI_MultiColumnTreeRowE");
  return real(this, row);
}

void UI_MultiColumnTree::DrawCellString(Drawbot& drawbot, const Rect& cell,
                                        const qelcore::UTF8String& text, const ColorRGBA& color,
                                        float centre, float leftInset,
                                        const qelcore::UTF8String& fontName,
                                        std::u16string_view ellipsis, std::uint32_t alignment,
                                        std::uint32_t overflow) {
  Called("DrawCellString", text.View(), centre, leftInset, fontName.View(), ellipsis.size(), alignment,
         overflow);
  using Function =
      void (*)(Drawbot&, const Rect&, const qelcore::UTF8String&, const ColorRGBA&, float, float,
               const qelcore::UTF8String&, std::u16string_view, std::uint32_t, std::uint32_t);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls18UI_MultiColumnTree14DrawCellStringERNS_7DrawbotERKNS_4RectERKN7qelcore10UTF8"
      "StringERKNS_9ColorRGBAEffSA_St17basic_string_viewIDsSt11char_traitsIDsEEjj");
  real(drawbot, cell, text, color, centre, leftInset, fontName, ellipsis, alignment, overflow);
}

float UI_MultiColumnTree::GetCellTextLeftInset() {
  const DrawingWatch* const watch = DrawingWatch::installed;
  if (watch != nullptr && watch->leftInset) return *watch->leftInset;
  using Function = float (*)();
  static const auto real =
      Real<Function>("_ZN5qelui8controls18UI_MultiColumnTree20GetCellTextLeftInsetEv");
  return real();
}

std::uint32_t UI_MultiColumnTreeHeaderRow::GetColumnAt(std::size_t displayIndex) const {
  Called("GetColumnAt", displayIndex);
  using Function = std::uint32_t (*)(const UI_MultiColumnTreeHeaderRow*, std::size_t);
  static const auto real =
      Real<Function>("_ZNK5qelui8controls27UI_MultiColumnTreeHeaderRow11GetColumnAtEm");
  return real(this, displayIndex);
}

void UI_MultiColumnTreeHeaderRow::UI_Draw(Drawbot& drawbot) {
  Called("UI_Draw");
  using Function = void (*)(UI_MultiColumnTreeHeaderRow*, Drawbot&);
  static const auto real =
      Real<Function>("_ZN5qelui8controls27UI_MultiColumnTreeHeaderRow7UI_DrawERNS_7DrawbotE");
  real(this, drawbot);
}

}  // namespace qelui::controls

namespace qelui {

void StrokeRect(Drawbot& drawbot, const Rect& area, const ColorRGBA& color, float lineWidth) {
  Called("StrokeRect", area.left, area.top, area.width, area.height, lineWidth);
  using Function = void (*)(Drawbot&, const Rect&, const ColorRGBA&, float);
  static const auto real =
      Real<Function>("_ZN5qelui10StrokeRectERNS_7DrawbotERKNS_4RectERKNS_9ColorRGBAEf");
  real(drawbot, area, color, lineWidth);
}

}  // namespace qelui

namespace qelui::ui {

std::shared_ptr<const ThemeProvider> GetDefaultThemeProvider() {
  const DrawingWatch* const watch = DrawingWatch::installed;
  if (watch != nullptr && watch->theme != nullptr) return watch->theme;
  using Function = std::shared_ptr<const ThemeProvider> (*)();
  static const auto real = Real<Function>("_ZN5qelui2ui23GetDefaultThemeProviderEv");
  return real();
}

const qelcore::UTF8String& GetFontName(std::uint32_t number) {
  Called("GetFontName", number);
  using Function = const qelcore::UTF8String& (*)(std::uint32_t);
  static const auto real = Real<Function>("_ZN5qelui2ui11GetFontNameEj");
  return real(number);
}

bool UI_SubView::UI_DoMouseEvent(const MouseEvent& event) {
  Called("UI_DoMouseEvent");
  if (hostcalls::viewsHandleEveryMouseEvent) return true;
  using Function = bool (*)(UI_SubView*, const MouseEvent&);
  static const auto real =
      Real<Function>("_ZN5qelui2ui10UI_SubView15UI_DoMouseEventERKNS0_10MouseEventE");
  return real(this, event);
}

}  // namespace qelui::ui

namespace qelui::skins::utilities {

ColorRGBA GetDefaultTextColor(const ui::ThemeProvider& theme) {
  Called("GetDefaultTextColor");
  using Function = ColorRGBA (*)(const ui::ThemeProvider&);
  static const auto real =
      Real<Function>("_ZN5qelui5skins9utilities19GetDefaultTextColorERKNS_2ui13ThemeProviderE");
  return real(theme);
}

}  // namespace qelui::skins::utilities
