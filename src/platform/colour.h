// Colours, and how their channels are packed.
#pragma once

#include <algorithm>
#include <cstdint>

namespace starfolds {

/// A colour, 0x00BBGGRR.
using Colour = std::uint32_t;

/// The channels of a colour, 0 to 255.
constexpr int RedOf(Colour colour) { return static_cast<int>(colour & 0xFFU); }
constexpr int GreenOf(Colour colour) { return static_cast<int>(colour >> 8U & 0xFFU); }
constexpr int BlueOf(Colour colour) { return static_cast<int>(colour >> 16U & 0xFFU); }

/// Packs three channels, each clamped to 0..255.
constexpr Colour PackRgb(int red, int green, int blue) {
  const auto channel = [](int value) { return static_cast<Colour>(std::clamp(value, 0, 255)); };
  return channel(blue) << 16U | channel(green) << 8U | channel(red);
}

/// Converts to 0xffRRGGBB, the pixel format of screens and of Qt's images (`QRgb`).
constexpr std::uint32_t ScreenWord(Colour colour) {
  return 0xFF000000U | (colour & 0xFFU) << 16U | (colour & 0xFF00U) | (colour >> 16U & 0xFFU);
}

}  // namespace starfolds
