// Work in a process of its own, so that its memory is not mixed up with what was done before.
#pragma once

#include <QByteArray>

#include <functional>
#include <optional>

namespace quill::bench {

// Runs the work in a child process and hands back what it returned; nothing when the work returned
// nothing or its process broke down. To be called while there is no other thread.
std::optional<QByteArray> RunApart(const std::function<std::optional<QByteArray>()>& work);

}  // namespace quill::bench
