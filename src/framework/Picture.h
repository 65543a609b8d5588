// An area in which a dialog paints an image.
#pragma once

#include <cstdint>
#include <memory>

#include "framework/Control.h"
#include "platform/Images.h"

namespace qutav {

/// Opaque colours as 0xAARRGGBB.
inline constexpr std::uint32_t kLightGrey = 0xFFF5F5F5;
inline constexpr std::uint32_t kWhite = 0xFFFFFFFF;

class Picture final : public Control {
 public:
  void Accept(ControlVisitor& visitor) override;

  /// In pixels at 96 DPI.
  int width = 0;
  int height = 0;

  /// Fills the whole area with a colour, over whatever was painted.
  void Clear(std::uint32_t colour);
  /// Paints an image, scaled into a rectangle of the area.
  void Paint(std::shared_ptr<const Image> image, const Rectangle& target);

  std::uint32_t Background() const { return background_; }
  /// What is painted now; null after a clearing.
  const std::shared_ptr<const Image>& Painted() const { return painted_; }
  const Rectangle& Target() const { return target_; }

  /// Runs when the front end is about to draw the area anew (`WM_PAINT`).
  std::function<void()> onPaint;

 private:
  std::uint32_t background_ = kWhite;
  std::shared_ptr<const Image> painted_;
  Rectangle target_;
};

}  // namespace qutav
