// The two buttons that the preview of an appointment draws by itself: what they are, and what a pen
// and keys do to them. Points are logical pixels of the preview.
#pragma once

#include <QPoint>
#include <QRect>
#include <QStringView>

#include <array>
#include <optional>

namespace quill {

namespace resources {
struct Picture;
}

enum class PreviewButton { Modify, Delete };  // top to bottom
inline constexpr std::array kPreviewButtons = {PreviewButton::Modify, PreviewButton::Delete};

// What is run when the button is used: a command of the preview.
int CommandOf(PreviewButton button);
// What is spoken.
QStringView NameOf(PreviewButton button);
const resources::Picture& PictureOf(PreviewButton button);
QRect PlaceOf(PreviewButton button);
// Where a pen works it: the place less its first line and column.
QRect HotAreaOf(PreviewButton button);

// The button that one of Qt's keys leads to; nothing for other keys.
std::optional<PreviewButton> PreviewButtonAfterKey(int key);

// A pen on the buttons: pressed on one, and inside it as long as the pen is.
class PreviewPen {
 public:
  void Press(QPoint at);
  void Move(QPoint at);
  // The button that was used: the pen came down in it and leaves it there.
  std::optional<PreviewButton> Release(QPoint at);

  // The button that looks pressed.
  std::optional<PreviewButton> Shown() const;

 private:
  std::optional<PreviewButton> m_pressed;
  std::optional<PreviewButton> m_under;  // the button that the pen is in, while one is pressed
};

}  // namespace quill
