// The dialog resource of the calendar.
#pragma once

#include <array>

#include "resources/Dialogs.h"

namespace quill::resources {

// The month stands above them. With the input panel up there is room for all of it.
inline constexpr std::array kCalendarControls = {
    DialogControl{ControlKind::Button, CalendarIds::kToday, u"Today", {3, 139, 92, 22}},
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {101, 139, 92, 22}},
};
inline constexpr DialogResource kCalendarDialog = {
    CalendarIds::kDialog, u"Date", {22, 32, 196, 180}, kCalendarControls};
inline constexpr Rectangle kCalendarMonth = {3, 3, 190, 133};

}  // namespace quill::resources
