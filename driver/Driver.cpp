#include "driver/Driver.h"

#include <QApplication>

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "driver/Targets.h"

namespace quill::driver {

namespace {

constexpr qsizetype kLongestLine = 4 * 1024 * 1024;  // bytes
constexpr int kMostTurns = 100;  // a window that never comes to rest is answered all the same

Driver* s_following = nullptr;

// A blinking cursor would make pictures of one screen differ.
void StillCursor() { QApplication::setCursorFlashTime(0); }

// Returns when more can be written, or when nobody reads any more.
void AwaitReader(int output) {
  pollfd wanted{output, POLLOUT, 0};
  poll(&wanted, 1, -1);
}

}  // namespace

Driver::Driver(Parts parts, int input, int output)
    : m_parts(std::move(parts)),
      m_input(input),
      m_output(output),
      m_context{*this,          m_pen,         m_parts.Clock,     m_parts.Faults,
                m_parts.Sounds, m_parts.Store, m_parts.StoreFile, m_parts.Infrared},
      m_buffer(kLongestLine) {}

Driver::~Driver() {
  if (s_following == this) s_following = nullptr;
}

void Driver::FollowApplications() {
  s_following = this;
  qAddPreRoutine(AttachToNew);
}

void Driver::AttachToNew() {
  if (s_following == nullptr) return;
  s_following->Attach();
  qAddPostRoutine(DetachFromOld);  // Qt forgets it after each application
}

void Driver::DetachFromOld() {
  if (s_following != nullptr) s_following->Detach();
}

void Driver::Attach() {
  m_link = std::make_unique<ShellLink>(m_input,
                                       ShellLink::Calls{[this] { Tick(); }, [this] { Read(); }});
  if (m_inputEnded) m_link->StopReading();
  // The application is only half made here; the first loop finds it whole.
  QMetaObject::invokeMethod(m_link.get(), StillCursor, Qt::QueuedConnection);
  m_link->Arm(0);
}

void Driver::Detach() {
  m_pen.Forget();
  m_link.reset();
}

void Driver::Finish() {
  m_steps.clear();
  if (m_answer) WriteAnswer();
}

void Driver::Add(std::function<void()> step, int delay) {
  m_steps.push_back({std::move(step), delay});
}

// The notifier has said that there is something, so one read does not block.
void Driver::Read() {
  std::array<char, 65536> bytes;
  const ssize_t count = read(m_input, bytes.data(), bytes.size());
  if (count < 0 && (errno == EINTR || errno == EAGAIN)) return;
  if (count <= 0) {
    EndInput();
  } else {
    for (InputLine& line : m_buffer.Add({bytes.data(), count})) m_lines.push_back(std::move(line));
  }
  const bool idle = m_ready && m_steps.empty() && !m_answer;
  if (idle) m_link->Arm(0);
}

void Driver::EndInput() {
  if (auto last = m_buffer.Finish()) m_lines.push_back(std::move(*last));
  m_inputEnded = true;
  m_link->StopReading();
}

// Each branch arms the next tick before it does anything that may open a nested loop.
void Driver::Tick() {
  if (!m_steps.empty()) {
    RunNextStep();
  } else if (!IsSettled()) {
    m_link->Arm(0);
  } else if (!m_ready) {
    m_ready = true;
    Write("{\"ready\":true,\"protocol\":1}\n");
    m_link->Arm(0);
  } else if (m_answer) {
    WriteAnswer();
    m_link->Arm(0);
  } else if (m_ended || (m_inputEnded && m_lines.empty())) {
    m_ended = true;
    CloseOuterWindow();
  } else if (!m_lines.empty()) {
    BeginNext();
    m_link->Arm(m_steps.empty() ? 0 : m_steps.front().Delay);
  }
}

void Driver::RunNextStep() {
  const Step step = std::move(m_steps.front());
  m_steps.pop_front();
  m_turns = 0;
  m_link->Arm(m_steps.empty() ? 0 : m_steps.front().Delay);
  step.Run();
}

// At rest: a whole turn of the loop brought nothing.
bool Driver::IsSettled() { return m_link->WasQuiet() || ++m_turns > kMostTurns; }

void Driver::WriteAnswer() {
  Write(FormatAnswer(*m_answer));
  m_answer.reset();
}

void Driver::BeginNext() {
  const InputLine line = std::move(m_lines.front());
  m_lines.pop_front();
  m_turns = 0;
  const std::optional<Request> request = line.TooLong ? std::nullopt : ParseRequest(line.Text);
  m_answer = request ? RunOperation(m_parts.Operations, *request, m_context) : Refusal(kMalformed);
}

// A slow reader is waited for. When nobody reads any more, that is the end of a script as well.
void Driver::Write(const QByteArray& bytes) {
  for (qsizetype done = 0; done < bytes.size();) {
    const ssize_t count = write(m_output, bytes.data() + done, bytes.size() - done);
    if (count >= 0) {
      done += count;
    } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
      AwaitReader(m_output);
    } else if (errno != EINTR) {
      m_ended = true;
      return;
    }
  }
}

}  // namespace quill::driver
