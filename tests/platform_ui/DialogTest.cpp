#include "platform/ui/Dialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>

#include "platform/ui/CheckList.h"
#include "platform/ui/DatePicker.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/MultiEdit.h"
#include "platform/ui/PanelEdit.h"
#include "platform/ui/PictureToggle.h"
#include "platform/ui/TypedDropDown.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::SampleDialog;

class DialogTest : public test::ScreenFixture {};

TEST_F(DialogTest, ASmallOneStandsAtItsPlaceWithItsControlsBelowTheCaption) {
  const SampleDialog dialog(*m_screen);
  EXPECT_EQ(dialog.Size(), WindowSize::Small);
  EXPECT_EQ(dialog.geometry(), QRect(30, 60, 180, 160));
  EXPECT_EQ(dialog.Caption(), QStringLiteral("Sample"));
  EXPECT_EQ(dialog.Control(test::kFirstEdit)->geometry(), QRect(10, 10 + 16, 100, 17));
}

TEST_F(DialogTest, AFullScreenOneFillsTheClientAreaAndPaintsNoCaption) {
  const SampleDialog dialog(*m_screen, test::FullScreenSample());
  EXPECT_EQ(dialog.Size(), WindowSize::FullScreen);
  EXPECT_EQ(dialog.geometry(), QRect(0, 26, 240, 270));
  EXPECT_EQ(dialog.Control(test::kFirstEdit)->geometry(), QRect(10, 10, 100, 17));
}

TEST_F(DialogTest, ItsControlsAreOfTheirKindsAndFoundById) {
  const SampleDialog dialog(*m_screen);
  auto* edit = qobject_cast<QLineEdit*>(dialog.Control(test::kFirstEdit));
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(edit->text(), QStringLiteral("first"));
  EXPECT_NE(qobject_cast<QCheckBox*>(dialog.Control(test::kSampleCheck)), nullptr);
  EXPECT_NE(qobject_cast<CDropDown*>(dialog.Control(test::kSampleList)), nullptr);
  EXPECT_NE(qobject_cast<QPushButton*>(dialog.Control(kResultOK)), nullptr);
  EXPECT_EQ(dialog.Control(4711), nullptr);
}

TEST_F(DialogTest, AHiddenControlIsThereButDoesNotShow) {
  SampleDialog dialog(*m_screen);
  dialog.show();
  EXPECT_TRUE(dialog.Control(test::kFirstEdit)->isVisible());
  EXPECT_FALSE(dialog.Control(test::kHiddenEdit)->isVisible());
}

TEST_F(DialogTest, LabelsAreAlignedAsTheirKindSaysAndNeverMarkup) {
  constexpr std::array kLabels = {
      resources::DialogControl{resources::ControlKind::Label, 1001, u"<i>a</i>", {0, 0, 90, 17}},
      resources::DialogControl{resources::ControlKind::CentredLabel, 1002, u"b", {0, 20, 90, 17}}};
  const SampleDialog dialog(*m_screen, {1, u"Labels", {10, 40, 100, 80}, kLabels});
  const auto* left = qobject_cast<QLabel*>(dialog.Control(1001));
  const auto* centred = qobject_cast<QLabel*>(dialog.Control(1002));
  EXPECT_EQ(left->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
  EXPECT_EQ(centred->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
  EXPECT_EQ(left->textFormat(), Qt::PlainText);
}

TEST_F(DialogTest, AWrappedLabelBeginsAtItsTopAndGoesOnBelow) {
  constexpr std::array kLabels = {resources::DialogControl{
      resources::ControlKind::WrappedLabel, 1001, u"some words", {0, 0, 30, 60}}};
  const SampleDialog dialog(*m_screen, {1, u"Label", {10, 40, 100, 80}, kLabels});
  const auto* label = qobject_cast<QLabel*>(dialog.Control(1001));
  EXPECT_EQ(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
  EXPECT_TRUE(label->wordWrap());
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(DialogTest, APanelEditorIsMadeWithItsText) {
  constexpr std::array kEditors = {
      resources::DialogControl{resources::ControlKind::PanelEdit, 1001, u"text", {0, 0, 60, 18}}};
  const SampleDialog dialog(*m_screen, {1, u"Editor", {10, 40, 100, 80}, kEditors});
  const auto* editor = qobject_cast<CPanelEdit*>(dialog.Control(1001));
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->text(), QStringLiteral("text"));
}

TEST_F(DialogTest, ACheckListIsMadeWithItsName) {
  constexpr std::array kLists = {
      resources::DialogControl{resources::ControlKind::CheckList, 1001, u"Choice", {0, 0, 60, 60}}};
  const SampleDialog dialog(*m_screen, {1, u"List", {10, 40, 100, 80}, kLists});
  const auto* list = qobject_cast<CCheckList*>(dialog.Control(1001));
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->accessibleName(), QStringLiteral("Choice"));
}

TEST_F(DialogTest, AnEditorOfSeveralLinesIsMadeWithItsText) {
  constexpr std::array kEditors = {resources::DialogControl{
      resources::ControlKind::MultiEdit, 1001, u"one\ntwo", {0, 0, 60, 60}}};
  const SampleDialog dialog(*m_screen, {1, u"Editor", {10, 40, 100, 80}, kEditors});
  const auto* editor = qobject_cast<CMultiEdit*>(dialog.Control(1001));
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->toPlainText(), QStringLiteral("one\ntwo"));
}

TEST_F(DialogTest, ADateIsMadeWithItsNameAndAlwaysHasADay) {
  constexpr std::array kDates = {
      resources::DialogControl{resources::ControlKind::Date, 1001, u"Start", {0, 0, 90, 17}}};
  const SampleDialog dialog(*m_screen, {1, u"Date", {10, 40, 100, 80}, kDates});
  const auto* date = qobject_cast<CDatePicker*>(dialog.Control(1001));
  ASSERT_NE(date, nullptr);
  EXPECT_EQ(date->accessibleName(), QStringLiteral("Start"));
  EXPECT_FALSE(date->HasNoneCheck());
}

TEST_F(DialogTest, AListIsMadeWithItsName) {
  constexpr std::array kLists = {
      resources::DialogControl{resources::ControlKind::DropDown, 1001, u"Day", {0, 0, 90, 18}},
      resources::DialogControl{
          resources::ControlKind::TypedDropDown, 1002, u"Number", {0, 20, 90, 18}}};
  const SampleDialog dialog(*m_screen, {1, u"Lists", {10, 40, 100, 80}, kLists});
  EXPECT_EQ(dialog.Control(1001)->accessibleName(), QStringLiteral("Day"));
  EXPECT_EQ(dialog.Control(1002)->accessibleName(), QStringLiteral("Number"));
  EXPECT_NE(qobject_cast<CTypedDropDown*>(dialog.Control(1002)), nullptr);
}

TEST_F(DialogTest, AToggleIsMadeWithItsText) {
  constexpr std::array kToggles = {
      resources::DialogControl{resources::ControlKind::Toggle, 1001, u"Sun", {0, 0, 30, 28}}};
  const SampleDialog dialog(*m_screen, {1, u"Toggle", {10, 40, 100, 80}, kToggles});
  const auto* toggle = qobject_cast<CPictureToggle*>(dialog.Control(1001));
  ASSERT_NE(toggle, nullptr);
  EXPECT_EQ(toggle->text(), QStringLiteral("Sun"));
}

TEST_F(DialogTest, AnOKButtonOfEitherNumberEndsItWithOK) {
  for (const int id : {kResultOK, kOKButton}) {
    const std::array controls = {
        resources::DialogControl{resources::ControlKind::Button, id, u"OK", {0, 0, 64, 26}}};
    SampleDialog dialog(*m_screen, {1, u"Buttons", {10, 40, 100, 80}, controls});
    const test::Steps steps(*m_screen,
                            {[&] { qobject_cast<QPushButton*>(dialog.Control(id))->click(); }});
    EXPECT_EQ(dialog.DoModal(), kResultOK);
  }
}

TEST_F(DialogTest, ItsNameForAssistiveTechnologyIsItsCaption) {
  EXPECT_EQ(SampleDialog(*m_screen).accessibleName(), QStringLiteral("Sample"));
}

}  // namespace
}  // namespace quill
