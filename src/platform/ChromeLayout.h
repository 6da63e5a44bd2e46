// Title bar, menu bar and the caption of small windows as painted rows: pure layout, in logical
// pixels of each bar.
#pragma once

#include <QSize>
#include <QString>

#include <optional>
#include <vector>

#include "platform/MenuModel.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

inline constexpr Rgb kTitleBackground = 0x2F5568;

// Keys of the title bar's rows.
inline constexpr int kTitleTextKey = 0;
inline constexpr int kTitleOKKey = 1;
inline constexpr int kTitleCloseKey = 2;
inline constexpr int kTitleNoticeKey = 3;

// That something goes on, said beside the caption whatever window is on top.
struct TitleNotice {
  QString Text;
  QString SpokenName;
  int Command = 0;  // of the shell: what a tap does

  bool operator==(const TitleNotice&) const = default;
};

struct TitleBarModel {
  QString Caption;
  bool HasOK = false;
  bool HasClose = true;
  int Pressed = -1;  // the key under the pen, -1 none
  std::optional<TitleNotice> Notice = std::nullopt;
};

std::vector<PaintedRow> LayOutTitleBar(const TitleBarModel& model, QSize size);

// A row's key is its position in the model: the buttons first, then the menus. `open` is the one
// shown pressed, -1 none. The buttons with a picture stand at the right end.
std::vector<PaintedRow> LayOutMenuBar(const MenuBarModel& model, QSize size, int open,
                                      const TextWidth& width);

// The bar that a small window paints above its client area.
inline constexpr int kSmallCaptionHeight = 16;

PaintedRow LayOutSmallCaption(const QString& caption, int width);

}  // namespace quill
