#include "cli/WindowStart.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QThread>

#include <gmock/gmock.h>

#include "app/RequestChannel.h"
#include "cli/ConsoleFixture.h"
#include "support/OrdinaryUser.h"

namespace quill {
namespace {

using testing::HasSubstr;

QProcessEnvironment WithDisplay() {
  QProcessEnvironment environment;
  environment.insert(u"DISPLAY"_qs, u":5"_qs);
  return environment;
}

class WindowStartOf : public test::ConsoleFixture {
 protected:
  WindowStart Start(const QStringList& words,
                    const QProcessEnvironment& environment = WithDisplay()) {
    return StartWindow(ParseCommandLine(WithHome(words)), environment, m_watched);
  }
  // From an icon: nobody reads what is written.
  WindowStart StartUnwatched(const QStringList& words) {
    return StartWindow(ParseCommandLine(WithHome(words)), WithDisplay(), m_console);
  }

  // Starts in another thread while this one serves the requests of the first program's window.
  int StartBesideWindow(const Program& first, const QStringList& words) {
    RequestChannel channel(RequestSocket(first.Where()), [this](const Request& request) {
      m_seen.append(request);
      return m_answer;
    });
    EXPECT_TRUE(channel.Listen());
    int exitCode = -1;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
      const WindowStart second = Start(words);
      EXPECT_FALSE(second.Running);
      exitCode = second.ExitCode;
    }));
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    return exitCode;
  }

  QString CardFile() const {
    return MakeFile(u"card.vcf"_qs, "BEGIN:VCARD\nN:Abel;Ann\nEND:VCARD\n");
  }

  const Console m_watched{m_out, m_err, true};
  QList<Request> m_seen;
  bool m_answer = true;
};

TEST_F(WindowStartOf, TheFirstProgramHoldsTheHome) {
  const WindowStart start = Start({u"--scale"_qs, u"3"_qs, u"--show"_qs, u"Ann"_qs});
  ASSERT_TRUE(start.Running);
  EXPECT_TRUE(start.Running->IsInstance());
  EXPECT_EQ(start.Running->AskedScale(), Scale{12});
  EXPECT_EQ(start.Running->Where().StoreFile, Home() + u"/store.db"_qs);
  start.Running->HandleFirstRequest([this](const Request& request) {
    m_seen.append(request);
    return true;
  });
  EXPECT_EQ(m_seen, QList<Request>({{RequestKind::Show, u"Ann"_qs, {}}}));
}

TEST_F(WindowStartOf, TheSecondProgramBringsTheFirstToTheFront) {
  const WindowStart first = Start({});
  EXPECT_EQ(StartBesideWindow(*first.Running, {}), kExitDone);
  EXPECT_EQ(m_seen, QList<Request>({Request{RequestKind::Activate, {}, {}}}));
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(WindowStartOf, TheSecondProgramHandsItsRequestOver) {
  const WindowStart first = Start({});
  EXPECT_EQ(StartBesideWindow(*first.Running, {u"--new"_qs, u"Ann"_qs}), kExitDone);
  EXPECT_EQ(m_seen, QList<Request>({{RequestKind::New, u"Ann"_qs, {}}}));
}

TEST_F(WindowStartOf, ARefusedRequestIsSaid) {
  const WindowStart first = Start({});
  m_answer = false;
  EXPECT_EQ(StartBesideWindow(*first.Running, {u"--new"_qs, u"Ann"_qs}), kExitPartly);
  EXPECT_EQ(TakeErr(), "quill: the open window could not do it\n");
}

TEST_F(WindowStartOf, ThatThereIsNoSuchContactIsSaid) {
  const WindowStart first = Start({});
  m_answer = false;
  EXPECT_EQ(StartBesideWindow(*first.Running, {u"--show"_qs, u"Ann"_qs}), kExitPartly);
  EXPECT_EQ(m_seen, QList<Request>({{RequestKind::Show, u"Ann"_qs, {}}}));
  EXPECT_EQ(TakeErr(), "quill: there is no contact \"Ann\"\n");
}

TEST_F(WindowStartOf, AWindowIsAskedForAWholeName) {
  const WindowStart first = Start({CardFile()});
  EXPECT_EQ(StartBesideWindow(*first.Running, {u"--show"_qs, u"abel"_qs}), kExitDone);
  EXPECT_EQ(m_seen, QList<Request>({{RequestKind::Show, u"Abel, Ann"_qs, {}}}));
}

TEST_F(WindowStartOf, ItsOwnWindowIsAskedForAWholeName) {
  ASSERT_EQ(Run({u"import"_qs, CardFile()}), kExitDone);
  const WindowStart start = Start({u"--show"_qs, u"Ab"_qs});
  ASSERT_TRUE(start.Running);
  start.Running->HandleFirstRequest([this](const Request& request) {
    m_seen.append(request);
    return true;
  });
  EXPECT_EQ(m_seen, QList<Request>({{RequestKind::Show, u"Abel, Ann"_qs, {}}}));
}

TEST_F(WindowStartOf, AScaleForTheOpenWindowIsSaidToDoNothing) {
  const WindowStart first = Start({});
  EXPECT_EQ(StartBesideWindow(*first.Running, {u"--scale"_qs, u"2"_qs}), kExitPartly);
  EXPECT_EQ(m_seen.size(), 1);
  EXPECT_EQ(TakeErr(), "quill: the window is open already and keeps its scale\n");
}

TEST_F(WindowStartOf, AWindowThatDoesNotAnswerIsSaid) {
  const WindowStart first = Start({});
  const WindowStart second = Start({});
  EXPECT_FALSE(second.Running);
  EXPECT_EQ(second.ExitCode, kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: a window of this home is open, but does not answer\n");
}

TEST_F(WindowStartOf, FilesAreBroughtInFirst) {
  const WindowStart start = Start({CardFile()});
  EXPECT_TRUE(start.Running);
  EXPECT_THAT(TakeOut(), HasSubstr("1 new"));
  EXPECT_EQ(Run({u"list"_qs}), kExitDone) << "beside the window";
  EXPECT_EQ(TakeOut(), "Abel, Ann\n");
}

TEST_F(WindowStartOf, FilesAreBroughtInBesideAnOpenWindow) {
  const WindowStart first = Start({});
  EXPECT_EQ(StartBesideWindow(*first.Running, {CardFile()}), kExitDone);
  EXPECT_EQ(m_seen, QList<Request>({Request{RequestKind::Activate, {}, {}}}));
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
}

TEST_F(WindowStartOf, MemosAreForTheWindowToOpen) {
  const QString memo = MakeFile(u"a.pwi"_qs, "ink");
  const WindowStart start = Start({CardFile(), memo});
  ASSERT_TRUE(start.Running);
  EXPECT_THAT(TakeOut(), HasSubstr("1 new"));
  start.Running->HandleFirstRequest([this](const Request& request) {
    m_seen.append(request);
    return true;
  });
  EXPECT_EQ(m_seen, QList<Request>({{RequestKind::Open, {}, {memo}}}));
}

TEST_F(WindowStartOf, MemosAreHandedOverToAnOpenWindow) {
  const QString memo = MakeFile(u"a.PWI"_qs, "ink");
  const WindowStart first = Start({});
  EXPECT_EQ(StartBesideWindow(*first.Running, {memo}), kExitDone);
  EXPECT_EQ(m_seen, QList<Request>({Request{RequestKind::Open, {}, {memo}}}));
}

TEST_F(WindowStartOf, AFileThatCannotBeReadEndsTheStart) {
  const WindowStart start = Start({u"/proc/self/mem"_qs});
  EXPECT_FALSE(start.Running);
  EXPECT_EQ(start.ExitCode, kExitFailed);
  EXPECT_THAT(TakeErr(), HasSubstr("quill: /proc/self/mem: "));
}

TEST_F(WindowStartOf, AMistypedCommandIsSaidBeforeAllElse) {
  const WindowStart start = Start({u"improt"_qs, CardFile()}, {});
  EXPECT_FALSE(start.Running);
  EXPECT_EQ(start.ExitCode, kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: there is neither a file nor a command improt\n");
  EXPECT_FALSE(QFileInfo::exists(Home()));
}

TEST_F(WindowStartOf, ALaterFileThatIsMissingLeavesTheOthersIn) {
  const WindowStart start = Start({CardFile(), u"improt"_qs});
  EXPECT_FALSE(start.Running);
  EXPECT_EQ(start.ExitCode, kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: improt: No such file or directory\n");
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_THAT(TakeOut(), testing::EndsWith("\nAbel, Ann\n"));
}

TEST_F(WindowStartOf, AMemoThatIsMissingIsSaidBeforeAllElse) {
  EXPECT_EQ(Start({CardFile(), u"no.pwi"_qs}).ExitCode, kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: there is neither a file nor a command no.pwi\n");
  EXPECT_FALSE(QFileInfo::exists(Home()));
}

TEST_F(WindowStartOf, WithoutADisplayItSaysHowToLook) {
  const WindowStart start = Start({}, {});
  EXPECT_FALSE(start.Running);
  EXPECT_EQ(start.ExitCode, kExitFailed);
  const std::string err = TakeErr();
  EXPECT_THAT(err, HasSubstr("no display"));
  EXPECT_THAT(err, HasSubstr("quill-driver"));
  EXPECT_THAT(err, HasSubstr("ssh -L"));
  EXPECT_FALSE(QFileInfo::exists(Home())) << "nothing is made for it";
}

TEST_F(WindowStartOf, WithoutADisplayWhatIsProposedKeepsTheHome) {
  Start({u"--home"_qs, u"/tmp/it's here"_qs}, {});
  const std::string err = TakeErr();
  EXPECT_THAT(err, HasSubstr("| quill-driver --home '/tmp/it'\\''s here'\n"));
  EXPECT_THAT(err, HasSubstr("quill --home '/tmp/it'\\''s here' &\n"));
}

TEST_F(WindowStartOf, AnyKindOfDisplayWillDo) {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    QProcessEnvironment environment;
    environment.insert(QString::fromLatin1(name), u"x"_qs);
    EXPECT_TRUE(Start({}, environment).Running) << name;
  }
}

TEST_F(WindowStartOf, AHomeThatCannotBeMadeIsSaid) {
  MakeFile(u"home"_qs, "");
  const WindowStart start = Start({});
  EXPECT_FALSE(start.Running);
  EXPECT_EQ(start.ExitCode, kExitFailed);
  EXPECT_THAT(TakeErr(), HasSubstr("cannot make the folder"));
}

TEST_F(WindowStartOf, WhatEndsItIsShownByAWindowWhereNobodyWatches) {
  MakeFile(u"home"_qs, "");
  const WindowStart start = StartUnwatched({});
  ASSERT_TRUE(start.Running);
  EXPECT_FALSE(start.Running->IsInstance());
  EXPECT_THAT(start.Running->Problem().toStdString(), HasSubstr("cannot make the folder"));
  EXPECT_EQ(start.Running->ExitCode(0), kExitFailed);
  EXPECT_EQ(TakeErr(), start.Running->Problem().toStdString()) << "on the console as well";
}

TEST_F(WindowStartOf, ALockThatCannotBeTakenIsShownByAWindow) {
  ASSERT_TRUE(QDir().mkpath(Home()));
  const QFileDevice::Permissions entering{QFileDevice::ExeOwner | QFileDevice::ExeGroup |
                                          QFileDevice::ExeOther};
  for (const QString& folder : {Home(), m_folder.path()}) QFile::setPermissions(folder, entering);
  {
    const test::OrdinaryUser user;
    const WindowStart start = StartUnwatched({});
    ASSERT_TRUE(start.Running);
    EXPECT_EQ(start.Running->Problem().toStdString(),
              "quill: no permission to write " + Home().toStdString() + "/quill.lock\n");
  }
  for (const QString& folder : {m_folder.path(), Home()})
    QFile::setPermissions(folder, entering | QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

TEST_F(WindowStartOf, AFileThatCannotBeReadIsShownByAWindow) {
  const WindowStart start = StartUnwatched({u"/proc/self/mem"_qs});
  ASSERT_TRUE(start.Running);
  EXPECT_THAT(start.Running->Problem().toStdString(), HasSubstr("/proc/self/mem"));
}

TEST_F(WindowStartOf, AStartThatNobodyWatchesIsAStart) {
  const WindowStart start = StartUnwatched({u"--show"_qs, u"Ann"_qs});
  ASSERT_TRUE(start.Running);
  EXPECT_TRUE(start.Running->IsInstance());
  EXPECT_EQ(start.Running->Problem(), QString());
  EXPECT_EQ(start.Running->ExitCode(0), kExitDone);
}

TEST_F(WindowStartOf, AMistypedCommandIsForTheConsoleAlone) {
  const WindowStart start = StartUnwatched({u"improt"_qs});
  EXPECT_FALSE(start.Running);
  EXPECT_EQ(start.ExitCode, kExitFailed);
}

}  // namespace
}  // namespace quill
