// The name under which the store files a new contact that brings none.
#pragma once

#include "store/ContactRecord.h"

namespace quill {

// "Last, First Middle" of what exists, else the company, else empty.
QString MakeFileAs(const ContactRecord& record);

}  // namespace quill
