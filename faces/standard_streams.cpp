#include "faces/standard_streams.h"

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <system_error>

namespace zelvo {

void GuardStandardStreams() {
  // Each is opened the wrong way round, so that its use fails.
  static constexpr std::array<int, 3> wrongWays = {O_WRONLY, O_RDONLY, O_RDONLY};
  for (int stream = 0; stream < 3; ++stream) {
    const bool isClosed = fcntl(stream, F_GETFD) == -1;
    if (isClosed && open("/dev/null", wrongWays[stream]) != stream) return;
  }
  std::signal(SIGPIPE, SIG_IGN);
}

std::string WithReason(const std::string& what, int error) {
  return what + ": " + std::generic_category().message(error);
}

int Complain(const std::string& program, const std::string& what, int status) {
  std::fputs((program + ": " + what + "\n").c_str(), stderr);
  return status;
}

int PrintAnswer(const std::string& program, const std::string& text) {
  errno = 0;
  std::fputs(text.c_str(), stdout);
  if (std::fflush(stdout) == 0) return success;
  return Complain(program, WithReason("standard output cannot be written", errno), failure);
}

}  // namespace zelvo
