// An ordinary user for the process.
#pragma once

#include <QtGlobal>

#include <gtest/gtest.h>

#include <unistd.h>

namespace quill::test {

// Whoever runs the tests, permissions hold for him while this lives.
class OrdinaryUser {
 public:
  OrdinaryUser() : m_user(::geteuid()) {
    constexpr uid_t kNobody = 65534;
    EXPECT_EQ(::seteuid(m_user == 0 ? kNobody : m_user), 0);
  }
  ~OrdinaryUser() { EXPECT_EQ(::seteuid(m_user), 0); }
  Q_DISABLE_COPY_MOVE(OrdinaryUser)

 private:
  uid_t m_user;
};

}  // namespace quill::test
