// Windows that show something: a picture, the progress of work.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>

#include "framework/Picture.h"
#include "framework/windows/ControlBinder.h"

namespace qutav {

class PictureBinder final : public ControlBinder {
 public:
  PictureBinder(Picture& picture, const WindowPlace& place);
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;

 private:
  void Show() override;
  void Repaint() const;

  Picture& picture_;
  std::uint32_t shownBackground_ = 0;
  std::shared_ptr<const Image> shownImage_;
  Rectangle shownTarget_;
  bool drawn_ = false;
  bool changedByModel_ = false;
};

class ProgressBarBinder final : public ControlBinder {
 public:
  ProgressBarBinder(ProgressBar& bar, const WindowPlace& place);

 private:
  void Show() override;

  ProgressBar& bar_;
  int rangeEnd_ = 0;
  std::chrono::milliseconds marqueeStep_{0};
};

}  // namespace qutav
