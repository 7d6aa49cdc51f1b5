#pragma once

#include <string_view>

#include "host/HostAPI.h"

namespace KTEWrapper {

/// The fonts installed on this machine.
class HOST_API FontServer {
 public:
  FontServer(const FontServer&) = delete;
  FontServer& operator=(const FontServer&) = delete;

  /// The host's font server; lives as long as the host. The first call reads the installed fonts.
  /// [any-thread] Throws: qel_exception when the host has no way to list them.
  static FontServer& GetInstance();

  /// True when no installed font has that family name, full name or PostScript name (letter case is
  /// ignored). Answers on the calling thread. [any-thread]
  bool CheckIfFontMissing(std::string_view fontName) const;

 protected:
  FontServer();
  ~FontServer();
};

}  // namespace KTEWrapper
