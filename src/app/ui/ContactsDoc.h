// The document of the single-document program: it holds nothing, since every contact lives in the
// store. It is made once, never dirty, never saved.
#pragma once

namespace quill {

class CContactsDoc {};

}  // namespace quill
