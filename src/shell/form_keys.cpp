#include "shell/form_keys.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "common/type_ahead.h"

namespace kelvaro::shell {

namespace {

bool IsTypedCharacter(const QKeyEvent* key) {
  const QString text = key->text();
  return text.size() == 1 && text.at(0).isPrint() && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

class TypeAhead final : public QObject {
 public:
  explicit TypeAhead(QComboBox* combo) : QObject(combo), combo_(combo) {}

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    QLineEdit* edit = combo_->lineEdit();
    if (!edit || !IsTypedCharacter(key)) return false;
    const int caret = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
    const QString typed = edit->text().left(caret) + key->text();
    std::vector<std::string> items;
    items.reserve(static_cast<size_t>(combo_->count()));
    for (int i = 0; i < combo_->count(); ++i) items.push_back(combo_->itemText(i).toStdString());
    const auto found = FindItemStartingWith(items, typed.toStdString());
    if (!found) return false;
    const int index = static_cast<int>(*found);
    {
      // Becoming current is not a choice: only activated() fires the handlers.
      const QSignalBlocker block(combo_);
      combo_->setCurrentIndex(index);
    }
    const QString item = combo_->itemText(index);
    edit->setText(item);
    // Selected from the end back to the typed length, so the caret stands
    // after what was typed and the next key extends it.
    const auto typedLength = static_cast<int>(typed.size());
    edit->setSelection(static_cast<int>(item.size()), typedLength - static_cast<int>(item.size()));
    return true;
  }

 private:
  QComboBox* combo_;
};

class DigitsOnly final : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    return IsTypedCharacter(key) && !key->text().at(0).isDigit();
  }
};

class EnterMovesOn final : public QObject {
 public:
  EnterMovesOn(QWidget* field, QWidget* next) : QObject(field), field_(field), next_(next) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
    if (auto* combo = qobject_cast<QComboBox*>(field_); combo && combo->isEditable()) {
      const int item = ItemMatchingText(combo);
      if (item >= 0) {
        combo->setCurrentIndex(item);
        emit combo->activated(item);
      }
    }
    next_->setFocus(Qt::TabFocusReason);
    return true;
  }

 private:
  QWidget* field_;
  QWidget* next_;
};

}  // namespace

int ItemMatchingText(const QComboBox* combo) {
  const QString text = combo->currentText().trimmed();
  if (text.isEmpty()) return -1;
  return combo->findText(text, Qt::MatchFixedString);
}

void InstallTypeAhead(QComboBox* combo) {
  combo->setCompleter(nullptr);
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->installEventFilter(new TypeAhead(combo));
}

void AcceptDigitsOnly(QWidget* field) { field->installEventFilter(new DigitsOnly(field)); }

void InstallEnterOrder(const std::vector<QWidget*>& order) {
  for (size_t i = 0; i + 1 < order.size(); ++i) order[i]->installEventFilter(new EnterMovesOn(order[i], order[i + 1]));
}

}  // namespace kelvaro::shell
