// The ink control's operations under the numbers by which the front ends of ink ask for them. The
// control's own face is its named functions; one table joins the two.
#pragma once

#include <QByteArray>

namespace quill {

class InkX;

namespace InkMessages {
inline constexpr int kHasSelection = 176;
inline constexpr int kSelect = 177;  // from First to Second; all of it, 0 to -1, is the only range
inline constexpr int kCanUndo = 198;
inline constexpr int kCut = 768;
inline constexpr int kCopy = 769;
inline constexpr int kPaste = 770;
inline constexpr int kClear = 771;
inline constexpr int kCanPaste = 1074;
inline constexpr int kUndo = 1258;
inline constexpr int kRedo = 1259;
inline constexpr int kCanRedo = 1270;
inline constexpr int kQueryMode = 1278;
inline constexpr int kSetView = 1308;       // First
inline constexpr int kSetPageStyle = 1311;  // First
inline constexpr int kSetZoom = 1314;       // Second, in percent
inline constexpr int kPageStyle = 1347;
inline constexpr int kSetWrap = 1353;  // First
inline constexpr int kDataLength = 1538;
inline constexpr int kData = 1539;     // at most First bytes into Data; answers how many
inline constexpr int kSetData = 1540;  // First bytes of Data
inline constexpr int kToggle = 1554;   // First
}  // namespace InkMessages

struct InkParameters {
  int First = 0;
  int Second = 0;
  QByteArray* Data = nullptr;  // not null for those that have it
};

// The operation's answer: a number, or 1 and 0 for yes and no. Those that only do something, and
// numbers that no operation has, answer 0.
int SendInkMessage(InkX& ink, int number, const InkParameters& parameters = {});

}  // namespace quill
