#pragma once

#include <memory>

#include "standalone/media/InputFile.h"
#include "standalone/media/LibAV.h"
#include "standalone/media/ReadLimit.h"

namespace standalone {

/// libav's view of one file.
class Demuxer {
 public:
  /// Opens the file and reads its header. Throws: ReadFailure with the outcome kDamaged when the
  /// content is of no known kind or can't be read as what it is; std::bad_alloc. The limit is the
  /// caller's to ask.
  Demuxer(InputFile& file, ReadLimit& limit);
  ~Demuxer();
  Demuxer(const Demuxer&) = delete;
  Demuxer& operator=(const Demuxer&) = delete;

  /// Reads on, beyond the header, until the streams are known or a limit of bytes and of media time is
  /// reached. What it does not find stays unknown.
  void ReadOn();

  const AVFormatContext& Get() const noexcept { return *context; }
  bool IsPictureKind() const;
  /// Whether a picture is beyond what of its file is looked at.
  bool IsCutOff() const noexcept { return file.IsCutOff(); }

 private:
  const InputFile& file;
  AVFormatContext* context = nullptr;
};

}  // namespace standalone
