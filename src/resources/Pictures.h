// Small pictures as vector data, crisp at every scale. Coordinates are in a grid of Size x Size
// logical pixels.
#pragma once

#include <array>
#include <span>

namespace quill::resources {

struct PicturePoint {
  float X;
  float Y;
};

enum class PictureShape { Line, Fill };  // an open line of one pixel, a filled polygon

struct PicturePath {
  PictureShape Shape;
  std::span<const PicturePoint> Points;
};

struct Picture {
  int Size;
  std::span<const PicturePath> Paths;
};

// The close cross of the title bar.
inline constexpr std::array kCrossDown = {PicturePoint{4, 4}, PicturePoint{10, 10}};
inline constexpr std::array kCrossUp = {PicturePoint{4, 10}, PicturePoint{10, 4}};
inline constexpr std::array kClosePaths = {PicturePath{PictureShape::Line, kCrossDown},
                                           PicturePath{PictureShape::Line, kCrossUp}};
inline constexpr Picture kClosePicture = {14, kClosePaths};

// What comes in: an arrow into a tray.
inline constexpr std::array kIncomingShaft = {PicturePoint{7, 2}, PicturePoint{7, 9}};
inline constexpr std::array kIncomingHead = {PicturePoint{4, 6}, PicturePoint{7, 9},
                                             PicturePoint{10, 6}};
inline constexpr std::array kIncomingTray = {PicturePoint{2, 9}, PicturePoint{2, 12},
                                             PicturePoint{12, 12}, PicturePoint{12, 9}};
inline constexpr std::array kIncomingPaths = {PicturePath{PictureShape::Line, kIncomingShaft},
                                              PicturePath{PictureShape::Line, kIncomingHead},
                                              PicturePath{PictureShape::Line, kIncomingTray}};
inline constexpr Picture kIncomingPicture = {14, kIncomingPaths};

// The check mark of a menu item.
inline constexpr std::array kCheckLine = {PicturePoint{3, 7}, PicturePoint{6, 10},
                                          PicturePoint{11, 4}};
inline constexpr std::array kCheckPaths = {PicturePath{PictureShape::Line, kCheckLine}};
inline constexpr Picture kCheckPicture = {14, kCheckPaths};

// The arrows of submenus, scroll strips and the calendar.
inline constexpr std::array kRightTriangle = {PicturePoint{5, 3}, PicturePoint{9, 7},
                                              PicturePoint{5, 11}};
inline constexpr std::array kRightPaths = {PicturePath{PictureShape::Fill, kRightTriangle}};
inline constexpr Picture kRightPicture = {14, kRightPaths};

inline constexpr std::array kLeftTriangle = {PicturePoint{9, 3}, PicturePoint{5, 7},
                                             PicturePoint{9, 11}};
inline constexpr std::array kLeftPaths = {PicturePath{PictureShape::Fill, kLeftTriangle}};
inline constexpr Picture kLeftPicture = {14, kLeftPaths};

// Further than one of them.
inline constexpr std::array kFarRightFirst = {PicturePoint{2, 3}, PicturePoint{6, 7},
                                              PicturePoint{2, 11}};
inline constexpr std::array kFarRightSecond = {PicturePoint{8, 3}, PicturePoint{12, 7},
                                               PicturePoint{8, 11}};
inline constexpr std::array kFarRightPaths = {PicturePath{PictureShape::Fill, kFarRightFirst},
                                              PicturePath{PictureShape::Fill, kFarRightSecond}};
inline constexpr Picture kFarRightPicture = {14, kFarRightPaths};

inline constexpr std::array kFarLeftFirst = {PicturePoint{6, 3}, PicturePoint{2, 7},
                                             PicturePoint{6, 11}};
inline constexpr std::array kFarLeftSecond = {PicturePoint{12, 3}, PicturePoint{8, 7},
                                              PicturePoint{12, 11}};
inline constexpr std::array kFarLeftPaths = {PicturePath{PictureShape::Fill, kFarLeftFirst},
                                             PicturePath{PictureShape::Fill, kFarLeftSecond}};
inline constexpr Picture kFarLeftPicture = {14, kFarLeftPaths};

inline constexpr std::array kUpTriangle = {PicturePoint{3, 9}, PicturePoint{7, 5},
                                           PicturePoint{11, 9}};
inline constexpr std::array kUpPaths = {PicturePath{PictureShape::Fill, kUpTriangle}};
inline constexpr Picture kUpPicture = {14, kUpPaths};

inline constexpr std::array kDownTriangle = {PicturePoint{3, 5}, PicturePoint{7, 9},
                                             PicturePoint{11, 5}};
inline constexpr std::array kDownPaths = {PicturePath{PictureShape::Fill, kDownTriangle}};
inline constexpr Picture kDownPicture = {14, kDownPaths};

// The input panel's button: a keyboard.
inline constexpr std::array kKeyboardFrame = {PicturePoint{1, 3}, PicturePoint{13, 3},
                                              PicturePoint{13, 11}, PicturePoint{1, 11},
                                              PicturePoint{1, 3}};
inline constexpr std::array kKeyboardRow1 = {PicturePoint{3, 5.5F}, PicturePoint{11, 5.5F}};
inline constexpr std::array kKeyboardRow2 = {PicturePoint{3, 7.5F}, PicturePoint{11, 7.5F}};
inline constexpr std::array kKeyboardSpace = {PicturePoint{5, 9.5F}, PicturePoint{9, 9.5F}};
inline constexpr std::array kKeyboardPaths = {PicturePath{PictureShape::Line, kKeyboardFrame},
                                              PicturePath{PictureShape::Line, kKeyboardRow1},
                                              PicturePath{PictureShape::Line, kKeyboardRow2},
                                              PicturePath{PictureShape::Line, kKeyboardSpace}};
inline constexpr Picture kKeyboardPicture = {14, kKeyboardPaths};

// The icons of message boxes.
inline constexpr std::array kIconCircle = {
    PicturePoint{12, 2},        PicturePoint{15.8F, 2.8F},  PicturePoint{19.1F, 4.9F},
    PicturePoint{21.2F, 8.2F},  PicturePoint{22, 12},       PicturePoint{21.2F, 15.8F},
    PicturePoint{19.1F, 19.1F}, PicturePoint{15.8F, 21.2F}, PicturePoint{12, 22},
    PicturePoint{8.2F, 21.2F},  PicturePoint{4.9F, 19.1F},  PicturePoint{2.8F, 15.8F},
    PicturePoint{2, 12},        PicturePoint{2.8F, 8.2F},   PicturePoint{4.9F, 4.9F},
    PicturePoint{8.2F, 2.8F},   PicturePoint{12, 2}};
inline constexpr PicturePath kIconCirclePath = {PictureShape::Line, kIconCircle};

inline constexpr std::array kLetterIStem = {PicturePoint{12, 11}, PicturePoint{12, 17}};
inline constexpr std::array kLetterIDot = {PicturePoint{11.5F, 7}, PicturePoint{12.5F, 7},
                                           PicturePoint{12.5F, 8}, PicturePoint{11.5F, 8}};
inline constexpr std::array kInformationPaths = {kIconCirclePath,
                                                 PicturePath{PictureShape::Line, kLetterIStem},
                                                 PicturePath{PictureShape::Fill, kLetterIDot}};
inline constexpr Picture kInformationPicture = {24, kInformationPaths};

inline constexpr std::array kTriangle = {PicturePoint{12, 2}, PicturePoint{22, 21},
                                         PicturePoint{2, 21}, PicturePoint{12, 2}};
inline constexpr std::array kExclamationStem = {PicturePoint{12, 9}, PicturePoint{12, 15}};
inline constexpr std::array kExclamationDot = {
    PicturePoint{11.5F, 17.5F}, PicturePoint{12.5F, 17.5F}, PicturePoint{12.5F, 18.5F},
    PicturePoint{11.5F, 18.5F}};
inline constexpr std::array kWarningPaths = {PicturePath{PictureShape::Line, kTriangle},
                                             PicturePath{PictureShape::Line, kExclamationStem},
                                             PicturePath{PictureShape::Fill, kExclamationDot}};
inline constexpr Picture kWarningPicture = {24, kWarningPaths};

inline constexpr std::array kQuestionHook = {
    PicturePoint{9, 9.5F},  PicturePoint{10, 7.5F},  PicturePoint{12, 7},  PicturePoint{14, 7.5F},
    PicturePoint{15, 9.5F}, PicturePoint{14, 11.5F}, PicturePoint{12, 13}, PicturePoint{12, 15}};
inline constexpr std::array kQuestionDot = {PicturePoint{11.5F, 17}, PicturePoint{12.5F, 17},
                                            PicturePoint{12.5F, 18}, PicturePoint{11.5F, 18}};
inline constexpr std::array kQuestionPaths = {kIconCirclePath,
                                              PicturePath{PictureShape::Line, kQuestionHook},
                                              PicturePath{PictureShape::Fill, kQuestionDot}};
inline constexpr Picture kQuestionPicture = {24, kQuestionPaths};

inline constexpr std::array kErrorDown = {PicturePoint{8, 8}, PicturePoint{16, 16}};
inline constexpr std::array kErrorUp = {PicturePoint{8, 16}, PicturePoint{16, 8}};
inline constexpr std::array kErrorPaths = {kIconCirclePath,
                                           PicturePath{PictureShape::Line, kErrorDown},
                                           PicturePath{PictureShape::Line, kErrorUp}};
inline constexpr Picture kErrorPicture = {24, kErrorPaths};

}  // namespace quill::resources
