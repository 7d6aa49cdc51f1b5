#include "host/KTEWrapper/FontServer.h"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <string>
#include <unordered_set>

namespace KTEWrapper {
namespace {

using FontNames = std::unordered_set<std::string>;

std::string LowerCase(std::string_view name) {
  std::string lower(name);
  for (char& character : lower) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
  }
  return lower;
}

void AddNames(FontNames& names, const FcPattern* font, const char* property) {
  FcChar8* name = nullptr;
  for (int i = 0; FcPatternGetString(font, property, i, &name) == FcResultMatch; ++i) {
    names.insert(LowerCase(reinterpret_cast<const char*>(name)));
  }
}

/// The names of all installed fonts. Looking them up here, not asking for the best match, is what tells
/// a missing font: there is a best match for any name.
FontNames ReadInstalledFonts() {
  FontNames names;
  const std::unique_ptr<FcConfig, decltype(&FcConfigDestroy)> config(FcInitLoadConfigAndFonts(),
                                                                     &FcConfigDestroy);
  const std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)> every(FcPatternCreate(),
                                                                      &FcPatternDestroy);
  const std::unique_ptr<FcObjectSet, decltype(&FcObjectSetDestroy)> properties(
      FcObjectSetBuild(FC_FAMILY, FC_FULLNAME, FC_POSTSCRIPT_NAME, nullptr), &FcObjectSetDestroy);
  if (!config || !every || !properties) return names;
  const std::unique_ptr<FcFontSet, decltype(&FcFontSetDestroy)> fonts(
      FcFontList(config.get(), every.get(), properties.get()), &FcFontSetDestroy);
  if (!fonts) return names;
  for (int i = 0; i < fonts->nfont; ++i) {
    for (const char* property : {FC_FAMILY, FC_FULLNAME, FC_POSTSCRIPT_NAME}) {
      AddNames(names, fonts->fonts[i], property);
    }
  }
  return names;
}

const FontNames& GetInstalledFonts() {
  static const FontNames names = ReadInstalledFonts();
  return names;
}

}  // namespace

FontServer::FontServer() = default;
FontServer::~FontServer() = default;

FontServer& FontServer::GetInstance() {
  static FontServer server;
  GetInstalledFonts();
  return server;
}

bool FontServer::CheckIfFontMissing(std::string_view fontName) const {
  return !GetInstalledFonts().contains(LowerCase(fontName));
}

}  // namespace KTEWrapper
