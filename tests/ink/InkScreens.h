// The zooms and screens on which ink must look the same however it came there.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace quill::test {

struct InkScreen {
  int Zoom = 100;    // percent
  double Ratio = 1;  // device pixels in a logical one
};

inline constexpr std::array kInkScreens = {
    InkScreen{75, 1},    InkScreen{100, 1},   InkScreen{150, 1},   InkScreen{200, 1},
    InkScreen{300, 1},   InkScreen{75, 1.5},  InkScreen{100, 1.5}, InkScreen{150, 1.5},
    InkScreen{200, 1.5}, InkScreen{300, 1.5}, InkScreen{75, 2},    InkScreen{100, 2},
    InkScreen{150, 2},   InkScreen{200, 2},   InkScreen{300, 2}};

// For the names of tests: "Zoom75Ratio15" is 75 % at 1.5.
inline std::string NameOfInkScreen(const testing::TestParamInfo<InkScreen>& screen) {
  return "Zoom" + std::to_string(screen.param.Zoom) + "Ratio" +
         std::to_string(static_cast<int>(screen.param.Ratio * 10));
}

}  // namespace quill::test
