// The pictures of a file list.
#pragma once

#include "resources/Pictures.h"

namespace quill::resources {

inline constexpr std::array kFolderOutline = {
    PicturePoint{1, 11}, PicturePoint{1, 3},   PicturePoint{5, 3}, PicturePoint{6.5F, 5},
    PicturePoint{13, 5}, PicturePoint{13, 11}, PicturePoint{1, 11}};
inline constexpr std::array kFolderPaths = {PicturePath{PictureShape::Line, kFolderOutline}};
inline constexpr Picture kFolderPicture = {14, kFolderPaths};

// A sheet with lines.
inline constexpr std::array kSheetOutline = {PicturePoint{3, 1}, PicturePoint{11, 1},
                                             PicturePoint{11, 13}, PicturePoint{3, 13},
                                             PicturePoint{3, 1}};
inline constexpr std::array kSheetLine1 = {PicturePoint{5, 5}, PicturePoint{9, 5}};
inline constexpr std::array kSheetLine2 = {PicturePoint{5, 8}, PicturePoint{9, 8}};
inline constexpr std::array kSheetPaths = {PicturePath{PictureShape::Line, kSheetOutline},
                                           PicturePath{PictureShape::Line, kSheetLine1},
                                           PicturePath{PictureShape::Line, kSheetLine2}};
inline constexpr Picture kSheetPicture = {14, kSheetPaths};

}  // namespace quill::resources
