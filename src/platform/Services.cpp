#include "platform/Services.h"

namespace quill {

Services g_services;

}  // namespace quill
