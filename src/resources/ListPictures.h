// The pictures at the right end of the contact list's rows: how a contact is reached. In the order
// of the strip they replace. A hole is drawn into the outline of a filled polygon: where it
// overlaps itself it is empty.
#pragma once

#include "resources/Pictures.h"

namespace quill::resources {

// A mobile telephone with its aerial.
inline constexpr std::array kMobileAerial = {PicturePoint{8, 0}, PicturePoint{10, 0},
                                             PicturePoint{10, 2}, PicturePoint{8, 2}};
inline constexpr std::array kMobileBody = {
    PicturePoint{4, 2},  PicturePoint{10, 2}, PicturePoint{10, 13}, PicturePoint{4, 13},
    PicturePoint{4, 2},  PicturePoint{5, 4},  PicturePoint{9, 4},   PicturePoint{9, 7},
    PicturePoint{5, 7},  PicturePoint{5, 4},  PicturePoint{4, 2},   PicturePoint{5, 8},
    PicturePoint{6, 8},  PicturePoint{6, 9},  PicturePoint{5, 9},   PicturePoint{5, 8},
    PicturePoint{4, 2},  PicturePoint{8, 8},  PicturePoint{9, 8},   PicturePoint{9, 9},
    PicturePoint{8, 9},  PicturePoint{8, 8},  PicturePoint{4, 2},   PicturePoint{5, 10},
    PicturePoint{6, 10}, PicturePoint{6, 11}, PicturePoint{5, 11},  PicturePoint{5, 10},
    PicturePoint{4, 2},  PicturePoint{8, 10}, PicturePoint{9, 10},  PicturePoint{9, 11},
    PicturePoint{8, 11}, PicturePoint{8, 10}, PicturePoint{4, 2}};
inline constexpr std::array kMobilePaths = {PicturePath{PictureShape::Fill, kMobileAerial},
                                            PicturePath{PictureShape::Fill, kMobileBody}};
inline constexpr Picture kMobilePicture = {14, kMobilePaths};

// A house.
inline constexpr std::array kHomeHouse = {
    PicturePoint{7, 1},  PicturePoint{13, 7}, PicturePoint{12, 7}, PicturePoint{12, 13},
    PicturePoint{8, 13}, PicturePoint{8, 9},  PicturePoint{6, 9},  PicturePoint{6, 13},
    PicturePoint{2, 13}, PicturePoint{2, 7},  PicturePoint{1, 7}};
inline constexpr std::array kHomePaths = {PicturePath{PictureShape::Fill, kHomeHouse}};
inline constexpr Picture kHomePicture = {14, kHomePaths};

// A briefcase.
inline constexpr std::array kWorkHandle = {
    PicturePoint{4, 5}, PicturePoint{4, 2}, PicturePoint{10, 2}, PicturePoint{10, 5},
    PicturePoint{9, 5}, PicturePoint{9, 3}, PicturePoint{5, 3},  PicturePoint{5, 5}};
inline constexpr std::array kWorkLid = {PicturePoint{1, 5}, PicturePoint{13, 5},
                                        PicturePoint{13, 8}, PicturePoint{1, 8}};
inline constexpr std::array kWorkClasp = {PicturePoint{6, 8}, PicturePoint{8, 8},
                                          PicturePoint{8, 9}, PicturePoint{6, 9}};
inline constexpr std::array kWorkCase = {PicturePoint{1, 9}, PicturePoint{13, 9},
                                         PicturePoint{13, 13}, PicturePoint{1, 13}};
inline constexpr std::array kWorkPaths = {
    PicturePath{PictureShape::Fill, kWorkHandle}, PicturePath{PictureShape::Fill, kWorkLid},
    PicturePath{PictureShape::Fill, kWorkClasp}, PicturePath{PictureShape::Fill, kWorkCase}};
inline constexpr Picture kWorkPicture = {14, kWorkPaths};

// An envelope.
inline constexpr std::array kMailEnvelope = {PicturePoint{1.5F, 3.5F}, PicturePoint{12.5F, 3.5F},
                                             PicturePoint{12.5F, 11.5F}, PicturePoint{1.5F, 11.5F},
                                             PicturePoint{1.5F, 3.5F}};
inline constexpr std::array kMailFlap = {PicturePoint{1.5F, 3.5F}, PicturePoint{7, 8.5F},
                                         PicturePoint{12.5F, 3.5F}};
inline constexpr std::array kMailPaths = {PicturePath{PictureShape::Line, kMailEnvelope},
                                          PicturePath{PictureShape::Line, kMailFlap}};
inline constexpr Picture kMailPicture = {14, kMailPaths};

// A fax machine: handset, keys and a sheet of paper.
inline constexpr std::array kFaxHandset = {PicturePoint{1, 4}, PicturePoint{3, 4},
                                           PicturePoint{3, 13}, PicturePoint{1, 13}};
inline constexpr std::array kFaxMachine = {
    PicturePoint{4, 6},   PicturePoint{13, 6},  PicturePoint{13, 13}, PicturePoint{4, 13},
    PicturePoint{4, 6},   PicturePoint{6, 8},   PicturePoint{8, 8},   PicturePoint{8, 9},
    PicturePoint{6, 9},   PicturePoint{6, 8},   PicturePoint{4, 6},   PicturePoint{9, 8},
    PicturePoint{10, 8},  PicturePoint{10, 9},  PicturePoint{9, 9},   PicturePoint{9, 8},
    PicturePoint{4, 6},   PicturePoint{11, 8},  PicturePoint{12, 8},  PicturePoint{12, 9},
    PicturePoint{11, 9},  PicturePoint{11, 8},  PicturePoint{4, 6},   PicturePoint{6, 10},
    PicturePoint{8, 10},  PicturePoint{8, 11},  PicturePoint{6, 11},  PicturePoint{6, 10},
    PicturePoint{4, 6},   PicturePoint{9, 10},  PicturePoint{10, 10}, PicturePoint{10, 11},
    PicturePoint{9, 11},  PicturePoint{9, 10},  PicturePoint{4, 6},   PicturePoint{11, 10},
    PicturePoint{12, 10}, PicturePoint{12, 11}, PicturePoint{11, 11}, PicturePoint{11, 10},
    PicturePoint{4, 6}};
inline constexpr std::array kFaxPaper = {PicturePoint{5.5F, 6}, PicturePoint{5.5F, 1.5F},
                                         PicturePoint{10.5F, 1.5F}, PicturePoint{10.5F, 6}};
inline constexpr std::array kFaxPaths = {PicturePath{PictureShape::Fill, kFaxHandset},
                                         PicturePath{PictureShape::Fill, kFaxMachine},
                                         PicturePath{PictureShape::Line, kFaxPaper}};
inline constexpr Picture kFaxPicture = {14, kFaxPaths};

// A pin on a map.
inline constexpr std::array kAddressPin = {
    PicturePoint{11.0F, 7.1F}, PicturePoint{11.4F, 5.6F}, PicturePoint{11.3F, 4.2F},
    PicturePoint{10.7F, 2.8F}, PicturePoint{9.7F, 1.7F},  PicturePoint{8.4F, 1.0F},
    PicturePoint{7, 0.8F},     PicturePoint{5.6F, 1.0F},  PicturePoint{4.3F, 1.7F},
    PicturePoint{3.3F, 2.8F},  PicturePoint{2.7F, 4.2F},  PicturePoint{2.6F, 5.6F},
    PicturePoint{3.0F, 7.1F},  PicturePoint{7, 13.6F},    PicturePoint{11.0F, 7.1F},
    PicturePoint{8.7F, 5.2F},  PicturePoint{8.2F, 6.4F},  PicturePoint{7, 6.9F},
    PicturePoint{5.8F, 6.4F},  PicturePoint{5.3F, 5.2F},  PicturePoint{5.8F, 4.0F},
    PicturePoint{7, 3.5F},     PicturePoint{8.2F, 4.0F},  PicturePoint{8.7F, 5.2F},
    PicturePoint{11.0F, 7.1F}};
inline constexpr std::array kAddressPaths = {PicturePath{PictureShape::Fill, kAddressPin}};
inline constexpr Picture kAddressPicture = {14, kAddressPaths};

}  // namespace quill::resources
