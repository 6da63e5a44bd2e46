// What the confirmation of a delete is about. Whoever asks for it sets the scope each time before.
#pragma once

#include <QString>

namespace quill {

enum class DeleteScope { Selected = 0, All = 1 };
extern DeleteScope g_deleteScope;

// The question, with the capital R of the second one: intended.
QString DeleteQuestion(DeleteScope scope);

}  // namespace quill
