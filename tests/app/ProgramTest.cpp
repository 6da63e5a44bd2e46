#include "app/Program.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/DeviceFiles.h"
#include "platform/RecoveryFiles.h"
#include "platform/RegistryStore.h"
#include "platform/Services.h"

namespace quill {
namespace {

class ProgramAt : public testing::Test {
 protected:
  ProgramOptions Options() {
    ProgramOptions options;
    options.Where = HomePlaces(m_folder.path(), {});
    return options;
  }

  QTemporaryDir m_folder;
};

TEST_F(ProgramAt, AHomeInstallsTheServicesForItsLife) {
  {
    const Program program(Options());
    EXPECT_TRUE(g_services.Clock);
    EXPECT_TRUE(g_services.InputPanel);
    EXPECT_TRUE(g_services.Sounds);
    ASSERT_TRUE(g_services.Files);
    EXPECT_TRUE(g_services.Files->WriteWhole(u"\\My Documents\\A.pwi"_qs, "memo"));
    ASSERT_TRUE(g_services.Recovery);
    EXPECT_TRUE(g_services.Recovery->Write(u"a.json"_qs, "kept"));
    EXPECT_FALSE(g_services.Files->Exists(u"\\recovery-a.json"_qs));
    ASSERT_TRUE(g_services.Registry);
    EXPECT_TRUE(g_services.Registry->PutNumber(u"Key"_qs, u"Name"_qs, 7));
  }
  EXPECT_FALSE(g_services.Clock);
  EXPECT_FALSE(g_services.InputPanel);
  EXPECT_FALSE(g_services.Sounds);
  EXPECT_FALSE(g_services.Registry);
  EXPECT_FALSE(g_services.Files);
  EXPECT_FALSE(g_services.Recovery);
  EXPECT_TRUE(QFileInfo::exists(m_folder.filePath(u"My Documents/A.pwi"_qs)));
  const Program again(Options());
  EXPECT_EQ(g_services.Registry->QueryNumber(u"Key"_qs, u"Name"_qs), 7U);
  EXPECT_EQ(g_services.Recovery->Read(u"a.json"_qs), QByteArray("kept"));
}

TEST_F(ProgramAt, AHomeOpensTheEmbeddedStoreThere) {
  Program program(Options());
  EXPECT_EQ(program.Store().Create(), 0);
  EXPECT_EQ(program.Store().Logon(), 0);
  EXPECT_TRUE(QFileInfo::exists(program.Where().StoreFile));
}

TEST_F(ProgramAt, AHomeSetsUpItsStoreAsItsSettingsSay) {
  {
    const Program program(Options());
    ASSERT_TRUE(g_services.Registry->PutNumber(u"\\Software\\Fennick\\Quill\\Store"_qs,
                                               u"AppointmentInkLimit"_qs, 3));
  }
  Program program(Options());
  ASSERT_EQ(program.Store().Create(), 0);
  ASSERT_EQ(program.Store().Logon(), 0);
  ASSERT_EQ(program.Store().OpenFolder(FolderKind::Calendar), 0);
  AppointmentItem item;
  EXPECT_TRUE(program.Store().Calendar()->PutInk(item, "ink"));
  EXPECT_FALSE(program.Store().Calendar()->PutInk(item, "ink."));
}

TEST_F(ProgramAt, AHomeStartsForTheFirstTimeOnce) {
  Program program(Options());
  EXPECT_TRUE(program.TakeFirstStart());
  EXPECT_FALSE(program.TakeFirstStart());
}

TEST_F(ProgramAt, AHomeKeepsItsLock) {
  ProgramOptions options = Options();
  EXPECT_FALSE(Program(Options()).IsInstance());
  options.Lock = std::make_unique<InstanceLock>(m_folder.path());
  ASSERT_EQ(options.Lock->Take(), LockOutcome::Taken);
  const auto program = std::make_unique<Program>(std::move(options));
  EXPECT_TRUE(program->IsInstance());
  EXPECT_EQ(InstanceLock(m_folder.path()).Take(), LockOutcome::HeldByOther);
}

TEST_F(ProgramAt, AHomeHandsItsFirstRequestOverOnce) {
  ProgramOptions options = Options();
  options.FirstRequest = Request{RequestKind::Show, u"Ann"_qs, {}};
  Program program(std::move(options));
  QList<Request> seen;
  const RequestHandler handler = [&seen](const Request& request) {
    seen.append(request);
    return true;
  };
  EXPECT_TRUE(program.HandleFirstRequest(handler));
  EXPECT_TRUE(program.HandleFirstRequest(handler));
  EXPECT_EQ(seen, QList<Request>({{RequestKind::Show, u"Ann"_qs, {}}}));
  EXPECT_EQ(program.ExitCode(0), 0);
}

TEST_F(ProgramAt, ARefusedFirstRequestShowsInTheExitCode) {
  ProgramOptions options = Options();
  options.FirstRequest = Request{RequestKind::Show, u"Ann"_qs, {}};
  Program program(std::move(options));
  EXPECT_EQ(program.ExitCode(0), 0);
  EXPECT_FALSE(program.HandleFirstRequest([](const Request&) { return false; }));
  EXPECT_EQ(program.ExitCode(0), 1);
  EXPECT_EQ(program.ExitCode(5), 5);
}

}  // namespace
}  // namespace quill
