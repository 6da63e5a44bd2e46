// Another standard input for the process.
#pragma once

#include <QFile>

#include <gtest/gtest.h>

#include <unistd.h>

namespace quill::test {

// Standard input is a file for as long as this lives.
class InputFrom {
 public:
  explicit InputFrom(QFile& file) : m_before(::dup(STDIN_FILENO)) {
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(::dup2(file.handle(), STDIN_FILENO), STDIN_FILENO);
  }
  ~InputFrom() {
    EXPECT_EQ(::dup2(m_before, STDIN_FILENO), STDIN_FILENO);
    ::close(m_before);
  }
  Q_DISABLE_COPY_MOVE(InputFrom)

 private:
  int m_before;
};

}  // namespace quill::test
