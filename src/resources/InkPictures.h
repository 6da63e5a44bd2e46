// The pictures on the buttons of ink notes.
#pragma once

#include "resources/Pictures.h"

namespace quill::resources {

// Select: a pointer.
inline constexpr std::array kSelectPointer = {PicturePoint{4, 1.5F},    PicturePoint{4, 11},
                                              PicturePoint{6.5F, 8.5F}, PicturePoint{8.5F, 12.5F},
                                              PicturePoint{10, 11.5F},  PicturePoint{8.2F, 8},
                                              PicturePoint{11, 8},      PicturePoint{4, 1.5F}};
inline constexpr std::array kSelectPaths = {PicturePath{PictureShape::Line, kSelectPointer}};
inline constexpr Picture kSelectPicture = {14, kSelectPaths};

// Close-up: a magnifying glass.
inline constexpr std::array kGlassRim = {
    PicturePoint{6, 1.5F}, PicturePoint{8.5F, 2.3F}, PicturePoint{10, 4.3F}, PicturePoint{10, 7},
    PicturePoint{8.5F, 9}, PicturePoint{6, 9.8F},    PicturePoint{3.5F, 9},  PicturePoint{2, 7},
    PicturePoint{2, 4.3F}, PicturePoint{3.5F, 2.3F}, PicturePoint{6, 1.5F}};
inline constexpr std::array kGlassHandle = {PicturePoint{9, 9}, PicturePoint{12.5F, 12.5F}};
inline constexpr std::array kCloseUpPaths = {PicturePath{PictureShape::Line, kGlassRim},
                                             PicturePath{PictureShape::Line, kGlassHandle}};
inline constexpr Picture kCloseUpPicture = {14, kCloseUpPaths};

}  // namespace quill::resources
