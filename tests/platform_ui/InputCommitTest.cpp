#include "platform/ui/InputCommit.h"

#include <QCoreApplication>
#include <QInputMethodEvent>

#include "platform/ui/Edit.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

void Compose(QWidget& editor, const QString& preedit) {
  QInputMethodEvent event(preedit, {});
  QCoreApplication::sendEvent(&editor, &event);
}

class InputCommitTest : public test::ScreenFixture {
 protected:
  InputCommitTest() : m_frame(*m_screen), m_edit(QStringLiteral("Kim"), &m_frame) {
    m_edit.show();
    m_edit.setFocus();
  }

  test::SampleFrame m_frame;
  CEdit m_edit;
};

TEST_F(InputCommitTest, MakesTextOfWhatIsComposed) {
  Compose(m_edit, QStringLiteral("가"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kim"));
  CommitInput();
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kim가"));
  CommitInput();
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kim가"));
}

TEST_F(InputCommitTest, AnEditorsTextHasWhatIsComposedInIt) {
  Compose(m_edit, QStringLiteral("가"));
  EXPECT_EQ(EditorText(m_edit), QStringLiteral("Kim가"));
}

TEST_F(InputCommitTest, WorksWithoutAFocus) {
  m_edit.clearFocus();
  CommitInput();
  EXPECT_EQ(EditorText(m_edit), QStringLiteral("Kim"));
}

}  // namespace
}  // namespace quill
