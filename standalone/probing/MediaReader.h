#pragma once

#include <filesystem>
#include <functional>

#include "standalone/media/contract/MediaReading.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Reads one media file. Called on several threads at once; must not throw.
using MediaReader = std::function<MediaReading(const MediaReadRequest& request)>;

/// The reader of the library for media files, which is loaded now, unless it was, and stays until the
/// program ends. Throws: std::runtime_error with one sentence that says what to install. [any-thread]
STANDALONE_API MediaReader LoadMediaReader(const std::filesystem::path& library);

/// Where that library lies.
STANDALONE_API std::filesystem::path GetMediaLibraryPath();

}  // namespace standalone
