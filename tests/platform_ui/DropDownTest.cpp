#include "platform/ui/DropDown.h"

#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

class DropDownTest : public test::ScreenFixture {
 protected:
  DropDownTest() : m_frame(*m_screen), m_list(*m_screen, &m_frame) {
    m_list.addItems({QStringLiteral("Home"), QStringLiteral("Work"), QStringLiteral("Other")});
    m_list.setGeometry(10, 20, 90, 18);
    m_list.setCurrentIndex(1);
    m_list.show();
    QObject::connect(&m_list, &QComboBox::activated, &m_list,
                     [this](int index) { m_activated.push_back(index); });
  }

  QPoint OnList() const { return m_list.mapTo(m_screen, m_list.rect().center()); }
  QRect ListPlace() const { return {m_list.mapTo(m_screen, QPoint(0, 0)), m_list.size()}; }
  void OpenAnd(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    m_input.Press(OnList());
  }
  Step Tapping(const char16_t* entry) {
    return [this, entry] {
      m_input.Tap(RowNamed(*m_screen->Popup(), QString::fromUtf16(entry)).center());
    };
  }

  test::SampleFrame m_frame;
  CDropDown m_list;
  std::vector<int> m_activated;
};

TEST_F(DropDownTest, ATapOpensTheListBelowItInsideTheFrame) {
  OpenAnd({[this] { m_input.Release(OnList()); },
           [this] {
             ASSERT_NE(m_screen->Popup(), nullptr);
             const QRect list = m_screen->Popup()->geometry();
             EXPECT_EQ(list.topLeft(), ListPlace().bottomLeft() + QPoint(0, 1));
             EXPECT_TRUE(m_screen->rect().contains(list));
             EXPECT_EQ(m_screen->Popup()->Items().size(), 3U);
             m_screen->Popup()->Dismiss();
           }});
}

TEST_F(DropDownTest, AtTheBottomTheListOpensUpward) {
  m_list.move(10, 245);
  OpenAnd({[this] {
    EXPECT_EQ(m_screen->Popup()->geometry().bottom() + 1, ListPlace().top());
    m_screen->Popup()->Dismiss();
  }});
}

TEST_F(DropDownTest, AnEntryThatIsTappedIsSelectedAndActivated) {
  OpenAnd({[this] { m_input.Release(OnList()); }, Tapping(u"Other")});
  EXPECT_EQ(m_list.currentIndex(), 2);
  EXPECT_EQ(m_activated, std::vector<int>{2});
}

TEST_F(DropDownTest, TheEntryAlreadySelectedIsActivatedToo) {
  OpenAnd({[this] { m_input.Release(OnList()); }, Tapping(u"Work")});
  EXPECT_EQ(m_list.currentIndex(), 1);
  EXPECT_EQ(m_activated, std::vector<int>{1});
}

TEST_F(DropDownTest, TheListOpensAtTheSelectedEntryWhichIsChecked) {
  OpenAnd({[this] {
             EXPECT_TRUE(m_screen->Popup()->Items()[1].Checked);
             EXPECT_FALSE(m_screen->Popup()->Items()[0].Checked);
           },
           [this] { m_input.Key(Qt::Key_Down); }, [this] { m_input.Key(Qt::Key_Return); }});
  EXPECT_EQ(m_activated, std::vector<int>{2});
}

TEST_F(DropDownTest, ADismissedListChangesAndActivatesNothing) {
  OpenAnd({[this] { m_input.Key(Qt::Key_Escape); }});
  EXPECT_EQ(m_list.currentIndex(), 1);
  EXPECT_TRUE(m_activated.empty());
}

TEST_F(DropDownTest, EscapeInTheListOfADialogLeavesTheDialogOpen) {
  test::SampleDialog dialog(*m_screen);
  const Steps steps(*m_screen, {[&dialog] {
                                  auto* list =
                                      qobject_cast<CDropDown*>(dialog.Control(test::kSampleList));
                                  list->addItem(QStringLiteral("Entry"));
                                  list->showPopup();
                                },
                                [this] { m_input.Key(Qt::Key_Escape); },
                                [&] {
                                  EXPECT_EQ(m_screen->Popup(), nullptr);
                                  EXPECT_EQ(m_screen->Topmost(), &dialog);
                                  dialog.EndDialog(kResultOK);
                                }});
  EXPECT_EQ(dialog.DoModal(), kResultOK);
}

TEST_F(DropDownTest, TheKeyboardOpensTheListToo) {
  m_list.setFocus();
  const Steps steps(*m_screen,
                    {[this] { m_input.Key(Qt::Key_Up); }, [this] { m_input.Key(Qt::Key_Return); }});
  m_input.Key(Qt::Key_F4);
  EXPECT_EQ(m_activated, std::vector<int>{0});
}

}  // namespace
}  // namespace quill
