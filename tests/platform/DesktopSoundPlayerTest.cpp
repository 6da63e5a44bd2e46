#include "platform/DesktopSoundPlayer.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include "platform/DesktopDeviceFiles.h"

namespace quill {
namespace {

constexpr int kTooLong = 20'000;                                // milliseconds, for what takes some
constexpr char kEndless[] = "exec /usr/bin/tail -f /dev/null";  // of a player
const QString kBell = QStringLiteral("\\Windows\\Bell.wav");

// Tells whether a process still lives: it has inherited the end that is written to.
class LifeLine {
 public:
  LifeLine() { EXPECT_EQ(pipe(m_ends), 0); }
  ~LifeLine() {
    Close(m_ends[0]);
    Close(m_ends[1]);
  }
  LifeLine(const LifeLine&) = delete;
  LifeLine& operator=(const LifeLine&) = delete;

  // From now on only the process has it.
  void LetGo() { Close(m_ends[1]); }
  bool IsHeld() const {
    fcntl(m_ends[0], F_SETFL, O_NONBLOCK);
    char byte = 0;
    return read(m_ends[0], &byte, 1) != 0;
  }

 private:
  static void Close(int& end) {
    if (end >= 0) close(end);
    end = -1;
  }

  int m_ends[2] = {-1, -1};
};

// A desktop with made-up players, which write down what they are to play.
class DesktopSounds : public testing::Test {
 protected:
  DesktopSounds() : m_path(qgetenv("PATH")) {
    qputenv("PATH", QFile::encodeName(m_programs.path()));
    QDir(m_home.path()).mkdir(QStringLiteral("Windows"));
    Write(m_home.filePath(QStringLiteral("Windows/Bell.wav")), "sound");
    m_sounds.Ended = [this] {
      ++m_ends;
      m_loop.quit();
    };
  }
  ~DesktopSounds() override {
    qputenv("PATH", m_path);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static void Write(const QString& name, const QByteArray& content) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }

  void PutProgram(const QString& name, const QByteArray& script) {
    const QString file = m_programs.filePath(name);
    Write(file, script);
    ASSERT_TRUE(
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  }
  void PutPlayer(const QString& name, const QByteArray& command = {}) {
    PutProgram(name, "#!/bin/sh\necho \"" + name.toLatin1() + " $*\" >>" +
                         QFile::encodeName(m_programs.filePath(QStringLiteral("played"))) + '\n' +
                         command);
  }

  // What players were started with, a line for each.
  QByteArray Played() const {
    QFile file(m_programs.filePath(QStringLiteral("played")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QByteArray LineOf(const QByteArray& player) const {
    return player + ' ' + QFile::encodeName(m_home.filePath(QStringLiteral("Windows/Bell.wav"))) +
           '\n';
  }

  void AwaitEnd() {
    QTimer::singleShot(kTooLong, &m_loop, [this] { m_loop.exit(1); });
    EXPECT_EQ(m_loop.exec(), 0) << "it does not end";
  }

  QByteArray m_path;
  QTemporaryDir m_programs;
  QTemporaryDir m_home;
  DesktopDeviceFiles m_files{{.Device = m_home.path(),
                              .MyDocuments = m_home.filePath(QStringLiteral("My Documents")),
                              .Own = {m_home.filePath(QStringLiteral("store.db"))}}};
  QEventLoop m_loop;
  int m_ends = 0;
  DesktopSoundPlayer m_sounds{m_files};
};

TEST_F(DesktopSounds, AFileIsPlayedByTheFirstPlayerThatIsFoundAndEnds) {
  PutPlayer(QStringLiteral("aplay"));
  m_sounds.Play(kBell);
  AwaitEnd();
  PutPlayer(QStringLiteral("paplay"));
  m_sounds.Play(QStringLiteral("\\windows\\BELL.WAV"));
  AwaitEnd();
  PutPlayer(QStringLiteral("pw-play"));
  m_sounds.Play(kBell);
  AwaitEnd();
  EXPECT_EQ(Played(), LineOf("aplay") + LineOf("paplay") + LineOf("pw-play"));
  EXPECT_EQ(m_ends, 3);
}

TEST_F(DesktopSounds, AFileIsSilentAndEndsWithoutAPlayer) {
  m_sounds.Play(kBell);
  EXPECT_EQ(m_ends, 0) << "before whoever plays it has gone on";
  AwaitEnd();
  EXPECT_EQ(m_ends, 1);
}

TEST_F(DesktopSounds, AFileIsSilentAndEndsWhenThePlayerFails) {
  PutPlayer(QStringLiteral("pw-play"), "echo 'no device' >&2; exit 1");
  m_sounds.Play(kBell);
  AwaitEnd();
  EXPECT_EQ(m_ends, 1);
}

TEST_F(DesktopSounds, AFileIsSilentAndEndsWhenThePlayerDoesNotStart) {
  PutProgram(QStringLiteral("pw-play"), "#!/no/such/interpreter\n");
  m_sounds.Play(kBell);
  EXPECT_EQ(m_ends, 0);
  AwaitEnd();
  EXPECT_EQ(m_ends, 1);
}

TEST_F(DesktopSounds, WhatIsNoFileOfTheDeviceIsNotPlayed) {
  PutPlayer(QStringLiteral("pw-play"));
  const QTemporaryDir elsewhere;
  Write(elsewhere.filePath(QStringLiteral("Bell.wav")), "sound");
  Write(m_home.filePath(QStringLiteral("store.db")), "contacts");
  ASSERT_TRUE(QFile::link(elsewhere.path(), m_home.filePath(QStringLiteral("Linked"))));
  for (const QString& path :
       {QStringLiteral("\\Linked\\Bell.wav"), QStringLiteral("\\store.db"),
        QStringLiteral("\\Windows\\..\\Windows\\Bell.wav"), QStringLiteral("\\Windows\\No.wav"),
        QStringLiteral("\\Windows"), QString()}) {
    m_sounds.Play(path);
    AwaitEnd();
  }
  EXPECT_EQ(Played(), QByteArray());
  EXPECT_EQ(m_ends, 6);
}

TEST_F(DesktopSounds, StopEndsThePlayerWithoutSayingSo) {
  PutPlayer(QStringLiteral("pw-play"), kEndless);
  LifeLine line;
  m_sounds.Play(kBell);
  line.LetGo();
  EXPECT_TRUE(line.IsHeld());
  m_sounds.Stop();
  EXPECT_FALSE(line.IsHeld());
  QCoreApplication::processEvents();
  EXPECT_EQ(m_ends, 0);
}

TEST_F(DesktopSounds, StopWithNothingPlayingDoesNothing) {
  m_sounds.Stop();
  m_sounds.Play(kBell);
  m_sounds.Stop();
  QCoreApplication::processEvents();
  EXPECT_EQ(m_ends, 0);
}

TEST_F(DesktopSounds, TheNextOneTakesThePlaceOfTheOneBefore) {
  PutPlayer(QStringLiteral("pw-play"), kEndless);
  LifeLine line;
  m_sounds.Play(kBell);
  line.LetGo();
  PutPlayer(QStringLiteral("pw-play"));
  m_sounds.Play(kBell);
  EXPECT_FALSE(line.IsHeld());
  AwaitEnd();
  EXPECT_EQ(m_ends, 1);
}

TEST_F(DesktopSounds, OneMayBePlayedAgainWhenItEnds) {
  PutPlayer(QStringLiteral("pw-play"));
  const std::function<void()> count = m_sounds.Ended;
  m_sounds.Ended = [&] {
    m_sounds.Ended = count;
    m_sounds.Play(kBell);
  };
  m_sounds.Play(kBell);
  AwaitEnd();
  EXPECT_EQ(Played(), LineOf("pw-play") + LineOf("pw-play"));
}

TEST_F(DesktopSounds, TheApplicationsEndIsTheirs) {
  PutPlayer(QStringLiteral("pw-play"), kEndless);
  LifeLine line;
  m_sounds.Play(kBell);
  line.LetGo();
  QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
  QCoreApplication::exec();
  EXPECT_FALSE(line.IsHeld());
  EXPECT_EQ(m_ends, 0);
}

TEST_F(DesktopSounds, ThePlayersEndIsTheirs) {
  PutPlayer(QStringLiteral("pw-play"), kEndless);
  LifeLine line;
  {
    DesktopSoundPlayer sounds(m_files);
    sounds.Play(kBell);
    line.LetGo();
    EXPECT_TRUE(line.IsHeld());
  }
  EXPECT_FALSE(line.IsHeld());
}

}  // namespace
}  // namespace quill
