// Runs requests from the input one after the other inside the program's event loops, however deeply
// they nest, and writes the answers.
//
// It is no QObject and outlives every QApplication: Attach and Detach tie it to the present one.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>

#include "driver/LineBuffer.h"
#include "driver/Operations.h"
#include "driver/Pen.h"
#include "driver/ShellLink.h"
#include "driver/Steps.h"

namespace quill::driver {

class Driver : public Steps {
 public:
  struct Parts {
    OperationTable Operations;
    SettableClock& Clock;
    FaultTable& Faults;
    const SilentSounds& Sounds;
    StoreProvider& Store;  // below the faults
    QString StoreFile;
    ScriptedInfrared& Infrared;
  };
  // Files are descriptors, which stay open; the driver does not close them.
  Driver(Parts parts, int input, int output);
  ~Driver() override;

  // From now on every new QApplication is attached to, until this driver goes. One at a time.
  void FollowApplications();
  // Writes the answer that is still owed, when the program ended meanwhile.
  void Finish();

  void Add(std::function<void()> step, int delay) override;
  void SetAnswer(const Answer& answer) override { m_answer = answer; }
  void CloseProgram() override { m_ended = true; }

 private:
  struct Step {
    std::function<void()> Run;
    int Delay = 0;
  };

  static void AttachToNew();
  static void DetachFromOld();
  void Attach();
  void Detach();

  void Read();
  void Tick();
  void RunNextStep();
  bool IsSettled();
  void WriteAnswer();
  void BeginNext();
  void Write(const QByteArray& bytes);
  void EndInput();

  Parts m_parts;
  int m_input;
  int m_output;
  Pen m_pen;
  OperationContext m_context;
  std::unique_ptr<ShellLink> m_link;
  LineBuffer m_buffer;
  std::deque<InputLine> m_lines;
  std::deque<Step> m_steps;
  std::optional<Answer> m_answer;  // of the operation that is under way
  int m_turns = 0;                 // of the loop, since the last step
  bool m_ready = false;
  bool m_inputEnded = false;
  bool m_ended = false;
};

}  // namespace quill::driver
