// The pictures at the right end of a record sheet's rows: that something is picked there.
#pragma once

#include "resources/Pictures.h"

namespace quill::resources {

// An arrow that opens a calendar or a list, 10 x 10.
inline constexpr std::array kPickTriangle = {PicturePoint{1, 3}, PicturePoint{9, 3},
                                             PicturePoint{5, 7.5F}};
inline constexpr std::array kPickPaths = {PicturePath{PictureShape::Fill, kPickTriangle}};
inline constexpr Picture kPickPicture = {10, kPickPaths};

// A label on a string, 14 x 14.
inline constexpr std::array kTagOutline = {PicturePoint{1.5F, 1.5F}, PicturePoint{7, 1.5F},
                                           PicturePoint{12.5F, 7},   PicturePoint{7, 12.5F},
                                           PicturePoint{1.5F, 7},    PicturePoint{1.5F, 1.5F}};
inline constexpr std::array kTagHole = {PicturePoint{4, 4}, PicturePoint{5.5F, 4},
                                        PicturePoint{5.5F, 5.5F}, PicturePoint{4, 5.5F}};
inline constexpr std::array kTagPaths = {PicturePath{PictureShape::Line, kTagOutline},
                                         PicturePath{PictureShape::Fill, kTagHole}};
inline constexpr Picture kTagPicture = {14, kTagPaths};

}  // namespace quill::resources
