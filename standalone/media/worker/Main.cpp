#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <exception>
#include <optional>
#include <string>

#include "standalone/media/protocol/MediaMessages.h"
#include "standalone/media/worker/Confinement.h"
#include "standalone/media/worker/MediaLibrary.h"

namespace {

using namespace standalone;

constexpr int kNotForPeople = 2;

bool Send(const std::string& message) {
  return send(STDOUT_FILENO, message.data(), message.size(), MSG_NOSIGNAL) >= 0;
}

/// None when the host is gone or says nonsense.
std::optional<MediaReadRequest> ReceiveRequest() {
  std::string message(kLongestMessage, '\0');
  ssize_t length = 0;
  do {
    length = recv(STDIN_FILENO, message.data(), message.size(), 0);
  } while (length < 0 && errno == EINTR);
  if (length <= 0) return std::nullopt;
  message.resize(static_cast<std::size_t>(length));
  return DecodeRequest(message);
}

void Serve(ReadMediaEntry read) {
  while (const auto request = ReceiveRequest()) {
    MediaReading reading;
    read(*request, reading);
    // The host starts another worker when it needs one.
    if (!Send(EncodeReading(reading)) || IsBloated()) return;
  }
}

}  // namespace

/// sequence-index-media LIBRARY: reads media files for Sequence Index, which starts it with a socket as
/// its standard input and output.
int main(int count, char** arguments) {
  if (count != 2) return kNotForPeople;
  ConfineProcess();
  ReadMediaEntry read = nullptr;
  try {
    EndWithHost();
    read = LoadMediaLibrary(arguments[1]);
  } catch (const std::exception& failure) {
    Send(EncodeGreeting({failure.what()}));
    return 1;
  }
  if (Send(EncodeGreeting({}))) Serve(read);
  // Nothing is owed to anyone; libav's libraries take their time to go.
  _exit(0);
}
