#include "driver/DriverProcess.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace quill::test {

namespace {

constexpr int kPatience = 60000;  // milliseconds for one answer, on a busy machine

}  // namespace

DriverProcess::DriverProcess(const QStringList& arguments, const QString& program) {
  Start(arguments, program);
}

DriverProcess::DriverProcess(const std::function<void()>& inChild) {
  m_process.setChildProcessModifier(inChild);
  Start({}, QStringLiteral(QUILL_DRIVER_PROGRAM));
}

void DriverProcess::Start(const QStringList& arguments, const QString& program) {
  m_process.start(program, arguments);
  EXPECT_TRUE(m_process.waitForStarted(kPatience)) << qPrintable(m_process.errorString());
}

DriverProcess::~DriverProcess() {
  if (m_process.state() != QProcess::NotRunning) Finish();
}

QByteArray DriverProcess::ReadLine() {
  while (!m_process.canReadLine()) {
    if (m_process.waitForReadyRead(kPatience)) continue;
    ADD_FAILURE() << "no answer; the error output is: " << StandardError().constData();
    return {};
  }
  return m_process.readLine().chopped(1);
}

void DriverProcess::WriteLine(const QByteArray& line) { m_process.write(line + '\n'); }

QByteArray DriverProcess::AskForLine(const QByteArray& line) {
  WriteLine(line);
  return ReadLine();
}

QJsonObject DriverProcess::Ask(const QByteArray& line) {
  return QJsonDocument::fromJson(AskForLine(line)).object();
}

QJsonValue DriverProcess::Result(const QByteArray& line, QStringView name) {
  const QJsonObject answer = Ask(line);
  EXPECT_TRUE(answer.value(u"ok").toBool())
      << line.constData() << ": " << qPrintable(answer.value(u"error").toString());
  EXPECT_TRUE(answer.contains(name)) << line.constData();
  return answer.value(name);
}

void DriverProcess::Do(const QByteArray& line) {
  EXPECT_EQ(AskForLine(line), "{\"ok\":true}") << line.constData();
}

QString DriverProcess::Error(const QByteArray& line) {
  const QJsonObject answer = Ask(line);
  EXPECT_FALSE(answer.value(u"ok").toBool(true)) << line.constData();
  return answer.value(u"error").toString();
}

int DriverProcess::Finish() {
  m_process.closeWriteChannel();
  if (!m_process.waitForFinished(kPatience)) {
    ADD_FAILURE() << "the driver did not end";
    m_process.kill();
    m_process.waitForFinished(kPatience);
    return -1;
  }
  return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QJsonObject FindText(const QJsonValue& texts, const QString& words) {
  for (const auto& text : texts.toArray())
    if (text.toObject().value(u"text") == words) return text.toObject();
  return {};
}

QByteArray TapOn(const QJsonObject& rectangle) {
  const int x = rectangle.value(u"x").toInt() + rectangle.value(u"w").toInt() / 2;
  const int y = rectangle.value(u"y").toInt() + rectangle.value(u"h").toInt() / 2;
  return R"({"op":"tap","x":)" + QByteArray::number(x) + R"(,"y":)" + QByteArray::number(y) + '}';
}

}  // namespace quill::test
