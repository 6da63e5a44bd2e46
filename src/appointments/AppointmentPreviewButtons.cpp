#include "appointments/AppointmentPreviewButtons.h"

#include "resources/AppointmentPictures.h"
#include "resources/AppointmentPreviewDialog.h"

namespace quill {

namespace {

struct ButtonFacts {
  QStringView Name;
  const resources::Picture* Picture;
};

// By PreviewButton.
constexpr std::array kButtons = {
    ButtonFacts{u"Modify", &resources::kModifyPicture},
    ButtonFacts{u"Delete", &resources::kDeletePicture},
};

const ButtonFacts& FactsOf(PreviewButton button) {
  return kButtons[static_cast<std::size_t>(button)];
}

// The hidden one whose place and command it has.
const resources::DialogControl& ControlOf(PreviewButton button) {
  return resources::kAppointmentPreviewControls[static_cast<std::size_t>(button)];
}

std::optional<PreviewButton> ButtonAt(QPoint at) {
  for (const PreviewButton button : kPreviewButtons)
    if (HotAreaOf(button).contains(at)) return button;
  return std::nullopt;
}

}  // namespace

int CommandOf(PreviewButton button) { return ControlOf(button).Id; }

QStringView NameOf(PreviewButton button) { return FactsOf(button).Name; }

const resources::Picture& PictureOf(PreviewButton button) { return *FactsOf(button).Picture; }

QRect PlaceOf(PreviewButton button) {
  const resources::Rectangle& place = ControlOf(button).Place;
  return {place.X, place.Y, place.Width, place.Height};
}

QRect HotAreaOf(PreviewButton button) { return PlaceOf(button).adjusted(1, 1, 0, 0); }

std::optional<PreviewButton> PreviewButtonAfterKey(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      return PreviewButton::Modify;
    case Qt::Key_Down:
    case Qt::Key_Right:
      return PreviewButton::Delete;
    default:
      return std::nullopt;
  }
}

void PreviewPen::Press(QPoint at) {
  m_pressed = ButtonAt(at);
  m_under = m_pressed;
}

void PreviewPen::Move(QPoint at) { m_under = ButtonAt(at); }

std::optional<PreviewButton> PreviewPen::Release(QPoint at) {
  Move(at);
  const auto used = Shown();
  m_pressed.reset();
  return used;
}

std::optional<PreviewButton> PreviewPen::Shown() const {
  return m_pressed == m_under ? m_pressed : std::nullopt;
}

}  // namespace quill
