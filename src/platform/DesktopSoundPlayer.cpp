#include "platform/DesktopSoundPlayer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <array>

#include "platform/DesktopDeviceFiles.h"

namespace quill {

namespace {

Q_LOGGING_CATEGORY(logSound, "quill.sound")

constexpr std::array<QStringView, 3> kPlayers = {u"pw-play", u"paplay", u"aplay"};

QString FindPlayer() {
  for (const QStringView player : kPlayers) {
    const QString program = QStandardPaths::findExecutable(player.toString());
    if (!program.isEmpty()) return program;
  }
  return {};
}

void Complain(const QByteArray& complaint) {
  if (!complaint.isEmpty()) qCWarning(logSound) << "the player says" << complaint;
}

}  // namespace

DesktopSoundPlayer::DesktopSoundPlayer(const DesktopDeviceFiles& files) : m_files(files) {}

DesktopSoundPlayer::~DesktopSoundPlayer() { Stop(); }

void DesktopSoundPlayer::Play(const QString& path) {
  Stop();
  m_player = std::make_unique<QProcess>();
  const QString file = m_files.FileAt(path);
  const QString program = FindPlayer();
  // Anything but a plain file, such as a pipe, could keep the player waiting.
  if (!QFileInfo(file).isFile()) {
    qCWarning(logSound) << "no sound to play:" << path;
  } else if (program.isEmpty()) {
    qCWarning(logSound) << "no program here plays" << path;
  } else {
    return Begin(program, file);
  }
  QTimer::singleShot(0, m_player.get(), [this] { End(); });
}

void DesktopSoundPlayer::Stop() {
  if (!m_player) return;
  m_player->disconnect();
  m_player->kill();
  m_player->waitForFinished();
  m_player.reset();
}

// Queued: a program that cannot be started may say so before Play has returned.
void DesktopSoundPlayer::Begin(const QString& program, const QString& file) {
  QProcess* const player = m_player.get();
  const auto finished = [this, player] {
    Complain(player->readAllStandardError().trimmed());
    End();
  };
  const auto failed = [this, player](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;  // the others end it, or do not matter
    Complain(player->errorString().toUtf8());
    End();
  };
  QObject::connect(player, &QProcess::finished, player, finished, Qt::QueuedConnection);
  QObject::connect(player, &QProcess::errorOccurred, player, failed, Qt::QueuedConnection);
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, player,
                   [this] { Stop(); });
  player->setStandardInputFile(QProcess::nullDevice());
  player->setStandardOutputFile(QProcess::nullDevice());
  player->start(program, {file});
}

void DesktopSoundPlayer::End() {
  m_player.release()->deleteLater();  // its own signal led here
  if (Ended) Ended();
}

}  // namespace quill
