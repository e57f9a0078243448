// SPDX-License-Identifier: MIT
// A picture: what is taken for one has sides that the program can show.
#include "shell/toolkit/drawing/picture.h"

#include <QImage>

#include "files/run_time_error.h"
#include "fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzFolder folder;
  const std::string path = folder.Write("slika.bmp", Text(data, size));
  files::pass_over([&] {
    const toolkit::Picture picture = toolkit::LoadPicture(path);
    Require(picture.image().width() <= toolkit::largest_side);
    Require(picture.image().height() <= toolkit::largest_side);
  });
  return 0;
}
