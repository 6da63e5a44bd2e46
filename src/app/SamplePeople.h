// Fills the sample home: people to look at for somebody who has brought no contacts yet.
#pragma once

#include <QString>

#include "platform/DeviceFiles.h"
#include "store/StoreProvider.h"

namespace quill {

// Puts the sample people into a store that holds nobody, all or none, with appointments and memos
// of some of them, and leaves a home that holds somebody as it is. The provider is opened and
// closed again. Returns why it could not, as text for the user, or an empty string.
QString FillWithSamplePeople(StoreProvider& store, DeviceFiles& files);

}  // namespace quill
