// Dialog resources for beam and receive: to whom contacts go, and whether a card is wanted.
#pragma once

#include <array>

#include "resources/Dialogs.h"
#include "resources/InfraredIds.h"

namespace quill::resources {

// The list of what was found stands below them.
inline constexpr std::array kReceiverControls = {
    DialogControl{ControlKind::Label, kNoId, u"Address", {4, 4, 48, 20}},
    DialogControl{ControlKind::PanelEdit, ReceiverIds::kAddress, u"", {54, 4, 182, 20}},
    DialogControl{ControlKind::Label, ReceiverIds::kFoundLabel, u"", {4, 28, 232, 16}},
};
inline constexpr DialogResource kReceiverDialog = {
    ReceiverIds::kDialog, u"Beam to", {}, kReceiverControls};

inline constexpr std::array kConsentControls = {
    DialogControl{ControlKind::Label, kNoId, u"Take the contact that is sent?", {10, 6, 200, 18}},
    DialogControl{ControlKind::Label, kNoId, u"Contact", {10, 28, 44, 16}},
    DialogControl{ControlKind::Label, ConsentIds::kCard, u"", {56, 28, 154, 16}},
    DialogControl{ControlKind::Label, kNoId, u"From", {10, 46, 44, 16}},
    DialogControl{ControlKind::Label, ConsentIds::kPeer, u"", {56, 46, 154, 16}},
    DialogControl{ControlKind::Label, ConsentIds::kAddress, u"", {56, 62, 154, 16}},
    DialogControl{ControlKind::Check,
                  ConsentIds::kAlways,
                  u"Always take cards from this device",
                  {10, 82, 206, 20}},
    DialogControl{ControlKind::Button, kResultYes, u"Yes", {41, 108, 64, 26}},
    DialogControl{ControlKind::Button, kResultNo, u"No", {115, 108, 64, 26}},
};
inline constexpr DialogResource kConsentDialog = {
    ConsentIds::kDialog, u"Receive", {10, 80, 220, 160}, kConsentControls};

}  // namespace quill::resources
