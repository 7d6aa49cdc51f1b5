// Greets like the program that reads media files, and then does with each file what its name says;
// files of other names are read, with the codec "Good". Its argument is a file to which each start adds
// a byte.

#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

#include "standalone/media/protocol/MediaMessages.h"

namespace {

using namespace standalone;

void Send(const std::string& message) {
  send(STDOUT_FILENO, message.data(), message.size(), MSG_NOSIGNAL);
}

std::string MakeAnswer() {
  MediaReading reading;
  reading.outcome = MediaOutcome::kRead;
  reading.facts.codec = "Good";
  reading.facts.hasPicture = true;
  return EncodeReading(reading);
}

void Answer(const std::string& fault) {
  if (fault == "crash") raise(SIGSEGV);
  if (fault == "close") _exit(0);
  if (fault == "hang") pause();
  if (fault == "garbage") return Send("These are words, and no answer.");
  if (fault == "long") return Send(std::string(kLongestMessage + 1, 'x'));
  if (fault == "partial") return Send(MakeAnswer().substr(0, 20));
  if (fault == "more") return Send(MakeAnswer() + "x");
  if (fault == "empty") return Send("");
  Send(MakeAnswer());
  if (fault == "twice") Send(MakeAnswer());
  if (fault == "last") _exit(0);
}

}  // namespace

int main(int, char** arguments) {
  std::ofstream(arguments[1], std::ios::app) << '.';
  Send(EncodeGreeting({}));
  std::string message(kLongestMessage, '\0');
  for (;;) {
    const ssize_t length = recv(STDIN_FILENO, message.data(), message.size(), 0);
    if (length <= 0) return 0;
    const auto request = DecodeRequest({message.data(), static_cast<std::size_t>(length)});
    if (!request) return 1;
    Answer(std::filesystem::path(request->path).filename().native());
  }
}
