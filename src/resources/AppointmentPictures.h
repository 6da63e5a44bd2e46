// The pictures of the preview's buttons, 20 x 20: a pencil to change an appointment, a bin to
// delete it.
#pragma once

#include "resources/Pictures.h"

namespace quill::resources {

inline constexpr std::array kPencilShaft = {PicturePoint{6.5F, 11}, PicturePoint{12.5F, 5},
                                            PicturePoint{15, 7.5F}, PicturePoint{9, 13.5F},
                                            PicturePoint{6.5F, 11}};
inline constexpr std::array kPencilTip = {PicturePoint{5.5F, 12}, PicturePoint{8, 14.5F},
                                          PicturePoint{4, 16}};
inline constexpr std::array kPencilEnd = {PicturePoint{13.5F, 4}, PicturePoint{14.5F, 3.2F},
                                          PicturePoint{16.8F, 5.5F}, PicturePoint{16, 6.5F}};
inline constexpr std::array kModifyPaths = {PicturePath{PictureShape::Line, kPencilShaft},
                                            PicturePath{PictureShape::Fill, kPencilTip},
                                            PicturePath{PictureShape::Fill, kPencilEnd}};
inline constexpr Picture kModifyPicture = {20, kModifyPaths};

inline constexpr std::array kBinLid = {PicturePoint{4, 6}, PicturePoint{16, 6}};
inline constexpr std::array kBinHandle = {PicturePoint{8, 6}, PicturePoint{8, 4},
                                          PicturePoint{12, 4}, PicturePoint{12, 6}};
inline constexpr std::array kBinBody = {PicturePoint{5.5F, 6}, PicturePoint{6.2F, 16},
                                        PicturePoint{13.8F, 16}, PicturePoint{14.5F, 6}};
inline constexpr std::array kBinLeftRib = {PicturePoint{8.4F, 8.5F}, PicturePoint{8.7F, 13.5F}};
inline constexpr std::array kBinRightRib = {PicturePoint{11.6F, 8.5F}, PicturePoint{11.3F, 13.5F}};
inline constexpr std::array kDeletePaths = {
    PicturePath{PictureShape::Line, kBinLid}, PicturePath{PictureShape::Line, kBinHandle},
    PicturePath{PictureShape::Line, kBinBody}, PicturePath{PictureShape::Line, kBinLeftRib},
    PicturePath{PictureShape::Line, kBinRightRib}};
inline constexpr Picture kDeletePicture = {20, kDeletePaths};

}  // namespace quill::resources
