// Controls for assistive technology, where the toolkit says too little of them: a drop-down list
// has its name and its choice as two things, a date its name as a group, a picture is one.
#pragma once

class QAccessibleInterface;
class QObject;

namespace quill {

// Null for every other object. The caller owns it.
QAccessibleInterface* MakeControlInterface(QObject* object);

}  // namespace quill
