// One session of OBEX with whatever bytes the peer sends.
#pragma once

#include <QByteArray>

#include <string>

namespace quill::test {

// The first byte says who is tried (even: the inbox, odd: the client) and how offers are answered,
// the second one into how long pieces the rest is cut, which is what the peer sends. Returns what
// went wrong, or nothing: bytes in pieces must do what they do at once, what is answered and held
// must stay small, and every packet that is read must be written alike.
std::string ObexTrialProblem(const QByteArray& bytes);

}  // namespace quill::test
