#include <fontconfig/fontconfig.h>

#include <memory>

#include "standalone/services/FontLibrary.h"

namespace {

using TakeName = void (*)(void* context, const char* name);

void TakeNames(const FcPattern* font, const char* property, TakeName take, void* context) {
  FcChar8* name = nullptr;
  for (int i = 0; FcPatternGetString(font, property, i, &name) == FcResultMatch; ++i) {
    take(context, reinterpret_cast<const char*>(name));
  }
}

}  // namespace

extern "C" __attribute__((visibility("default"))) void ListSequenceIndexFonts(TakeName take,
                                                                              void* context) {
  const std::unique_ptr<FcConfig, decltype(&FcConfigDestroy)> config(FcInitLoadConfigAndFonts(),
                                                                     &FcConfigDestroy);
  const std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)> every(FcPatternCreate(),
                                                                      &FcPatternDestroy);
  const std::unique_ptr<FcObjectSet, decltype(&FcObjectSetDestroy)> properties(
      FcObjectSetBuild(FC_FAMILY, FC_FULLNAME, FC_POSTSCRIPT_NAME, nullptr), &FcObjectSetDestroy);
  if (!config || !every || !properties) return;
  const std::unique_ptr<FcFontSet, decltype(&FcFontSetDestroy)> fonts(
      FcFontList(config.get(), every.get(), properties.get()), &FcFontSetDestroy);
  if (!fonts) return;
  for (int i = 0; i < fonts->nfont; ++i) {
    for (const char* property : {FC_FAMILY, FC_FULLNAME, FC_POSTSCRIPT_NAME}) {
      TakeNames(fonts->fonts[i], property, take, context);
    }
  }
}
