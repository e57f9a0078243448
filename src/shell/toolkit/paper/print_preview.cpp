// SPDX-License-Identifier: MIT
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <algorithm>

#include "shell/toolkit/windows/paper_p.h"

namespace {

void PaintAll(QPrinter& printer, const toolkit::PagesFor& pages_for) {
  // The pages have margins of their own.
  printer.setFullPage(true);
  const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Point).size();
  const toolkit::PrintedPages pages = pages_for(paper.width(), paper.height());
  const int from = printer.fromPage() > 0 ? printer.fromPage() - 1 : 0;
  const int end = printer.toPage() > 0 ? std::min(printer.toPage(), pages.count) : pages.count;
  QPainter painter(&printer);
  for (int page = from; page < end; ++page) {
    if (page > from) printer.newPage();
    pages.paint(page, painter);
  }
}

}  // namespace

void KalvonPrint(QWidget* parent, const std::string& title, const toolkit::PagesFor& pages) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(QString::fromStdString(title));
  QPrintPreviewDialog preview(&printer, parent);
  preview.setWindowTitle(QString::fromStdString(title));
  preview.resize(800, 700);
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested,
                   [&](QPrinter* device) { PaintAll(*device, pages); });
  preview.exec();
}
