#include "framework/Picture.h"

#include <utility>

#include "framework/ControlVisitor.h"

namespace qutav {

void Picture::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Picture::Clear(std::uint32_t colour) {
  background_ = colour;
  painted_.reset();
  target_ = {};
}

void Picture::Paint(std::shared_ptr<const Image> image, const Rectangle& target) {
  painted_ = std::move(image);
  target_ = target;
}

}  // namespace qutav
