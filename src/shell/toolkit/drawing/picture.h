// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

class QImage;

namespace toolkit {

/// Pixels to a side that a picture or a film has at most: a few packed bytes can stand for one that
/// fills the memory.
inline constexpr int largest_side = 4096;

/// An image, shared and never changed; the empty one is no picture. It may have a second drawing
/// with more pixels, for dense screens.
class Picture {
 public:
  Picture() = default;
  explicit Picture(std::shared_ptr<const QImage> image,
                   std::shared_ptr<const QImage> dense = nullptr)
      : image_(std::move(image)), dense_(std::move(dense)) {}

  [[nodiscard]] bool Empty() const { return image_ == nullptr; }
  [[nodiscard]] const QImage& image() const { return *image_; }
  /// The one with more pixels, or else the same.
  [[nodiscard]] const QImage& dense() const { return dense_ ? *dense_ : *image_; }

 private:
  std::shared_ptr<const QImage> image_;
  std::shared_ptr<const QImage> dense_;
};

/// The image of a bitmap file; an empty path gives no picture.
/// Error 53 if there is no such file, 75 if it cannot be read, 481 if it holds no image.
Picture LoadPicture(const std::string& path);

/// One of the pictures that are built into the program, by its file name.
Picture BuiltInPicture(const std::string& name);

}  // namespace toolkit
