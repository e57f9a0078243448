// SPDX-License-Identifier: MIT
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QStringListModel>
#include <algorithm>
#include <iterator>

#include "files/folder_entries.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"
#include "shell/toolkit/drawing/face_p.h"
#include "shell/toolkit/drawing/text_code_p.h"
#include "shell/toolkit/events/key_codes_p.h"
#include "shell/toolkit/input/file_lists.h"

namespace toolkit {

namespace {

/// The first character of a text, of all its bytes.
std::string_view FirstCharacter(std::string_view text) {
  const auto continues = [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
  };
  std::size_t length = 1;
  while (length < text.size() && continues(text[length])) ++length;
  return text.substr(0, length);
}

/// Matches one filter. A star takes as little as it can; what follows it fails at last only if it
/// fails for every length, so one place to go back to is enough.
bool Matches(std::string_view name, std::string_view filter) {
  std::string_view after_star;
  std::string_view star_name;
  bool star = false;
  while (!name.empty()) {
    const std::string_view character = FirstCharacter(name);
    if (filter.starts_with('*')) {
      filter.remove_prefix(1);
      star = true;
      after_star = filter;
      star_name = name;
    } else if (filter.starts_with('?') || filter.starts_with(character)) {
      filter.remove_prefix(filter.front() == '?' ? 1 : character.size());
      name.remove_prefix(character.size());
    } else if (star) {
      star_name.remove_prefix(FirstCharacter(star_name).size());
      name = star_name;
      filter = after_star;
    } else {
      return false;
    }
  }
  return std::ranges::all_of(filter, [](char left) { return left == '*'; });
}

std::vector<std::string> Filters(const std::string& pattern) {
  std::vector<std::string> filters;
  for (std::size_t begin = 0; begin <= pattern.size();) {
    const std::size_t end = std::min(pattern.find(';', begin), pattern.size());
    std::string filter = files::LowerCase(pattern.substr(begin, end - begin));
    filter.erase(0, std::min(filter.find_first_not_of(' '), filter.size()));
    filter.erase(filter.find_last_not_of(' ') + 1);
    filters.push_back(filter == "*.*" ? "*" : filter);
    begin = end + 1;
  }
  return filters;
}

}  // namespace

/// A row is selected exactly if it is the current one, and an event is raised only after the list
/// has finished with the key or the click, since its handler may fill the list anew.
class FileList::View : public QListView {
 public:
  explicit View(FileList& owner) : owner_(owner) {
    setModel(&rows_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
  }

  void Show(const QStringList& names) { rows_.setStringList(names); }
  [[nodiscard]] int Row() const { return currentIndex().row(); }
  void Select(int row) {
    if (row < 0) {
      selectionModel()->clear();
    } else {
      setCurrentIndex(rows_.index(row));
    }
  }

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* /*event*/) const override {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
  }

  void focusInEvent(QFocusEvent* event) override {
    const bool selected = currentIndex().isValid();
    QListView::focusInEvent(event);
    // A list that gets the focus makes its first row the current one, without selecting it.
    if (!selected) selectionModel()->clear();
  }

  void keyPressEvent(QKeyEvent* event) override {
    bool taken = false;
    for (const char32_t character : CharactersOf(*event).toUcs4()) {
      int code = EncodeTyped(character, owner_.FaceInUse().code());
      owner_.KeyPress.Raise(code);
      // The Enter key has no use for the list, and would go on to the form.
      taken = taken || code == 0 || code == '\r';
    }
    if (taken) return;
    const int before = Row();
    QListView::keyPressEvent(event);
    if (Row() != before) owner_.Click.Raise();
  }

  void mousePressEvent(QMouseEvent* event) override {
    const int before = Row();
    const bool left = event->button() == Qt::LeftButton;
    QListView::mousePressEvent(event);
    pressed_row_ = left ? indexAt(event->position().toPoint()).row() : -1;
    if (pressed_row_ >= 0 || Row() != before) owner_.Click.Raise();
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    const int before = Row();
    QListView::mouseMoveEvent(event);
    if (Row() != before) owner_.Click.Raise();
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    const int row = indexAt(event->position().toPoint()).row();
    const bool second_click = event->button() == Qt::LeftButton && row == pressed_row_;
    // A second press on another row is passed on as a first one.
    QListView::mouseDoubleClickEvent(event);
    if (row >= 0 && second_click) owner_.DblClick.Raise();
  }

 private:
  FileList& owner_;
  QStringListModel rows_;
  int pressed_row_ = -1;
};

FileList::FileList(Container& parent, const ControlSheet& sheet)
    : Control(parent, sheet, std::make_unique<View>(*this)) {
  StopTabHere();
  files::pass_over([&] { Path("c:\\"); });
}

FileList::View& FileList::view() const { return static_cast<View&>(*widget()); }

void FileList::Path(const std::string& path) {
  all_names_ = files::ReadFolder(files::HostPath(path)).files;
  Fill();
}

void FileList::Pattern(const std::string& pattern) {
  pattern_ = pattern;
  Fill();
}

void FileList::Fill() {
  const std::vector<std::string> filters = Filters(pattern_);
  names_.clear();
  std::ranges::copy_if(all_names_, std::back_inserter(names_), [&](const std::string& name) {
    const std::string lower = files::LowerCase(name);
    return std::ranges::any_of(filters, [&](const auto& filter) { return Matches(lower, filter); });
  });
  QStringList rows;
  rows.reserve(ListCount());
  for (const std::string& name : names_) rows.append(QString::fromUtf8(name));
  view().Show(rows);
}

int FileList::ListIndex() const { return view().Row(); }

void FileList::ListIndex(int row) {
  if (row < -1 || row >= ListCount())
    throw files::RuntimeError(files::error::invalid_property_value);
  view().Select(row);
  Click.Raise();
}

std::string FileList::List(int row) const {
  return row >= 0 && row < ListCount() ? names_[static_cast<std::size_t>(row)] : std::string();
}

}  // namespace toolkit
