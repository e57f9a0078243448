// SPDX-License-Identifier: MIT
#include "shell/toolkit/drawing/picture.h"

#include <gtest/gtest.h>

#include <QImage>

#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace toolkit {
namespace {

Picture Load(const std::string& bytes) {
  const ScratchFolder folder;
  folder.Put("slika\xE6.bmp", bytes);
  return LoadPicture(folder.Logic("slika\xE6.bmp"));
}

void ExpectRefused(const std::string& bytes) {
  EXPECT_EQ(files::pass_over([&] { Load(bytes); }), files::error::invalid_picture) << bytes.size();
}

TEST(PictureTest, ReadsEveryKindOfBitmapIfItIsWhole) {
  constexpr unsigned colours[] = {0xFF0000, 0x0000FF, 0x00FF00, 0xFFFFFF};
  for (const std::string kind : {"1", "1_os2", "4", "4_runs", "8", "8_os2", "8_runs", "8_top_down",
                                 "16", "16_masks", "24", "24_os2", "24_top_down", "32"}) {
    SCOPED_TRACE(kind);
    std::string bytes = DataFile("bitmaps/" + kind + ".bmp");
    const QImage image = Load(bytes).image();
    ASSERT_EQ(image.size(), QSize(5, 3));
    const int in_use = kind.starts_with("1") && !kind.starts_with("16") ? 2 : 4;
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 5; ++x)
        EXPECT_EQ(image.pixel(x, y) & 0xFFFFFF, colours[(x + 2 * y) % in_use]) << x << ", " << y;
    for (const auto size : {0UL, 30UL, bytes.size() - 1}) ExpectRefused(bytes.substr(0, size));
    if (!kind.ends_with("_runs")) continue;
    bytes.replace(bytes.size() - static_cast<std::size_t>(bytes[34]), 2, {'\0', '\1'});
    QImage skipped(5, 3, QImage::Format_RGB32);
    skipped.fill(colours[0]);
    EXPECT_EQ(Load(bytes).image(), skipped);
  }
}

TEST(PictureTest, RefusesWhatIsNoBitmapOrWouldFillTheMemory) {
  ExpectRefused("GIF89a" + std::string(100, '\0'));
  for (const std::size_t side_at : {18U, 22U}) {
    std::string runs = DataFile("bitmaps/8_runs.bmp");
    runs.replace(side_at, 2, "\x88\x13");  // 5000 pixels.
    ExpectRefused(runs);
  }
  EXPECT_EQ(files::pass_over([] { LoadPicture("c:\\nema.bmp"); }), files::error::file_not_found);
}

}  // namespace
}  // namespace toolkit
