// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <map>
#include <utility>

#include "shell/toolkit/input/picture_box.h"

namespace toolkit {

class AccessiblePart;

/// A picture, as the host's accessibility sees it.
class AccessiblePicture : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit AccessiblePicture(PictureBox& picture);
  ~AccessiblePicture() override;
  AccessiblePicture(const AccessiblePicture&) = delete;
  AccessiblePicture& operator=(const AccessiblePicture&) = delete;

  /// For the host, which asks it for what it shows.
  static QAccessibleInterface* Of(const QString& class_name, QObject* object);

  [[nodiscard]] PictureBox& picture() const { return picture_; }
  [[nodiscard]] const SpokenPicture& spoken() const { return picture_.Spoken(); }
  /// As the host knows it.
  [[nodiscard]] QAccessibleInterface* Itself() const {
    return QAccessible::queryAccessibleInterface(object());
  }
  [[nodiscard]] bool IsTable() const { return spoken().kind == SpokenPicture::Kind::table; }

  /// Tells of what has changed in the parts that somebody has asked for.
  void TellChanges();

  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  void* interface_cast(QAccessible::InterfaceType type) override;
  QStringList actionNames() const override;
  void doAction(const QString& action) override;

  int rowCount() const override;
  int columnCount() const override;
  QAccessibleInterface* cellAt(int row, int column) const override;
  int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
  QList<QAccessibleInterface*> selectedCells() const override;

  // No row and no column as a whole has a name, or can be selected.
  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QString columnDescription(int /*column*/) const override { return {}; }
  QString rowDescription(int /*row*/) const override { return {}; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int /*column*/) const override { return false; }
  bool isRowSelected(int /*row*/) const override { return false; }
  bool selectRow(int /*row*/) override { return false; }
  bool selectColumn(int /*column*/) override { return false; }
  bool unselectRow(int /*row*/) override { return false; }
  bool unselectColumn(int /*column*/) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

 private:
  [[nodiscard]] bool HasPart(int row, int column) const;
  void TellShape();

  PictureBox& picture_;
  /// The parts that somebody has asked for, which belong to the host, by row and column.
  mutable std::map<std::pair<int, int>, QAccessible::Id> parts_;
  std::pair<int, int> told_shape_;
};

/// A part of a picture: a cell of a table or a row of a list.
class AccessiblePart : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
 public:
  AccessiblePart(const AccessiblePicture& whole, int row, int column);

  /// Tells of what is not as it was told last.
  void TellChanges();

  [[nodiscard]] bool isValid() const override;
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QWindow* window() const override { return whole_.window(); }
  [[nodiscard]] QAccessibleInterface* parent() const override { return whole_.Itself(); }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
    return nullptr;
  }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
    return -1;
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  [[nodiscard]] QRect rect() const override;
  [[nodiscard]] QAccessible::Role role() const override;
  [[nodiscard]] QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  [[nodiscard]] bool isSelected() const override;
  [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  [[nodiscard]] int columnIndex() const override { return column_; }
  [[nodiscard]] int rowIndex() const override { return row_; }
  [[nodiscard]] int columnExtent() const override { return 1; }
  [[nodiscard]] int rowExtent() const override { return 1; }
  [[nodiscard]] QAccessibleInterface* table() const override { return whole_.Itself(); }

  [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override;
  [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override {
    return {};
  }

 private:
  const AccessiblePicture& whole_;
  int row_;
  int column_;
  QString told_name_;
  bool told_selected_;
};

}  // namespace toolkit
