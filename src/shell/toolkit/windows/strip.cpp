// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/strip.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <utility>

#include "shell/toolkit/controls/replace.h"
#include "shell/toolkit/drawing/text_code_p.h"
#include "shell/toolkit/windows/form.h"

namespace toolkit {

namespace {

QString Shown(const std::string& text) { return Decode(text, TextCode::host); }

QStringList KeysOf(const MenuRow& row) {
  return QString::fromStdString(row.keys).split(u';', Qt::SkipEmptyParts);
}

/// A text with its first keys at the right.
QString ShownWithKeys(const MenuRow& row) {
  if (row.keys.empty()) return Shown(row.text);
  const QKeySequence first(KeysOf(row).front(), QKeySequence::PortableText);
  return Shown(row.text) + u'\t' + first.toString(QKeySequence::NativeText);
}

/// A sunken field with one line of text, which ends in "…" where there is no room for more.
class LineOfText : public QLabel {
 public:
  explicit LineOfText(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setIndent(indent_);
  }

  void Show(const QString& text) {
    whole_ = text;
    setAccessibleName(text);
    Elide();
  }

  [[nodiscard]] int WholeWidth() const {
    return fontMetrics().horizontalAdvance(whole_) + 2 * (indent_ + frameWidth());
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    Elide();
  }

 private:
  void Elide() {
    const int room = width() - 2 * (indent_ + frameWidth());
    setText(fontMetrics().elidedText(whole_, Qt::ElideRight, room).replace(u'\n', u' '));
    // As rich text a tip breaks its lines.
    setToolTip(text() == whole_ ? QString()
                                : QStringLiteral("<p>%1</p>").arg(whole_.toHtmlEscaped()));
  }

  static constexpr int indent_ = 3;
  QString whole_;
};

}  // namespace

class StripWidget : public QWidget {
 public:
  explicit StripWidget(QWidget* window) : QWidget(window) {
    setObjectName(QStringLiteral("strip"));
    button.setObjectName(QStringLiteral("strip_menu"));
    text.setObjectName(QStringLiteral("strip_text"));
    status.setObjectName(QStringLiteral("strip_status"));
    button.setFocusPolicy(Qt::NoFocus);
    button.setToolTip(QStringLiteral("F10"));
    button.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    text.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    status.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    status.hide();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2, 2, 2, 2);
    row->setSpacing(2);
    row->addWidget(&button);
    row->addWidget(&text);
    row->addWidget(&status);
  }

  QPushButton button{this};
  QMenu menu{this};
  LineOfText text{this};
  LineOfText status{this};
};

Strip::Strip(Form& form) : form_(form), widget_(std::make_unique<StripWidget>(form.InnerWidget())) {
  const auto open = [this] { OpenMenu(); };
  form_.Shortcut("F10") = open;
  QObject::connect(&widget_->button, &QPushButton::clicked, [open] { RunHandler(open); });
  QObject::connect(&widget_->menu, &QMenu::aboutToHide, &widget_->button,
                   [this] { widget_->button.setDown(false); });
  widget_->show();
}

Strip::~Strip() = default;

void Strip::Menu(const std::string& caption, std::vector<MenuRow> rows) {
  for (const MenuRow& row : rows_)
    for (const QString& keys : KeysOf(row)) form_.Shortcut(keys.toStdString()) = nullptr;
  rows_ = std::move(rows);
  QMenu& menu = widget_->menu;
  for (QAction* before : menu.actions()) {
    menu.removeAction(before);
    before->deleteLater();  // It may be running this very moment.
  }
  for (const MenuRow& row : rows_) {
    const std::function<void()> run = [this, row] { Run(row); };
    QAction* action = menu.addAction(ShownWithKeys(row));
    action->setSeparator(row.text.empty());
    action->setCheckable(static_cast<bool>(row.checked));
    QObject::connect(action, &QAction::triggered, action, [run] { RunHandler(run); });
    for (const QString& keys : KeysOf(row)) form_.Shortcut(keys.toStdString()) = run;
  }
  widget_->button.setText(Shown(caption));
}

void Strip::OpenMenu() {
  QMenu& menu = widget_->menu;
  const QList<QAction*> actions = menu.actions();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    QAction* action = actions[static_cast<qsizetype>(i)];
    if (rows_[i].enabled) action->setEnabled(rows_[i].enabled());
    if (rows_[i].checked) action->setChecked(rows_[i].checked());
  }
  widget_->button.setDown(true);
  // A click that closes the menu, on the button say, does nothing else.
  menu.setAttribute(Qt::WA_NoMouseReplay);
  menu.popup(widget_->button.mapToGlobal(QPoint(0, -menu.sizeHint().height())));
}

void Strip::Run(const MenuRow& row) const {
  if (form_.Enabled() && (!row.enabled || row.enabled())) row.action();
}

void Strip::Text(const std::string& text) {
  if (Replace(text_, text)) widget_->text.Show(Shown(text));
}

void Strip::Status(const std::string& text) {
  if (!Replace(status_, text)) return;
  widget_->status.Show(Shown(text));
  widget_->status.setFixedWidth(widget_->status.WholeWidth());
  widget_->status.setVisible(!text.empty());
}

void Strip::Place() {
  const QWidget* window = form_.InnerWidget();
  widget_->setGeometry(0, window->height() - height, window->width(), height);
}

}  // namespace toolkit
