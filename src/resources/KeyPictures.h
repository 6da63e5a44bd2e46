// The pictures on keys that have no letter.
#pragma once

#include "resources/Pictures.h"

namespace quill::resources {

inline constexpr std::array kBackspaceShape = {PicturePoint{1, 7},  PicturePoint{5, 3},
                                               PicturePoint{13, 3}, PicturePoint{13, 11},
                                               PicturePoint{5, 11}, PicturePoint{1, 7}};
inline constexpr std::array kBackspaceDown = {PicturePoint{6.5F, 5}, PicturePoint{10.5F, 9}};
inline constexpr std::array kBackspaceUp = {PicturePoint{6.5F, 9}, PicturePoint{10.5F, 5}};
inline constexpr std::array kBackspacePaths = {PicturePath{PictureShape::Line, kBackspaceShape},
                                               PicturePath{PictureShape::Line, kBackspaceDown},
                                               PicturePath{PictureShape::Line, kBackspaceUp}};
inline constexpr Picture kBackspacePicture = {14, kBackspacePaths};

inline constexpr std::array kReturnLine = {PicturePoint{12, 3}, PicturePoint{12, 8},
                                           PicturePoint{3, 8}};
inline constexpr std::array kReturnHead = {PicturePoint{6, 5}, PicturePoint{3, 8},
                                           PicturePoint{6, 11}};
inline constexpr std::array kReturnPaths = {PicturePath{PictureShape::Line, kReturnLine},
                                            PicturePath{PictureShape::Line, kReturnHead}};
inline constexpr Picture kReturnPicture = {14, kReturnPaths};

inline constexpr std::array kShiftShape = {
    PicturePoint{7, 2},  PicturePoint{12, 7}, PicturePoint{9, 7}, PicturePoint{9, 12},
    PicturePoint{5, 12}, PicturePoint{5, 7},  PicturePoint{2, 7}, PicturePoint{7, 2}};
inline constexpr std::array kShiftPaths = {PicturePath{PictureShape::Line, kShiftShape}};
inline constexpr Picture kShiftPicture = {14, kShiftPaths};
inline constexpr std::array kShiftLockPaths = {PicturePath{PictureShape::Fill, kShiftShape}};
inline constexpr Picture kShiftLockPicture = {14, kShiftLockPaths};

}  // namespace quill::resources
