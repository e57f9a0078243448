// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QWidget>
#include <vector>

#include "shell/toolkit/windows/form.h"

namespace toolkit {

/// The window of a form, and in it the area on which its controls stand.
class FormWidget : public QWidget {
 public:
  FormWidget(Form& form, Border border);

  [[nodiscard]] Form& form() const { return form_; }

  /// What the host's accessibility sees of such a widget.
  static QAccessibleInterface* Accessible(const QString& class_name, QObject* object);

  QWidget area{this};

 protected:
  bool event(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  Form& form_;
};

/// Those that there are now.
std::vector<Form*>& AllForms();

}  // namespace toolkit
