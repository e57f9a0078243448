// SPDX-License-Identifier: MIT
#include "shell/toolkit/input/accessible_picture_p.h"

#include <utility>

#include "files/run_time_error.h"
#include "shell/toolkit/drawing/scale.h"
#include "shell/toolkit/drawing/surface_p.h"

namespace toolkit {

namespace {

void Tell(QAccessibleInterface* of, QAccessible::Event what) {
  QAccessibleEvent event(of, what);
  QAccessible::updateAccessibility(&event);
}

/// What the logic answers; nothing if it fails, since no failure may reach the host.
template <typename Answer, typename... Where>
Answer Asked(const std::function<Answer(Where...)>& question, Where... where) {
  Answer answer{};
  if (question) files::pass_over([&] { answer = question(where...); });
  return answer;
}

}  // namespace

AccessiblePicture::AccessiblePicture(PictureBox& picture)
    : QAccessibleWidget(picture.InnerWidget(), QAccessible::Graphic), picture_(picture) {}

AccessiblePicture::~AccessiblePicture() {
  for (const auto& [place, id] : parts_) QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* AccessiblePicture::Of(const QString& /*class_name*/, QObject* object) {
  const auto* surface = dynamic_cast<Surface*>(object);
  return surface != nullptr && surface->accessible ? surface->accessible() : nullptr;
}

QAccessible::Role AccessiblePicture::role() const {
  switch (spoken().kind) {
    case SpokenPicture::Kind::table:
      return QAccessible::Table;
    case SpokenPicture::Kind::list:
      return QAccessible::List;
    default:
      return QAccessibleWidget::role();
  }
}

QAccessible::State AccessiblePicture::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = true;
  return state;
}

int AccessiblePicture::rowCount() const { return Asked(spoken().rows); }

int AccessiblePicture::columnCount() const { return Asked(spoken().columns); }

bool AccessiblePicture::HasPart(int row, int column) const {
  return row >= 0 && column >= 0 && row < rowCount() && column < columnCount();
}

int AccessiblePicture::childCount() const {
  return role() == QAccessible::Graphic ? QAccessibleWidget::childCount()
                                        : rowCount() * columnCount();
}

QAccessibleInterface* AccessiblePicture::child(int index) const {
  if (role() == QAccessible::Graphic) return QAccessibleWidget::child(index);
  const int columns = columnCount();
  return columns == 0 ? nullptr : cellAt(index / columns, index % columns);
}

QAccessibleInterface* AccessiblePicture::cellAt(int row, int column) const {
  if (!HasPart(row, column)) return nullptr;
  const auto [place, is_new] = parts_.try_emplace({row, column}, QAccessible::Id{});
  if (is_new)
    place->second =
        QAccessible::registerAccessibleInterface(new AccessiblePart(*this, row, column));
  return QAccessible::accessibleInterface(place->second);
}

QAccessibleInterface* AccessiblePicture::childAt(int x, int y) const {
  if (role() == QAccessible::Graphic) return QAccessibleWidget::childAt(x, y);
  for (int index = 0; index < childCount(); ++index)
    if (child(index)->rect().contains(x, y)) return child(index);
  return nullptr;
}

int AccessiblePicture::indexOfChild(const QAccessibleInterface* child) const {
  const auto* part = dynamic_cast<const AccessiblePart*>(child);
  if (part == nullptr) return QAccessibleWidget::indexOfChild(child);
  return part->rowIndex() * columnCount() + part->columnIndex();
}

QList<QAccessibleInterface*> AccessiblePicture::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  for (int row = 0; row < rowCount(); ++row)
    for (int column = 0; column < columnCount(); ++column)
      if (Asked(spoken().selected, row, column)) cells.append(cellAt(row, column));
  return cells;
}

void* AccessiblePicture::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface && IsTable())
    return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QStringList AccessiblePicture::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (spoken().press_whole) names.append(pressAction());
  return names;
}

void AccessiblePicture::doAction(const QString& action) {
  if (action == pressAction())
    picture_.PressSpoken(spoken().press_whole);
  else
    QAccessibleWidget::doAction(action);
}

void AccessiblePicture::TellChanges() {
  TellShape();
  for (const auto& [place, id] : parts_)
    if (auto* const part = dynamic_cast<AccessiblePart*>(QAccessible::accessibleInterface(id)))
      part->TellChanges();
}

void AccessiblePicture::TellShape() {
  const std::pair shape(rowCount(), columnCount());
  if (shape == told_shape_) return;
  told_shape_ = shape;
  std::erase_if(parts_, [this](const auto& part) {
    const auto& [place, id] = part;
    if (HasPart(place.first, place.second)) return false;
    QAccessible::deleteAccessibleInterface(id);
    return true;
  });
  if (IsTable()) {
    QAccessibleTableModelChangeEvent event(this, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&event);
  } else {
    Tell(this, QAccessible::ObjectReorder);
  }
}

AccessiblePart::AccessiblePart(const AccessiblePicture& whole, int row, int column)
    : whole_(whole),
      row_(row),
      column_(column),
      told_name_(AccessiblePart::text(QAccessible::Name)),
      told_selected_(AccessiblePart::isSelected()) {}

bool AccessiblePart::isValid() const {
  return whole_.isValid() && row_ < whole_.rowCount() && column_ < whole_.columnCount();
}

QString AccessiblePart::text(QAccessible::Text kind) const {
  const auto& spoken = whole_.spoken();
  if (kind == QAccessible::Name) return QString::fromStdString(Asked(spoken.name, row_, column_));
  if (kind == QAccessible::Description)
    return QString::fromStdString(Asked(spoken.description, row_, column_));
  return {};
}

bool AccessiblePart::isSelected() const { return Asked(whole_.spoken().selected, row_, column_); }

QRect AccessiblePart::rect() const {
  const Place place = Asked(whole_.spoken().place, row_, column_);
  const QPoint at = whole_.picture().InnerWidget()->mapToGlobal(QPoint(0, 0));
  return {at + QPoint(Zoomed(place.left), Zoomed(place.top)),
          QSize(Zoomed(place.width), Zoomed(place.height))};
}

QAccessible::Role AccessiblePart::role() const {
  return whole_.IsTable() ? QAccessible::Cell : QAccessible::ListItem;
}

QAccessible::State AccessiblePart::state() const {
  const QAccessible::State whole = whole_.state();
  QAccessible::State state;
  state.readOnly = true;
  state.selectable = true;
  state.selected = isSelected();
  state.disabled = whole.disabled;
  state.invisible = whole.invisible;
  state.offscreen = rect().isEmpty();
  return state;
}

void* AccessiblePart::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  if (type == QAccessible::TableCellInterface && whole_.IsTable())
    return static_cast<QAccessibleTableCellInterface*>(this);
  return nullptr;
}

void AccessiblePart::doAction(const QString& action) {
  const auto press = whole_.spoken().press;
  if (action == pressAction())
    whole_.picture().PressSpoken([press, row = row_, column = column_] { press(row, column); });
}

void AccessiblePart::TellChanges() {
  const QString name = text(QAccessible::Name);
  const bool selected = isSelected();
  if (std::exchange(told_name_, name) != name) Tell(this, QAccessible::NameChanged);
  if (std::exchange(told_selected_, selected) != selected)
    Tell(this, selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
}

}  // namespace toolkit
