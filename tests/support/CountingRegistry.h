// A registry that counts how often values are put.
#pragma once

#include "platform/JsonRegistry.h"

namespace quill::test {

class CountingRegistry : public JsonRegistry {
 public:
  using JsonRegistry::JsonRegistry;

  bool Put(const QString& key, const std::vector<RegistryEntry>& values) override {
    ++m_puts;
    return JsonRegistry::Put(key, values);
  }
  int Puts() const { return m_puts; }

 private:
  int m_puts = 0;
};

}  // namespace quill::test
