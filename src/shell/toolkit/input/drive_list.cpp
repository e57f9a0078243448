// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include <QComboBox>
#include <algorithm>
#include <functional>
#include <utility>

#include "files/drives.h"
#include "files/folder_entries.h"
#include "files/run_time_error.h"
#include "shell/toolkit/input/file_lists.h"

namespace toolkit {

class DriveList::View : public QComboBox {
 public:
  explicit View(std::function<void()> fill) : fill_(std::move(fill)) {}

  void showPopup() override {
    fill_();
    QComboBox::showPopup();
  }

 private:
  std::function<void()> fill_;
};

DriveList::DriveList(Container& parent, const ControlSheet& sheet)
    : Control(parent, sheet, std::make_unique<View>([this] { Fill(); })) {
  auto* const box = static_cast<QComboBox*>(widget());
  QObject::connect(box, &QComboBox::activated, box, [this](int row) { Choose(row); });
  // The host paints the field like a button; a list is a white one.
  QPalette white = box->palette();
  white.setColor(QPalette::Button, Qt::white);
  box->setPalette(white);
  StopTabHere();
  Fill();
}

void DriveList::Fill() {
  auto* const box = static_cast<QComboBox*>(widget());
  box->clear();
  letters_.clear();
  for (const files::Drive& drive : files::Drives()) {
    box->addItem(QString::fromUtf8(drive.row));
    letters_.push_back(drive.letter);
  }
  const auto shown = std::ranges::find(letters_, drive_.front());
  box->setCurrentIndex(shown == letters_.end() ? -1 : static_cast<int>(shown - letters_.begin()));
}

void DriveList::Choose(int row) {
  drive_ = {letters_.at(static_cast<std::size_t>(row)), ':', '\\'};
  Change.Raise();
}

void DriveList::Drive(const std::string& drive) {
  std::string root = files::LowerCase(std::string_view(drive).substr(0, 2)) + '\\';
  const std::vector<files::Drive> drives = files::Drives();
  const auto found = std::ranges::find(drives, root.front(), &files::Drive::letter);
  struct stat status {};
  const bool there = root.size() == 3 && root[1] == ':' && found != drives.end() &&
                     stat(found->mounted_at.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
  if (!there) throw files::RuntimeError(files::error::device_unavailable);

  const bool changed = root != drive_;
  drive_ = std::move(root);
  Fill();
  if (changed) Change.Raise();
}

}  // namespace toolkit
