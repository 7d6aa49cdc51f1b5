#include "host/KTEWrapper/FontServer.h"

#include <exception>
#include <string>
#include <unordered_set>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/InstalledLibrary.h"
#include "standalone/services/FontLibrary.h"

namespace KTEWrapper {
namespace {

using standalone::kFontLibraryName;
using standalone::ListFontsEntry;
using FontNames = std::unordered_set<std::string>;

std::string LowerCase(std::string_view name) {
  std::string lower(name);
  for (char& character : lower) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
  }
  return lower;
}

ListFontsEntry LoadFontLibrary() {
  try {
    return reinterpret_cast<ListFontsEntry>(
        standalone::LoadInstalledEntry(kFontLibraryName, standalone::kListFontsEntryName));
  } catch (const std::exception& failure) {
    throw qelcore::config::qel_exception(
        qelcore::config::ExceptionKind::kGeneric,
        "The installed fonts can't be listed: " + std::string(failure.what()), kFontLibraryName);
  }
}

/// The names of all installed fonts. Looking them up here, not asking for the best match, is what tells
/// a missing font: there is a best match for any name.
FontNames ReadInstalledFonts() {
  FontNames names;
  const auto add = [](void* all, const char* name) {
    static_cast<FontNames*>(all)->insert(LowerCase(name));
  };
  LoadFontLibrary()(add, &names);
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
