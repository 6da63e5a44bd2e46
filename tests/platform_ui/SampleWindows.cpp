#include "platform_ui/SampleWindows.h"

#include <array>

#include "platform/ui/Edit.h"

namespace quill::test {

namespace {

using resources::ControlKind;
using resources::DialogControl;

constexpr std::array kControls = {
    DialogControl{ControlKind::Edit, kFirstEdit, u"first", {10, 10, 100, 17}},
    DialogControl{ControlKind::Edit, kSecondEdit, u"second", {10, 30, 100, 17}},
    DialogControl{ControlKind::Check, kSampleCheck, u"Check", {10, 50, 100, 17}},
    DialogControl{
        ControlKind::Edit, kHiddenEdit, u"", {10, 70, 100, 17}, resources::ControlState::Hidden},
    DialogControl{ControlKind::DropDown, kSampleList, u"", {10, 70, 100, 18}},
    DialogControl{ControlKind::Button, kResultOK, u"OK", {10, 100, 64, 26}},
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {80, 100, 64, 26}},
};
constexpr resources::DialogResource kSmall = {1, u"Sample", {30, 60, 180, 160}, kControls};
constexpr resources::DialogResource kFullScreen = {2, u"Full sample", {}, kControls};

MenuItem Item(const QString& text, int id) { return {.Text = text, .Id = id}; }

}  // namespace

SampleFrame::SampleFrame(CScreen& screen)
    : CWindow(screen),
      m_commands(
          {{1, 99, [this](int id) { Ran.push_back(id); }, nullptr}, {100, 100, nullptr, nullptr}}) {
  Bar.Buttons = {Item(QStringLiteral("New"), 1), screen.InputPanelButton()};
  Bar.Menus = {{QStringLiteral("One"),
                {Item(QStringLiteral("Apple"), 11), Item(QStringLiteral("Pear"), 12)}},
               {QStringLiteral("Two"), {Item(QStringLiteral("Plum"), 21)}},
               {QStringLiteral("Three"), {Item(QStringLiteral("Grape"), 31)}}};
  SetCaption(QStringLiteral("Frame"));
  screen.Push(*this);
  show();
}

SampleFrame::~SampleFrame() { Screen().Remove(*this); }

CommandRoute SampleFrame::Route() const {
  CommandRoute route;
  route.Add(m_commands);
  return route;
}

bool SampleFrame::ShowContextMenu() {
  if (HasContextMenu) Happened.push_back(QStringLiteral("Context menu"));
  return HasContextMenu;
}

SampleDialog::SampleDialog(CScreen& screen) : CDialog(screen, kSmall) {}

SamplePage::SamplePage(CSheet& sheet, const QString& title, int command, QStringList& log)
    : CSheetPage(sheet, title),
      m_command(command),
      m_log(log),
      m_commands({{command, command, [this](int) { Note("command"); }, nullptr}}) {
  for (const int id : {kFirstEdit, kSecondEdit}) {
    auto* const edit = new CEdit(title + QString::number(id), this);
    edit->setGeometry(10, 10 + 20 * (id - kFirstEdit), 100, 17);
    AddControl(id, edit);
  }
}

void SamplePage::Note(const char* what) {
  m_log.push_back(QStringLiteral("%1 %2").arg(QString::fromLatin1(what), Title()));
}

void SamplePage::BecomeActive() {
  Note("active");
  if (FocusWanted) FocusWanted->setFocus();
}

MenuBarModel SamplePage::MenuBar() const { return {{}, {{Title(), {Item(Title(), m_command)}}}}; }

CommandRoute SamplePage::Route() const {
  CommandRoute route;
  route.Add(m_commands);
  return route;
}

bool SamplePage::ShowContextMenu() {
  Note("context menu");
  return true;
}

SampleSheet::SampleSheet(CScreen& screen, SheetTabs tabs)
    : CSheet(screen, QStringLiteral("Sample sheet"), tabs),
      One(*this, QStringLiteral("One"), 31, Log),
      Two(*this, QStringLiteral("Two"), 32, Log),
      Three(*this, QStringLiteral("Three"), 33, Log) {
  for (SamplePage* page : {&One, &Two, &Three}) AddPage(*page);
}

const resources::DialogResource& FullScreenSample() { return kFullScreen; }

const resources::DialogResource& SmallSample() { return kSmall; }

}  // namespace quill::test
