// A command on a temporary home, with what it wrote kept apart by stream.
#pragma once

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTextStream>

#include <gtest/gtest.h>

#include "cli/CommandLine.h"
#include "cli/RunCommand.h"

namespace quill::test {

class ConsoleFixture : public testing::Test {
 protected:
  // Runs the words with the home's option before them.
  int Run(const QStringList& words) {
    return RunCommand(ParseCommandLine(WithHome(words)), {}, m_console);
  }
  QStringList WithHome(const QStringList& words) const {
    return QStringList({QStringLiteral("--home"), Home()}) + words;
  }

  QString Home() const { return m_folder.filePath(QStringLiteral("home")); }
  // Writes a file beside the home; returns its path.
  QString MakeFile(const QString& name, const QByteArray& bytes) const {
    QFile file(m_folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
  }
  // What was written since the last call.
  std::string TakeOut() { return Take(m_out, m_outText); }
  std::string TakeErr() { return Take(m_err, m_errText); }

  QTemporaryDir m_folder;
  QString m_outText;
  QString m_errText;
  QTextStream m_out{&m_outText};
  QTextStream m_err{&m_errText};
  Console m_console{m_out, m_err};

 private:
  static std::string Take(QTextStream& stream, QString& text) {
    stream.flush();
    const std::string taken = text.toStdString();
    text.clear();
    return taken;
  }
};

}  // namespace quill::test
