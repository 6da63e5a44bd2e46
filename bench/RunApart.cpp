#include "RunApart.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace quill::bench {

namespace {

bool WriteAll(int descriptor, const QByteArray& bytes) {
  qsizetype written = 0;
  while (written < bytes.size()) {
    const auto left = static_cast<std::size_t>(bytes.size() - written);
    const ssize_t some = write(descriptor, bytes.constData() + written, left);
    if (some < 0) return false;
    written += some;
  }
  return true;
}

QByteArray ReadAll(int descriptor) {
  QByteArray bytes;
  std::array<char, 4096> some{};
  for (ssize_t count = 1; count > 0;) {
    count = read(descriptor, some.data(), some.size());
    if (count > 0) bytes.append(some.data(), count);
  }
  return bytes;
}

}  // namespace

std::optional<QByteArray> RunApart(const std::function<std::optional<QByteArray>()>& work) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return std::nullopt;
  std::fflush(nullptr);  // else the child would write it once more
  const pid_t child = fork();
  if (child == 0) {
    const auto answer = work();
    const bool done = answer && WriteAll(ends[1], *answer);
    std::fflush(nullptr);
    std::_Exit(done ? EXIT_SUCCESS : EXIT_FAILURE);  // what stands on the stack is the parent's
  }
  close(ends[1]);
  const QByteArray answer = child > 0 ? ReadAll(ends[0]) : QByteArray();
  close(ends[0]);
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) return std::nullopt;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? std::optional(answer) : std::nullopt;
}

}  // namespace quill::bench
