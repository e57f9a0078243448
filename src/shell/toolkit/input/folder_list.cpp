// SPDX-License-Identifier: MIT
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>
#include <functional>
#include <utility>

#include "files/folder_entries.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"
#include "shell/toolkit/input/file_lists.h"

namespace toolkit {

namespace {

constexpr int level_role = Qt::UserRole;
constexpr int indentation_in_pixels = 8;

/// Shifts each row by its depth in the tree.
class IndentedRow : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem shifted = option;
    shifted.rect.setLeft(option.rect.left() + Indentation(index));
    QStyledItemDelegate::paint(painter, shifted, index);
  }

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(Indentation(index), 0);
  }

 private:
  static int Indentation(const QModelIndex& index) {
    return index.data(level_role).toInt() * indentation_in_pixels;
  }
};

}  // namespace

/// Opens rows by itself: what the style takes for activation differs between desktops.
class FolderList::View : public QListWidget {
 public:
  explicit View(std::function<void(int)> open_row) : open_row_(std::move(open_row)) {
    setItemDelegate(new IndentedRow(this));
    setEditTriggers(NoEditTriggers);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      open_row_(currentRow());
    } else {
      QListWidget::keyPressEvent(event);
    }
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    const int pressed_row = currentRow();
    QListWidget::mouseDoubleClickEvent(event);
    const int row = indexAt(event->position().toPoint()).row();
    if (event->button() == Qt::LeftButton && row == pressed_row) open_row_(row);
  }

 private:
  std::function<void(int)> open_row_;
};

FolderList::FolderList(Container& parent, const ControlSheet& sheet)
    : Control(parent, sheet, std::make_unique<View>([this](int row) { OpenRow(row); })) {
  StopTabHere();
  files::pass_over([&] { ShowFolder("c:\\"); });
}

void FolderList::Path(const std::string& path) {
  if (ShowFolder(path)) Change.Raise();
}

void FolderList::OpenRow(int row) {
  if (row < 0 || row >= static_cast<int>(row_paths_.size())) return;
  // The user sees that a folder cannot be read by its staying closed.
  const std::string path = row_paths_[static_cast<std::size_t>(row)];
  if (files::pass_over([&] { ShowFolder(path); }) == 0) Change.Raise();
}

bool FolderList::ShowFolder(const std::string& path) {
  const std::vector<std::string> folders = files::ReadFolder(files::HostPath(path)).folders;
  const std::string before = std::exchange(path_, files::PathOnDisk(path));

  auto* const list = static_cast<QListWidget*>(widget());
  list->clear();
  row_paths_.clear();
  constexpr std::size_t root_length = 3;
  AddRow(path_.substr(0, root_length), path_.substr(0, root_length), true);
  for (std::size_t begin = root_length; begin < path_.size();) {
    const std::size_t end = std::min(path_.find('\\', begin), path_.size());
    AddRow(path_.substr(0, end), path_.substr(begin, end - begin), true);
    begin = end + 1;
  }
  const int shown = list->count() - 1;
  for (const std::string& folder : folders)
    AddRow(files::WithBackslash(path_) + folder, folder, false);
  list->setCurrentRow(shown);
  return path_ != before;
}

void FolderList::AddRow(const std::string& path, const std::string& name, bool open) {
  auto* const list = static_cast<QListWidget*>(widget());
  const QStyle::StandardPixmap icon = open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirClosedIcon;
  auto* const row =
      new QListWidgetItem(list->style()->standardIcon(icon), QString::fromUtf8(name), list);
  row->setData(level_role,
               static_cast<int>(std::ranges::count(path, '\\')) - (path.size() <= 3 ? 1 : 0));
  row_paths_.push_back(path);
}

}  // namespace toolkit
