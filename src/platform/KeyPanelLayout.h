// The key panel without its window: five rows of keys, what is painted where and what each key
// means. In logical pixels of the panel; keys are counted from the upper left.
#pragma once

#include <QSize>
#include <QString>

#include <optional>
#include <vector>

#include "platform/KeyPanelState.h"
#include "platform/PaintedRow.h"
#include "platform/ScreenLayout.h"

namespace quill {

inline constexpr QSize kKeyPanelSize{kScreenWidth, kInputPanelHeight};
inline constexpr int kKeyRowHeight = 16;
inline constexpr int kKeyWidth = 20;

// A key with a letter says and types it; others have a spoken name, and a picture or a label.
struct PanelKey {
  QStringView Label;
  KeyAction Does;
  int Width = kKeyWidth;
  QStringView Spoken = {};
  const resources::Picture* Picture = nullptr;
};

// What a tap on a key asks for.
struct KeyIntention {
  KeyAction Does;
  QString Text = {};  // of the actions Text and Jamo

  bool operator==(const KeyIntention&) const = default;
};

// One painted row for each key, with its number as key; they fill the panel without gaps.
// pressed is the number of the key that the pen holds, -1 for none.
std::vector<PaintedRow> LayOutKeyPanel(const KeyPanelState& state, int pressed);

// Nothing when there is no key of this number. A space is text.
std::optional<KeyIntention> IntentionOf(const KeyPanelState& state, int key);

}  // namespace quill
