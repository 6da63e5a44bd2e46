// quill-driver as a child process: lines in, lines out.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>

namespace quill::test {

class DriverProcess {
 public:
  explicit DriverProcess(const QStringList& arguments = {},
                         const QString& program = QStringLiteral(QUILL_DRIVER_PROGRAM));
  // The driver without arguments, whose process runs this before the program.
  explicit DriverProcess(const std::function<void()>& inChild);
  ~DriverProcess();
  DriverProcess(const DriverProcess&) = delete;
  DriverProcess& operator=(const DriverProcess&) = delete;

  // The next line of output, without its line feed. Empty, and the test has failed, when none
  // comes.
  QByteArray ReadLine();
  void WriteLine(const QByteArray& line);
  // Sends one line and returns its answer.
  QByteArray AskForLine(const QByteArray& line);
  QJsonObject Ask(const QByteArray& line);
  // The same for an operation that must be carried out; the result under this name.
  QJsonValue Result(const QByteArray& line, QStringView name);
  // The same for an operation that is only done, such as a tap.
  void Do(const QByteArray& line);
  // The error of an operation that must be refused.
  QString Error(const QByteArray& line);

  // Ends the input and waits for the end. The exit code; -1, and the test has failed, when the
  // program crashed or did not end.
  int Finish();
  QByteArray StandardError() { return m_process.readAllStandardError(); }

 private:
  void Start(const QStringList& arguments, const QString& program);

  QProcess m_process;
};

// A driver whose ready line has come.
class ReadyDriver : public DriverProcess {
 public:
  explicit ReadyDriver(const QStringList& arguments = {},
                       const QString& program = QStringLiteral(QUILL_DRIVER_PROGRAM))
      : DriverProcess(arguments, program) {
    ReadLine();
  }
};

// The text with these words among the texts of an answer; empty when it is not painted.
QJsonObject FindText(const QJsonValue& texts, const QString& words);
// The operation that taps the middle of a rectangle of the screen.
QByteArray TapOn(const QJsonObject& rectangle);

}  // namespace quill::test
