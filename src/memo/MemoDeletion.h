// Asks before ink notes are deleted, whether they are files or a contact's.
#pragma once

#include <QString>

namespace quill {

// True when the user says yes to the question.
bool ConfirmDeletion(const QString& question);
bool ConfirmMemoDeletion();

}  // namespace quill
