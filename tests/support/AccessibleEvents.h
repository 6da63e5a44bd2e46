// Notes what assistive technology is told while this lives. One at a time.
#pragma once

#include <QAccessible>

#include <functional>
#include <utility>

namespace quill::test {

class AccessibleEvents {
 public:
  using Listener = std::function<void(QAccessibleEvent& event)>;

  explicit AccessibleEvents(Listener listener) {
    s_listener = std::move(listener);
    m_before =
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) { s_listener(*event); });
    QAccessible::setActive(true);
  }
  ~AccessibleEvents() {
    QAccessible::setActive(false);
    QAccessible::installUpdateHandler(m_before);
    s_listener = nullptr;
  }
  AccessibleEvents(const AccessibleEvents&) = delete;
  AccessibleEvents& operator=(const AccessibleEvents&) = delete;

 private:
  inline static Listener s_listener;
  QAccessible::UpdateHandler m_before;
};

}  // namespace quill::test
