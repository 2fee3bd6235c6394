#pragma once

#include "Platform/SystemAppearance.h"

#include <utility>

namespace lanternix {

/// A desktop whose appearance a test changes itself.
class FakeSystemAppearance final : public SystemAppearance {
 public:
  explicit FakeSystemAppearance(Appearance appearance = {}) : m_appearance(std::move(appearance)) {}

  const Appearance &appearance() const override { return m_appearance; }

  void become(const Appearance &appearance) {
    m_appearance = appearance;
    Q_EMIT changed();
  }

 private:
  Appearance m_appearance;
};

}  // namespace lanternix
