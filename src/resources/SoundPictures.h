// The pictures of an alarm's sound: a bell and a loudspeaker, 16 x 16, and the same struck out.
#pragma once

#include "resources/Pictures.h"

namespace quill::resources {

inline constexpr std::array kBellBody = {
    PicturePoint{8, 2},   PicturePoint{11, 4},  PicturePoint{12, 8},
    PicturePoint{12, 10}, PicturePoint{14, 12}, PicturePoint{2, 12},
    PicturePoint{4, 10},  PicturePoint{4, 8},   PicturePoint{5, 4}};
inline constexpr std::array kBellClapper = {PicturePoint{6, 13}, PicturePoint{10, 13},
                                            PicturePoint{9, 15}, PicturePoint{7, 15}};
inline constexpr std::array kSpeakerBody = {PicturePoint{1, 6},  PicturePoint{4, 6},
                                            PicturePoint{8, 2},  PicturePoint{8, 14},
                                            PicturePoint{4, 10}, PicturePoint{1, 10}};
inline constexpr std::array kSpeakerNearWave = {PicturePoint{10.5F, 5.5F}, PicturePoint{11.5F, 8},
                                                PicturePoint{10.5F, 10.5F}};
inline constexpr std::array kSpeakerFarWave = {PicturePoint{12.5F, 3.5F}, PicturePoint{14.5F, 8},
                                               PicturePoint{12.5F, 12.5F}};
inline constexpr std::array kSoundStroke = {PicturePoint{1.5F, 14.5F}, PicturePoint{14.5F, 1.5F}};

inline constexpr std::array kBellPaths = {PicturePath{PictureShape::Fill, kBellBody},
                                          PicturePath{PictureShape::Fill, kBellClapper}};
inline constexpr Picture kBellPicture = {16, kBellPaths};

inline constexpr std::array kSilentBellPaths = {PicturePath{PictureShape::Fill, kBellBody},
                                                PicturePath{PictureShape::Fill, kBellClapper},
                                                PicturePath{PictureShape::Line, kSoundStroke}};
inline constexpr Picture kSilentBellPicture = {16, kSilentBellPaths};

inline constexpr std::array kSpeakerPaths = {PicturePath{PictureShape::Fill, kSpeakerBody},
                                             PicturePath{PictureShape::Line, kSpeakerNearWave},
                                             PicturePath{PictureShape::Line, kSpeakerFarWave}};
inline constexpr Picture kSpeakerPicture = {16, kSpeakerPaths};

inline constexpr std::array kSilentSpeakerPaths = {PicturePath{PictureShape::Fill, kSpeakerBody},
                                                   PicturePath{PictureShape::Line, kSoundStroke}};
inline constexpr Picture kSilentSpeakerPicture = {16, kSilentSpeakerPaths};

}  // namespace quill::resources
