// SPDX-License-Identifier: MIT
#include "printing/printing.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "files/run_time_error.h"
#include "printing/layout.h"
#include "printing/painting.h"

namespace kalvon::printing {
namespace {

constexpr double points_per_inch = 72;
constexpr double most_pixels = 100'000'000;
constexpr int most_lines = 32767;

/// Runs what writes a file into a buffer, and returns its bytes.
template <typename Write>
std::string BytesOf(Write write) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  write(buffer);
  return bytes.toStdString();
}

/// Paints all pages one under the other.
void PaintStack(const Layout& layout, QPainter& painter) {
  for (const Page& page : layout.pages) {
    PaintPage(page, layout.paper, painter);
    painter.translate(0, layout.paper.height);
  }
}

QSizeF StackSize(const Layout& layout) {
  return {layout.paper.width, layout.paper.height * static_cast<double>(layout.pages.size())};
}

}  // namespace

Printout::Printout(const Sheet& sheet, const Paper& paper)
    : layout_(std::make_shared<const Layout>(LayOut(sheet, paper))) {}

int Printout::Pages() const { return static_cast<int>(layout_->pages.size()); }

void Printout::Paint(int page, QPainter& painter) const {
  painter.save();
  const QPaintDevice* device = painter.device();
  painter.scale(device->logicalDpiX() / points_per_inch, device->logicalDpiY() / points_per_inch);
  PaintPage(layout_->pages.at(static_cast<std::size_t>(page)), layout_->paper, painter);
  painter.restore();
}

std::string Printout::Pdf() const {
  return BytesOf([&](QIODevice& file) {
    QPdfWriter writer(&file);
    writer.setTitle(layout_->title);
    writer.setCreator(QStringLiteral("Vostrand KALVON Multimedia"));
    writer.setPageLayout(
        {QPageSize({layout_->paper.width, layout_->paper.height}, QPageSize::Point),
         QPageLayout::Portrait,
         {}});
    QPainter painter(&writer);
    for (int page = 0; page < Pages(); ++page) {
      if (page > 0) writer.newPage();
      Paint(page, painter);
    }
  });
}

std::string Printout::Svg() const {
  const QSizeF size = StackSize(*layout_);
  std::string svg = BytesOf([&](QIODevice& file) {
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setTitle(layout_->title);
    generator.setResolution(static_cast<int>(points_per_inch));
    generator.setSize(size.toSize());
    generator.setViewBox(QRectF({}, size));
    QPainter painter(&generator);
    painter.fillRect(generator.viewBoxF(), Qt::white);
    PaintStack(*layout_, painter);
  });
  return svg;
}

std::string Printout::Png(int width) const {
  const QSizeF stack = StackSize(*layout_);
  const double scale = width / stack.width();
  const double lines = stack.height() * scale;
  if (width < 1 || lines > most_lines || lines * width > most_pixels)
    throw files::RuntimeError(files::error::out_of_memory);

  QImage image(width, std::max(qRound(lines), 1), QImage::Format_Grayscale8);
  if (image.isNull()) throw files::RuntimeError(files::error::out_of_memory);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(scale, scale);
  PaintStack(*layout_, painter);
  painter.end();
  return BytesOf([&](QIODevice& file) { image.save(&file, "PNG"); });
}

}  // namespace kalvon::printing
