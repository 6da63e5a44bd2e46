#include "app/ui/ContactsApp.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>
#include <QTimer>

#include "app/MemoWatch.h"
#include "app/RequestBus.h"
#include "app/RequestChannel.h"
#include "app/SampleSounds.h"
#include "app/ui/AboutDialog.h"
#include "app/ui/ContactsDoc.h"
#include "app/ui/ExchangeReport.h"
#include "app/ui/FileExchange.h"
#include "app/ui/MainFrame.h"
#include "app/ui/ShellCommands.h"
#include "app/ui/ShellInfrared.h"
#include "ink/ui/InkAccessibility.h"
#include "list/ui/ContactsView.h"
#include "list/ui/MemoFollower.h"
#include "memo/MemoState.h"
#include "platform/DesktopDeviceFiles.h"
#include "platform/Services.h"
#include "platform/ui/Accessibility.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Look.h"
#include "platform/ui/OuterWindow.h"
#include "platform/ui/Screen.h"
#include "platform/ui/ScreenPrompt.h"
#include "resources/Ids.h"
#include "resources/Strings.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

// Kinds of a request by another program.
constexpr int kShowContact = 1;
constexpr int kNewContact = 2;

// In desktop pixels: what the screen's logical size is at a scale of one.
QSize DesktopPixels(QSize logical, Scale scale) { return logical * scale.Quarters / 4; }

}  // namespace

CContactsApp::CContactsApp(Program& program, const ShellStart& start)
    : m_program(program),
      m_start(start),
      m_settings(start.Settings),
      m_outer(std::make_unique<COuterWindow>()) {
  SetUpLook(*qApp);
  InstallAccessibility();
  InstallInkAccessibility();
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QGuiApplication::setDesktopFileName(QStringLiteral("org.fennick.Quill"));
  g_services.Timers = &m_timers;
  m_screen = new CScreen(m_outer.get());
  m_prompt = std::make_unique<ScreenPrompt>(*m_screen);
  g_services.Prompt = m_prompt.get();
  m_files = std::make_unique<FileExchange>(*m_screen, m_program.Where());
  m_infrared = std::make_unique<ShellInfrared>(*m_screen, m_program, m_timers);
  m_commands = std::make_unique<ShellCommands>(*this);
  m_screen->SetShellCommands(m_commands.get());
  m_screen->Closed = [this] { Leave({}); };
  m_outer->SetScreen(m_screen);
  m_outer->CloseAsked = [this] { m_screen->CloseAll(); };
}

CContactsApp::~CContactsApp() {
  m_bus.reset();
  m_channel.reset();
  m_infrared.reset();
  m_memoWatch.reset();
  m_memoFollower.reset();
  m_frame.reset();
  m_outer.reset();
  g_services.Prompt = nullptr;
  g_services.Timers = nullptr;
}

ShellEnd CContactsApp::Run() {
  const Scale fitted = FittedScale();
  if (fitted != m_start.At) return {0, ShellStart{fitted, ScaleOrigin::Settled, m_settings}};
  InitInstance();
  if (!m_screen->IsClosing()) QApplication::exec();
  return m_end;
}

Scale CContactsApp::FittedScale() const {
  if (m_start.Origin != ScaleOrigin::Remembered) return m_start.At;
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (IsFullScreen()) return LargestFitting(DesktopPixels(screen->size(), m_start.At));
  return FitScale(m_start.At, DesktopPixels(screen->availableSize(), m_start.At));
}

void CContactsApp::InitInstance() {
  m_document = std::make_unique<CContactsDoc>();
  m_frame = std::make_unique<CMainFrame>(*m_screen, *m_commands);
  m_frame->show();
  AcceptDrops();
  FollowInfrared();
  ShowMainWindow();  // before the session: opening it may have to show a message
  if (!m_program.Problem().isEmpty()) return TellProblem();
  Listen();
  m_program.TakeFirstStart() ? SetUp() : m_frame->View().ShowState();
  if (m_screen->IsClosing()) return;
  RestoreFocus();
  m_frame->WatchStore();
  FollowMemos();
  QTimer::singleShot(0, m_frame.get(), [this] {
    // A refusal is logged there, and in the exit code.
    m_program.HandleFirstRequest([this](const Request& asked) { return HandleRequest(asked); });
  });
}

void CContactsApp::SetUp() {
  m_frame->View().OnInitialUpdate(m_program.Store());
  MakeSampleSounds(*g_services.Files);
}

// And nothing else: the window is here for that alone.
void CContactsApp::TellProblem() {
  ExchangeReport report;
  report.Target().Err << m_program.Problem();
  report.Show(kExitFailed, {});
  QTimer::singleShot(0, m_screen, [this] { m_screen->CloseAll(); });
}

void CContactsApp::RestoreFocus() {
  m_start.SearchCaret ? m_frame->View().SetSearchCaret(*m_start.SearchCaret)
                      : m_frame->View().FocusList();
}

void CContactsApp::AcceptDrops() {
  m_files->Imported = [this] { m_frame->View().Rebuild(); };
  m_files->MemoTaken = [this](const QString& path) { m_frame->View().OpenMemoFile(path); };
  m_outer->MayDrop = [this] { return IsIdle(); };
  m_outer->FilesDropped = [this](const QStringList& files) { TakeLater(files); };
}

// As of a change that others made.
void CContactsApp::FollowInfrared() {
  m_infrared->ContactsReceived = [this] { m_frame->PostStoreMessage(kMessageItemWritten, 0, 0); };
}

void CContactsApp::FollowMemos() {
  const DesktopDeviceFiles files(DeviceRootsOf(m_program.Where()));
  m_memoFollower = std::make_unique<MemoFollower>(m_frame->View());
  m_memoWatch = std::make_unique<MemoWatch>(files.FileAt(g_memo.Folder),
                                            [this] { m_memoFollower->OnMemosChanged(); });
}

void CContactsApp::ShowMainWindow() {
  m_outer->setWindowTitle(kApplicationTitle.toString());
  m_outer->Painted = [this] {  // finding it in the desktop's theme takes as long as all else here
    m_outer->setWindowIcon(QIcon::fromTheme(QGuiApplication::desktopFileName()));
  };
  IsFullScreen() ? m_outer->ShowOnFullScreen() : m_outer->ShowWindowed();
  m_outer->raise();
  m_outer->activateWindow();
}

void CContactsApp::Listen() {
  if (!m_program.IsInstance()) return;
  const RequestHandler handler = [this](const Request& request) { return HandleRequest(request); };
  m_channel = std::make_unique<RequestChannel>(RequestSocket(m_program.Where()), handler);
  m_channel->Listen();  // a failure is logged: the window works without
  m_bus = std::make_unique<RequestBus>(handler);
  QTimer::singleShot(0, m_bus.get(), [this] {
    m_bus->JoinSession();
    m_infrared->JoinBluetooth();
  });
}

bool CContactsApp::HandleRequest(const Request& request) {
  m_outer->setWindowState(m_outer->windowState() & ~Qt::WindowMinimized);
  m_outer->raise();
  m_outer->activateWindow();
  switch (request.Kind) {
    case RequestKind::Activate:
      return true;
    case RequestKind::Show:
      return m_frame->CopyData(kShowContact, request.Text);
    case RequestKind::New:
      return m_frame->CopyData(kNewContact, request.Text);
    case RequestKind::Open:
      TakeLater(request.Files);
      return true;
  }
  Q_UNREACHABLE();
}

// Not at once: who hands them over waits for an answer.
void CContactsApp::TakeLater(const QStringList& files) {
  QTimer::singleShot(0, m_frame.get(), [this, files] { m_files->Take(files); });
}

void CContactsApp::ShowAbout() { CAboutDialog(*m_screen).DoModal(); }

bool CContactsApp::IsFullScreen() const {
  const QSize logical = QGuiApplication::primaryScreen()->size();
  return m_settings.FullScreen.value_or(IsHandheldScreen(DesktopPixels(logical, m_start.At)));
}

bool CContactsApp::IsIdle() const { return m_screen->IsIdle(); }

std::optional<Scale> CContactsApp::LargerScale() const {
  const QSize available = QGuiApplication::primaryScreen()->availableSize();
  const Scale larger = StepUp(m_start.At, DesktopPixels(available, m_start.At));
  return IsFullScreen() || larger == m_start.At ? std::nullopt : std::optional(larger);
}

std::optional<Scale> CContactsApp::SmallerScale() const {
  const Scale smaller = StepDown(m_start.At);
  return IsFullScreen() || smaller == m_start.At ? std::nullopt : std::optional(smaller);
}

// A receive would end with the shell.
bool CContactsApp::MayChangeScale() const { return IsIdle() && !m_infrared->IsReceiving(); }

bool CContactsApp::MayLeave() const { return MayChangeScale() && !m_screen->IsPenDown(); }

void CContactsApp::ChangeScale(Scale scale) {
  if (!MayLeave()) return;
  m_settings.WindowScale = scale;
  LeaveFor(scale);
}

void CContactsApp::ToggleFullScreen() {
  if (!MayLeave()) return;
  const bool fullScreen = !IsFullScreen();
  const QScreen* const screen = QGuiApplication::primaryScreen();
  const QSize whole = DesktopPixels(screen->size(), m_start.At);
  const QSize available = DesktopPixels(screen->availableSize(), m_start.At);
  m_settings.FullScreen = fullScreen;
  LeaveFor(fullScreen ? LargestFitting(whole) : FitScale(m_settings.WindowScale, available));
}

void CContactsApp::LeaveFor(Scale next) {
  CommitInput();
  WriteShellSettings(*g_services.Registry, m_settings);  // a failure is logged: this run goes on
  Leave({0, ShellStart{next, ScaleOrigin::Settled, m_settings, m_frame->View().SearchCaret()}});
}

void CContactsApp::Leave(const ShellEnd& end) {
  m_end = end;
  QApplication::exit(end.ExitCode);
}

}  // namespace quill
