// A message bus of the test's own.
#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/prctl.h>

namespace quill::test {

class PrivateBus {
 public:
  PrivateBus() {
    QFile config(m_folder.filePath(QStringLiteral("bus.conf")));
    EXPECT_TRUE(config.open(QIODevice::WriteOnly));
    config.write(
        "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
        "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
        "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
    config.close();
    // A test that crashes leaves no bus behind.
    m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--config-file=") + config.fileName(),
                    QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
    while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead()) {
    }
    m_address = QString::fromLatin1(m_daemon.readLine().trimmed());
    EXPECT_FALSE(m_address.isEmpty()) << "no dbus-daemon";
  }
  ~PrivateBus() {
    for (const QString& name : m_names) QDBusConnection::disconnectFromBus(name);
    m_daemon.terminate();
    m_daemon.waitForFinished();
  }
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;

  // A connection of this name, until the bus goes.
  QDBusConnection Connect(const QString& name) {
    m_names += name;
    return QDBusConnection::connectToBus(m_address, name);
  }
  const QString& Address() const { return m_address; }

 private:
  QTemporaryDir m_folder;
  QProcess m_daemon;
  QString m_address;
  QStringList m_names;
};

}  // namespace quill::test
