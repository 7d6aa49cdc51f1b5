#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "standalone/media/contract/MediaReading.h"

/// What the host and the program that reads media files for it (the worker) say to each other, through
/// a socket that keeps messages apart: the worker greets once, then each request has one answer.
/// Decoding gives none for whatever its encoding can't have made. [any-thread]
namespace standalone {

/// In bytes; a platform's paths and sentences are far shorter.
inline constexpr std::uint32_t kLongestPath = 32 * 1024;
inline constexpr std::uint32_t kLongestText = 4 * 1024;
/// No message is longer than this.
inline constexpr std::size_t kLongestMessage = std::size_t{64} * 1024;

/// Whether the worker can read; otherwise why not, one or more sentences for people.
struct WorkerGreeting {
  std::string failure;
};

/// Texts that are too long are cut between two characters.
std::string EncodeGreeting(const WorkerGreeting& greeting);
std::optional<WorkerGreeting> DecodeGreeting(std::string_view message);

/// Without the functions to cancel: a read is cancelled by ending the worker. The path must not be
/// longer than `kLongestPath`.
std::string EncodeRequest(const MediaReadRequest& request);
std::optional<MediaReadRequest> DecodeRequest(std::string_view message);

/// Of a read that was not cancelled. Facts pass only when the file was read, a reason only when not.
std::string EncodeReading(const MediaReading& reading);
std::optional<MediaReading> DecodeReading(std::string_view message);

}  // namespace standalone
