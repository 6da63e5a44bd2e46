// One shell from its start to its end; making one after another is tested from outside.
#include "app/ui/ContactsApp.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>
#include <utility>

#include "app/ui/ShellInfrared.h"
#include "list/ListState.h"
#include "memo/MemoState.h"
#include "platform/Services.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/OuterWindow.h"
#include "platform/ui/Screen.h"
#include "platform/ui/TextLabel.h"
#include "platform_ui/ScreenInput.h"
#include "platform_ui/Steps.h"
#include "resources/Ids.h"
#include "settings/Settings.h"
#include "store/ContactStore.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

constexpr Scale kStartScale{4};

class ContactsAppTest : public testing::Test {
 protected:
  ContactsAppTest() : m_program(OptionsAt(m_home.path())) {}
  explicit ContactsAppTest(ProgramOptions options) : m_program(std::move(options)) {}
  ~ContactsAppTest() override {
    CloseSession();
    g_store = {};
    g_list = {};
    g_memo = {};
    g_settings = {};
  }

  // Runs a shell; the steps are taken in whatever loop waits, the last one must end it.
  ShellEnd Run(const std::function<std::vector<Step>()>& steps) {
    CContactsApp app(m_program, {kStartScale, ScaleOrigin::Settled,
                                 ReadShellSettings(*g_services.Registry), m_caret});
    m_app = &app;
    for (QWidget* window : QApplication::topLevelWidgets())
      if (auto* outer = qobject_cast<COuterWindow*>(window)) m_outer = outer;
    m_screen = m_outer->findChild<CScreen*>();
    const Steps running(*m_screen, steps());
    return app.Run();
  }

  QLineEdit* SearchBox() const {
    return qobject_cast<QLineEdit*>(m_screen->Topmost()->Control(ContactsViewIds::kSearchEdit));
  }

  Step Closing() {
    return [this] { m_outer->close(); };
  }
  Step Command(int id) {
    return [this, id] { m_screen->RunCommand(id); };
  }
  Step Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return [=, this] { test::ScreenInput(*m_screen).Key(key, modifiers); };
  }

  static ProgramOptions OptionsAt(const QString& home) {
    ProgramOptions options;
    options.Where = HomePlaces(home, {});
    return options;
  }

  QTemporaryDir m_home;
  Program m_program;
  CContactsApp* m_app = nullptr;
  COuterWindow* m_outer = nullptr;
  CScreen* m_screen = nullptr;
  std::optional<int> m_caret;  // in the search box, as a shell before left it
};

TEST_F(ContactsAppTest, ShowsTheFrameWithAnOpenSessionAndEndsWhenItsWindowIsClosed) {
  const ShellEnd end = Run([this] {
    return std::vector<Step>{[this] {
                               EXPECT_TRUE(m_outer->isVisible());
                               EXPECT_EQ(m_outer->windowTitle(),
                                         QStringLiteral("Quill (Quillbook)"));
                               EXPECT_EQ(m_screen->Topmost()->Kind(), WindowKind::Frame);
                               EXPECT_NE(g_store.Provider, nullptr);
                             },
                             Closing()};
  });
  EXPECT_EQ(end.ExitCode, 0);
  EXPECT_FALSE(end.Next.has_value());
}

TEST_F(ContactsAppTest, TheAboutBoxOpensAndDoesNothingButClose) {
  for (const int key : {Qt::Key_Return, Qt::Key_Escape}) {
    Run([this, key] {
      return std::vector<Step>{
          Command(ID_APP_ABOUT),
          [this] { EXPECT_EQ(m_screen->Topmost()->Caption(), QStringLiteral("About")); }, Key(key),
          [this] { EXPECT_TRUE(m_screen->IsIdle()); }, Closing()};
    });
  }
}

TEST_F(ContactsAppTest, ControlPlusEndsTheShellWithTheNextScaleAndRemembersIt) {
  const ShellEnd end =
      Run([this] { return std::vector<Step>{Key(Qt::Key_Plus, Qt::ControlModifier)}; });
  ASSERT_TRUE(end.Next.has_value());
  EXPECT_EQ(end.Next->At, Scale{5});
  EXPECT_EQ(ReadShellSettings(*g_services.Registry).WindowScale, Scale{5});
}

TEST_F(ContactsAppTest, TheSmallestScaleGetsNoSmaller) {
  const ShellEnd end = Run([this] {
    return std::vector<Step>{Key(Qt::Key_Minus, Qt::ControlModifier), Closing()};
  });
  EXPECT_FALSE(end.Next.has_value());
}

TEST_F(ContactsAppTest, TheScaleStaysWhileADialogIsOpen) {
  const ShellEnd end = Run([this] {
    return std::vector<Step>{Command(ID_APP_ABOUT), [this] { EXPECT_FALSE(m_app->IsIdle()); },
                             Key(Qt::Key_Plus, Qt::ControlModifier),
                             [this] { EXPECT_FALSE(m_screen->IsIdle()) << "the box is open"; },
                             Closing()};
  });
  EXPECT_FALSE(end.Next.has_value());
}

TEST_F(ContactsAppTest, TheScaleStaysWhileThePenIsDown) {
  const ShellEnd end = Run([this] {
    return std::vector<Step>{[this] {
                               test::ScreenInput(*m_screen).Press({120, 160});
                             },
                             Key(Qt::Key_Plus, Qt::ControlModifier),
                             [this] { m_app->ToggleFullScreen(); },
                             [this] {
                               test::ScreenInput(*m_screen).Release({120, 160});
                             },
                             Closing()};
  });
  EXPECT_FALSE(end.Next.has_value());
}

TEST_F(ContactsAppTest, TheNextShellKnowsTheSettingsThoughTheyCannotBeStored) {
  ASSERT_TRUE(QDir(m_home.path()).mkdir(QStringLiteral("settings.json")));
  const ShellEnd end =
      Run([this] { return std::vector<Step>{Key(Qt::Key_Plus, Qt::ControlModifier)}; });
  ASSERT_TRUE(end.Next.has_value());
  EXPECT_EQ(end.Next->Settings.WindowScale, Scale{5});
}

TEST_F(ContactsAppTest, WhatStandsInTheSearchBoxOutlivesAChangeOfScale) {
  Run([this] {
    return std::vector<Step>{[this] { SearchBox()->setText(QStringLiteral("Kim")); }, Closing()};
  });
  QString text;
  Run([this, &text] {
    return std::vector<Step>{[this, &text] { text = SearchBox()->text(); }, Closing()};
  });
  EXPECT_EQ(text, QStringLiteral("Kim"));
}

TEST_F(ContactsAppTest, TheSearchBoxKeepsTheKeyboardThroughAChangeOfScale) {
  const ShellEnd end = Run([this] {
    return std::vector<Step>{[this] {
                               EXPECT_FALSE(SearchBox()->hasFocus()) << "at first";
                               SearchBox()->setText(QStringLiteral("Kim"));
                               SearchBox()->setFocus();
                               SearchBox()->setCursorPosition(1);
                             },
                             Key(Qt::Key_Plus, Qt::ControlModifier)};
  });
  ASSERT_TRUE(end.Next.has_value());
  EXPECT_EQ(end.Next->SearchCaret, 1);
  m_caret = end.Next->SearchCaret;
  Run([this] {
    return std::vector<Step>{[this] {
                               EXPECT_EQ(m_outer->focusWidget(), SearchBox());
                               EXPECT_EQ(SearchBox()->cursorPosition(), 1);
                             },
                             Closing()};
  });
}

TEST_F(ContactsAppTest, TheListKeepsTheKeyboardThroughAChangeOfScale) {
  const ShellEnd end =
      Run([this] { return std::vector<Step>{Key(Qt::Key_Plus, Qt::ControlModifier)}; });
  ASSERT_TRUE(end.Next.has_value());
  EXPECT_FALSE(end.Next->SearchCaret);
}

TEST_F(ContactsAppTest, FullScreenEndsTheShellAndIsRemembered) {
  const ShellEnd end =
      Run([this] { return std::vector<Step>{[this] { m_app->ToggleFullScreen(); }}; });
  EXPECT_TRUE(end.Next.has_value());
  EXPECT_TRUE(ReadShellSettings(*g_services.Registry).FullScreen);
}

TEST_F(ContactsAppTest, TheNextShellKeepsTheSessionAndTheList) {
  Run([this] { return std::vector<Step>{Closing()}; });
  const StoreProvider* const provider = g_store.Provider;
  g_list.SearchText = QStringLiteral("Kim");
  Run([this, provider] {
    return std::vector<Step>{[this, provider] {
                               EXPECT_EQ(g_store.Provider, provider);
                               EXPECT_EQ(g_list.SearchText, QStringLiteral("Kim"));
                             },
                             Closing()};
  });
}

TEST_F(ContactsAppTest, WhenItEndsNoWindowAndNoServiceOfItsIsLeft) {
  const auto before = QApplication::allWidgets().size();
  for (int i = 0; i < 20; ++i) Run([this] { return std::vector<Step>{Closing()}; });
  EXPECT_EQ(QApplication::allWidgets().size(), before);
  EXPECT_EQ(g_services.Prompt, nullptr);
  EXPECT_EQ(g_services.Timers, nullptr);
  EXPECT_EQ(g_services.Infrared, nullptr);
}

TEST_F(ContactsAppTest, ReceivedContactsCountAsAnothersChange) {
  Run([this] {
    return std::vector<Step>{[this] { m_app->Infrared().ContactsReceived(); },
                             [] { EXPECT_TRUE(g_list.RebuildDue); }, Closing()};
  });
}

TEST_F(ContactsAppTest, TheScaleStaysWhileAReceiveIsOn) {
  ASSERT_TRUE(WriteInfraredSettings(*g_services.Registry, {.Port = 0}));
  const ShellEnd end = Run([this] {
    return std::vector<Step>{[] { ASSERT_TRUE(g_services.Infrared->Receive()); },
                             Key(Qt::Key_Plus, Qt::ControlModifier),
                             [this] { m_app->ToggleFullScreen(); },
                             [this] { EXPECT_FALSE(m_app->MayChangeScale()); },
                             Key(Qt::Key_Escape),
                             [this] {
                               ASSERT_EQ(m_screen->Topmost()->Kind(), WindowKind::Message);
                               m_screen->Topmost()->OnOK();
                             },
                             [this] { EXPECT_TRUE(m_app->MayChangeScale()); },
                             Key(Qt::Key_Plus, Qt::ControlModifier)};
  });
  ASSERT_TRUE(end.Next.has_value());
  EXPECT_EQ(end.Next->At, Scale{5}) << "one step: the first was refused";
}

TEST_F(ContactsAppTest, TheProgramMayCloseWhileAReceiveIsOn) {
  ASSERT_TRUE(WriteInfraredSettings(*g_services.Registry, {.Port = 0}));
  const ShellEnd end = Run([this] {
    return std::vector<Step>{[] { ASSERT_TRUE(g_services.Infrared->Receive()); }, Closing()};
  });
  EXPECT_EQ(end.ExitCode, 0);
}

TEST_F(ContactsAppTest, TheProgramMayCloseWhileAReceiverIsChosen) {
  Run([this] {
    return std::vector<Step>{
        [this] {
          const Oid oid = g_store.Provider->Contacts()->Save(0, {}, {});
          InfraredFolder& folder = *g_services.Infrared;
          EXPECT_TRUE(folder.Open() && folder.AddItem(oid) && folder.Send());
        },
        [this] { EXPECT_EQ(m_screen->Topmost()->Caption(), QStringLiteral("Beam to")); },
        Closing()};
  });
}

TEST_F(ContactsAppTest, AStoreThatIsNoStoreIsToldInAWindowThatTheUserSees) {
  QFile store(m_program.Where().StoreFile);
  ASSERT_TRUE(store.open(QIODevice::WriteOnly));
  store.write(QByteArray(5000, 'x'));
  store.close();
  Run([this] {
    return std::vector<Step>{[this] {
                               EXPECT_EQ(m_screen->Topmost()->Kind(), WindowKind::Message);
                               EXPECT_TRUE(m_outer->isVisible());
                               EXPECT_TRUE(m_screen->Topmost()->isVisible());
                             },
                             Closing()};
  });
}

class ContactsAppThatCannotStart : public ContactsAppTest {
 protected:
  ContactsAppThatCannotStart() : ContactsAppTest(Failed()) {}
  static ProgramOptions Failed() {
    ProgramOptions options = OptionsAt(QStringLiteral("/nowhere"));
    options.Problem = QStringLiteral("quill: no permission\n");
    return options;
  }
};

TEST_F(ContactsAppThatCannotStart, SaysSoAndEnds) {
  const ShellEnd end = Run([this] {
    return std::vector<Step>{[this] {
                               ASSERT_EQ(m_screen->Topmost()->Kind(), WindowKind::Message);
                               EXPECT_TRUE(m_screen->Topmost()->isVisible());
                               const auto* const text =
                                   m_screen->Topmost()->findChild<CTextLabel*>();
                               ASSERT_NE(text, nullptr);
                               EXPECT_EQ(text->text(), QStringLiteral("No permission."));
                               EXPECT_EQ(g_store.Provider, nullptr);
                             },
                             Key(Qt::Key_Return)};
  });
  EXPECT_EQ(m_program.ExitCode(end.ExitCode), 2);
  EXPECT_FALSE(end.Next.has_value());
}

TEST_F(ContactsAppTest, AScaleCommandForcedPastTheSmallestScaleDoesNothing) {
  const ShellEnd end = Run([this] {
    return std::vector<Step>{
        [this] { m_screen->Topmost()->RunCommand(ID_SHELL_SMALLER, CommandCheck::Anyway); },
        Closing()};
  });
  EXPECT_FALSE(end.Next.has_value());
}

}  // namespace
}  // namespace quill
