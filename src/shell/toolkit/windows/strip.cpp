// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/strip.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <map>

#include "shell/toolkit/controls/replace.h"
#include "shell/toolkit/drawing/scale.h"
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

  /// It is always as wide as its text.
  bool whole = false;

  void Show(const QString& text) {
    whole_ = text;
    setAccessibleName(text);
    Fit();
  }

 protected:
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) Fit();
  }

  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    Fit();
  }

 private:
  void Fit() {
    const int around = 2 * (indent_ + frameWidth());
    if (whole) setFixedWidth(fontMetrics().horizontalAdvance(whole_) + around);
    const int room = width() - around;
    setText(fontMetrics().elidedText(whole_, Qt::ElideRight, room).replace(u'\n', u' '));
    // As rich text a tip breaks its lines.
    setToolTip(text() == whole_ ? QString()
                                : QStringLiteral("<p>%1</p>").arg(whole_.toHtmlEscaped()));
  }

  static constexpr int indent_ = 3;
  QString whole_;
};

/// A button that opens a menu above itself.
class MenuButton : public QPushButton {
 public:
  MenuButton(Form& form, QWidget* parent) : QPushButton(parent), form_(form) {
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    connect(this, &QPushButton::clicked, [this] { RunHandler([this] { Open(); }); });
    connect(&menu_, &QMenu::aboutToHide, this, [this] { setDown(false); });
  }

  void Show(const std::string& caption, const std::vector<MenuRow>& rows) {
    for (const auto& [action, row] : shown_)
      for (const QString& keys : KeysOf(row)) form_.Shortcut(keys.toStdString()) = nullptr;
    shown_.clear();
    menus_ = {{"", &menu_}};
    for (QAction* before : menu_.actions()) {
      menu_.removeAction(before);
      // It may be running this very moment.
      before->menu() != nullptr ? before->menu()->deleteLater() : before->deleteLater();
    }
    for (const MenuRow& row : rows) Add(row);
    setText(Shown(caption));
  }

  [[nodiscard]] QSize sizeHint() const override {
    constexpr int narrowest = 75;
    return QPushButton::sizeHint().expandedTo(QSize(Zoomed(narrowest), 0));
  }

  void Open() {
    for (const auto& [action, row] : shown_) {
      if (row.enabled) action->setEnabled(row.enabled());
      if (row.checked) action->setChecked(row.checked());
    }
    setDown(true);
    // A click that closes the menu, on the button say, does nothing else.
    menu_.setAttribute(Qt::WA_NoMouseReplay);
    menu_.popup(mapToGlobal(QPoint(0, -menu_.sizeHint().height())));
  }

 private:
  struct ShownRow {
    QAction* action;
    MenuRow row;
  };

  void Add(const MenuRow& row) {
    QMenu*& menu = menus_[row.submenu];
    if (menu == nullptr) menu = menu_.addMenu(Shown(row.submenu));
    const std::function<bool()> run = [this, row] {
      const bool can_run = form_.Enabled() && (!row.enabled || row.enabled());
      if (can_run) row.action();
      return can_run;
    };
    QAction* action = menu->addAction(ShownWithKeys(row));
    action->setSeparator(row.text.empty());
    action->setCheckable(static_cast<bool>(row.checked));
    connect(action, &QAction::triggered, action, [run] { RunHandler(run); });
    for (const QString& keys : KeysOf(row)) {
      const bool alone = QKeySequence(keys)[0].keyboardModifiers() == Qt::NoModifier;
      form_.Shortcut(keys.toStdString()) = [run, alone](bool& taken) { taken = run() || !alone; };
    }
    shown_.push_back({action, row});
  }

  Form& form_;
  QMenu menu_{this};
  std::vector<ShownRow> shown_;
  std::map<std::string, QMenu*> menus_;  ///< By the name of the submenu.
};

}  // namespace

class StripWidget : public QWidget {
 public:
  /// The strip is told as a status bar.
  static QAccessibleInterface* Accessible(const QString& /*class_name*/, QObject* object) {
    auto* strip = dynamic_cast<StripWidget*>(object);
    return strip == nullptr ? nullptr : new QAccessibleWidget(strip, QAccessible::StatusBar);
  }

  explicit StripWidget(Form& form)
      : QWidget(form.InnerWidget()->window()), commands(form, this), zoom(form, this) {
    QAccessible::installFactory(Accessible);
    setObjectName(QStringLiteral("strip"));
    commands.setObjectName(QStringLiteral("strip_menu"));
    text.setObjectName(QStringLiteral("strip_text"));
    status.setObjectName(QStringLiteral("strip_status"));
    zoom.setObjectName(QStringLiteral("strip_zoom"));
    commands.setToolTip(QStringLiteral("F10"));
    text.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    status.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    status.whole = true;
    status.hide();
    zoom.hide();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2, 2, 2, 2);
    row->setSpacing(2);
    row->addWidget(&commands);
    row->addWidget(&text);
    row->addWidget(&status);
    row->addWidget(&zoom);
  }

  MenuButton commands;
  LineOfText text{this};
  LineOfText status{this};
  MenuButton zoom;
};

Strip::Strip(Form& form) : widget_(std::make_unique<StripWidget>(form)) {
  form.Shortcut("F10") = [this](bool&) { widget_->commands.Open(); };
  widget_->show();
}

Strip::~Strip() = default;

void Strip::Menu(const std::string& caption, const std::vector<MenuRow>& rows) {
  widget_->commands.Show(caption, rows);
}

void Strip::ZoomMenu(const std::string& caption, const std::vector<MenuRow>& rows) {
  widget_->zoom.Show(caption, rows);
  widget_->zoom.show();
}

void Strip::Text(const std::string& text) {
  if (!Replace(text_, text)) return;
  widget_->text.Show(Shown(text));
  // The host cannot say that something is to be read out, but that the bar has another name.
  widget_->setAccessibleName(Shown(text));
}

void Strip::Status(const std::string& text) {
  if (!Replace(status_, text)) return;
  widget_->status.Show(Shown(text));
  widget_->status.setVisible(!text.empty());
}

void Strip::Place(int pixels) {
  const QWidget* window = widget_->window();
  widget_->setGeometry(0, window->height() - pixels, window->width(), pixels);
}

}  // namespace toolkit
