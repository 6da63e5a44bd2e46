#include "platform/ui/MessageBox.h"

#include <QPushButton>

#include <algorithm>
#include <array>

#include "platform/ChromeLayout.h"
#include "platform/ui/PictureLabel.h"
#include "platform/ui/Screen.h"
#include "platform/ui/TextLabel.h"

namespace quill {

namespace {

using namespace resources;

constexpr int kWidth = 220;
constexpr int kMargin = 10;
constexpr int kIconSize = 24;
constexpr int kButtonWidth = 64;
constexpr int kButtonHeight = 26;
constexpr int kSmallestText = 28;
constexpr int kLargestText = 190;

constexpr DialogControl kOKButton{ControlKind::Button, kResultOK, u"OK", {}};
constexpr DialogControl kCancelButton{ControlKind::Button, kResultCancel, u"Cancel", {}};
constexpr DialogControl kYesButton{ControlKind::Button, kResultYes, u"Yes", {}};
constexpr DialogControl kNoButton{ControlKind::Button, kResultNo, u"No", {}};

std::vector<DialogControl> ButtonsOf(PromptButtons buttons) {
  switch (buttons) {
    case PromptButtons::OK:
      return {kOKButton};
    case PromptButtons::OKCancel:
      return {kOKButton, kCancelButton};
    case PromptButtons::YesNo:
      return {kYesButton, kNoButton};
  }
  Q_UNREACHABLE();
}

struct IconResource {
  PromptIcon Icon;
  const char* Name;
  const Picture* Image;
};

constexpr std::array kIcons = {
    IconResource{PromptIcon::None, "None", nullptr},
    IconResource{PromptIcon::Information, "Information", &kInformationPicture},
    IconResource{PromptIcon::Warning, "Warning", &kWarningPicture},
    IconResource{PromptIcon::Question, "Question", &kQuestionPicture},
    IconResource{PromptIcon::Error, "Error", &kErrorPicture},
};

const IconResource& IconOf(PromptIcon icon) {
  return *std::ranges::find(kIcons, icon, &IconResource::Icon);
}

int TextLeft(PromptIcon icon) {
  return icon == PromptIcon::None ? kMargin : kMargin + kIconSize + kMargin;
}

int TextHeightOf(const PromptMessage& message) {
  const int height = TextHeight(message.Text, kWidth - TextLeft(message.Icon) - kMargin);
  return std::clamp(height, kSmallestText, kLargestText);
}

DialogResource Frame(const PromptMessage& message) {
  const int height =
      kSmallCaptionHeight + kMargin + TextHeightOf(message) + kMargin + kButtonHeight + kMargin;
  return {0,
          message.Caption,
          {(kScreenWidth - kWidth) / 2, (kScreenHeight - height) / 2, kWidth, height},
          {}};
}

}  // namespace

CMessageBox::CMessageBox(CScreen& screen, const PromptMessage& message)
    : CDialog(screen, Frame(message)), m_buttons(message.Buttons) {
  const int textHeight = TextHeightOf(message);
  AddText(message, textHeight);
  AddButtons(kMargin + textHeight + kMargin);
}

void CMessageBox::AddText(const PromptMessage& message, int textHeight) {
  const int left = TextLeft(message.Icon);
  AddDialogControl({ControlKind::WrappedLabel,
                    MessageBoxIds::kText,
                    message.Text,
                    {left, kMargin, kWidth - left - kMargin, textHeight}});
  const IconResource& icon = IconOf(message.Icon);
  auto* const picture = new CPictureLabel(icon.Image, this);
  picture->setAccessibleName(QString::fromLatin1(icon.Name));
  picture->setGeometry(kMargin, kSmallCaptionHeight + kMargin, kIconSize, kIconSize);
  picture->setVisible(icon.Image != nullptr);
  AddControl(MessageBoxIds::kIcon, picture);
}

void CMessageBox::AddButtons(int top) {
  const std::vector<DialogControl> buttons = ButtonsOf(m_buttons);
  const int count = static_cast<int>(buttons.size());
  int left = (kWidth - count * kButtonWidth - (count - 1) * kMargin) / 2;
  for (DialogControl button : buttons) {
    button.Place = {left, top, kButtonWidth, kButtonHeight};
    QWidget* const widget = AddDialogControl(button);
    if (m_buttons == PromptButtons::YesNo)  // OK and Cancel every dialog follows
      connect(qobject_cast<QPushButton*>(widget), &QPushButton::clicked, this,
              [this, id = button.Id] { EndDialog(id); });
    left += kButtonWidth + kMargin;
  }
}

void CMessageBox::OnOK() { EndDialog(m_buttons == PromptButtons::YesNo ? kResultYes : kResultOK); }

// Closing a box answers what changes least; a box with OK alone has only that to answer.
void CMessageBox::OnCancel() {
  if (m_buttons == PromptButtons::OK) return EndDialog(kResultOK);
  EndDialog(m_buttons == PromptButtons::YesNo ? kResultNo : kResultCancel);
}

}  // namespace quill
