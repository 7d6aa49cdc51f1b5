#pragma once

#include "standalone/media/contract/MediaReading.h"

namespace standalone {

/// Loads the library for media files, which then stays until the program ends. Loading it here, instead
/// of linking it, leaves a word to say where libav's libraries are missing. Throws: std::runtime_error
/// with one sentence that says what to install.
ReadMediaEntry LoadMediaLibrary(const char* path);

}  // namespace standalone
