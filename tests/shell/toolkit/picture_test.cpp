// SPDX-License-Identifier: MIT
#include "shell/toolkit/drawing/picture.h"

#include <gtest/gtest.h>

#include <QImage>

#include "files/run_time_error.h"
#include "files/scratch_folder.h"
#include "support/bitmap_files.h"

namespace toolkit {

namespace {

using kalvon::testing::BitmapColour;
using kalvon::testing::BitmapFile;
using kalvon::testing::BitmapKind;
using kalvon::testing::Packing;

struct Row {
  const char* name = "";
  BitmapKind kind;
};

const Row rows[] = {
    {"1 bit", {.bits = 1}},
    {"4 bit", {.bits = 4}},
    {"8 bit", {.bits = 8}},
    {"16 bit", {.bits = 16}},
    {"16 bit with colour masks", {.bits = 16, .packing = Packing::fields}},
    {"24 bit", {.bits = 24}},
    {"32 bit", {.bits = 32}},
    {"4 bit, run lengths", {.bits = 4, .packing = Packing::rle4}},
    {"8 bit, run lengths", {.bits = 8, .packing = Packing::rle8}},
    {"8 bit, top row first", {.bits = 8, .top_down = true}},
    {"24 bit, top row first", {.bits = 24, .top_down = true}},
    {"1 bit of OS/2", {.bits = 1, .os2 = true}},
    {"8 bit of OS/2", {.bits = 8, .os2 = true}},
    {"24 bit of OS/2", {.bits = 24, .os2 = true}},
};

TEST(PictureTest, ReadsEveryKindOfBitmap) {
  const ScratchFolder folder;
  for (const auto& [name, kind] : rows) {
    SCOPED_TRACE(name);
    folder.Put("Slika.bmp", BitmapFile(kind));
    const Picture picture = LoadPicture(folder.Logic("slika.BMP"));
    const QImage& image = picture.image();
    ASSERT_EQ(image.size(), QSize(kind.width, kind.height));
    for (int y = 0; y < kind.height; ++y)
      for (int x = 0; x < kind.width; ++x)
        EXPECT_EQ(image.pixel(x, y) & 0xFFFFFF, BitmapColour(kind, x, y)) << x << ", " << y;
  }
}

TEST(PictureTest, RefusesWhatIsNoWholeBitmap) {
  const ScratchFolder folder;
  const auto load = [&](const std::string& bytes) {
    folder.Put("slika.bmp", bytes);
    return files::pass_over([&] { LoadPicture(folder.Logic("slika.bmp")); });
  };
  for (const auto& [name, kind] : rows) {
    const std::string whole = BitmapFile(kind);
    for (const std::size_t size : {std::size_t{0}, std::size_t{30}, whole.size() - 1})
      EXPECT_EQ(load(whole.substr(0, size)), files::error::invalid_picture) << name << ", " << size;
  }
  EXPECT_EQ(load("GIF89a" + std::string(100, '\0')), files::error::invalid_picture);
  EXPECT_EQ(load(BitmapFile({.bits = 8, .packing = Packing::rle8, .width = 5, .height = 5000})),
            files::error::invalid_picture)
      << "a picture that would fill the memory";
  EXPECT_EQ(files::pass_over([&] { LoadPicture(folder.Logic("nema.bmp")); }),
            files::error::file_not_found);
}

}  // namespace

}  // namespace toolkit
