#include "shell/preferences_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/form_keys.h"
#include "shell/messages.h"
#include "shell/remembered_size.h"

namespace kelvaro::shell {

namespace {

QComboBox* MakeChoiceCombo(QWidget* parent, const char* name, std::span<const store::Choice> choices) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  // Not editable: a closed list cannot hold a text that names no choice, and
  // typing the first letters still picks the first item that begins with them.
  for (const store::Choice& c : choices) combo->addItem(Qs(std::string(c.listText)));
  return combo;
}

void ChooseListText(QComboBox* combo, std::span<const store::Choice> choices, std::string_view stored) {
  if (const auto text = store::ListTextOf(choices, stored)) combo->setCurrentText(Qs(std::string(*text)));
}

std::string StoredOf(const QComboBox* combo, std::span<const store::Choice> choices) {
  const auto stored = store::StoredValueOf(choices, Std(combo->currentText()));
  return stored ? std::string(*stored) : std::string();
}

// Enter from the language goes to the custom ayanamsa's first field when it
// is shown, else to "&Save".
class EnterFromLast final : public QObject {
 public:
  EnterFromLast(QWidget* field, std::function<QWidget*()> next) : QObject(field), next_(std::move(next)) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    next_()->setFocus(Qt::TabFocusReason);
    return true;
  }

 private:
  std::function<QWidget*()> next_;
};

}  // namespace

PreferencesDialog::PreferencesDialog(Services services, QWidget* parent)
    : QDialog(parent), services_(std::move(services)) {
  setWindowTitle(kPreferencesCaption);
  setObjectName("frm_Preferences");
  setModal(true);
  setAttribute(Qt::WA_DeleteOnClose);
  BuildControls();
  ShowStored(store::ReadPreferences(*services_.db));
  setMinimumWidth(440);
  RememberSize(this, services_.settings, "Preferences/geometry");
  ayanamsa_->setFocus();
}

void PreferencesDialog::BuildControls() {
  ayanamsa_ = MakeChoiceCombo(this, "cbAyanamsa", store::kAyanamsaChoices);
  days_ = MakeChoiceCombo(this, "Cbdays", store::kDayInYearChoices);
  // Both house systems are listed, so that either can be chosen here.
  bhava_ = MakeChoiceCombo(this, "cbBhava", store::kBhavaChoices);
  chart_ = MakeChoiceCombo(this, "cbChart", store::kChartStyleChoices);
  language_ = MakeChoiceCombo(this, "cbLanguage", store::kLanguageChoices);

  custom_ = new QGroupBox(this);
  custom_->setObjectName("FRAMECUSTOM");
  zero_ = new QLineEdit(custom_);
  zero_->setObjectName("txtZero");
  progression_ = new QLineEdit(custom_);
  progression_->setObjectName("txtPogression");
  auto* customForm = new QFormLayout(custom_);
  customForm->addRow("Enter Zero Year :", zero_);
  customForm->addRow("Enter Progression :", progression_);

  save_ = new QPushButton(tr("&Save"), this);
  save_->setObjectName("cmdSave");
  apply_ = new QPushButton(tr("&Apply"), this);
  apply_->setObjectName("Command1");
  close_ = new QPushButton(tr("&Close"), this);
  close_->setObjectName("CMDCANCEl");
  // Enter moves between the fields; no button is pressed by it.
  for (QPushButton* b : {save_, apply_, close_}) b->setAutoDefault(false);

  auto hint = [this](const char* text) {
    auto* label = new QLabel(text, this);
    label->setWordWrap(true);
    QFont small = label->font();
    small.setItalic(true);
    label->setFont(small);
    return label;
  };
  auto* form = new QFormLayout;
  form->addRow(tr("&Ayanamsa"), ayanamsa_);
  form->addRow(custom_);
  form->addRow(tr("&Days in a Year"), days_);
  form->addRow(QString(), hint("(Days Selected will be used to calculate vimsottari dasa)"));
  form->addRow(tr("&Bhava"), bhava_);
  form->addRow(tr("&Chart Style"), chart_);
  form->addRow(tr("&Language"), language_);
  form->addRow(QString(), hint("(Planets and House Names Will be displayed in the Language Selected )"));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(save_);
  buttons->addWidget(apply_);
  buttons->addWidget(close_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addStretch(1);
  layout->addLayout(buttons);

  setTabOrder(ayanamsa_, zero_);
  setTabOrder(zero_, progression_);
  setTabOrder(progression_, days_);
  setTabOrder(days_, bhava_);
  setTabOrder(bhava_, chart_);
  setTabOrder(chart_, language_);
  setTabOrder(language_, save_);
  InstallEnterOrder({zero_, progression_, days_, bhava_, chart_, language_});
  // The custom fields are hidden for any other ayanamsa; Enter skips them.
  ayanamsa_->installEventFilter(
      new EnterFromLast(ayanamsa_, [this]() -> QWidget* { return custom_->isVisible() ? static_cast<QWidget*>(zero_) : days_; }));
  language_->installEventFilter(new EnterFromLast(language_, [this]() -> QWidget* { return save_; }));

  connect(ayanamsa_, &QComboBox::currentIndexChanged, this, [this] { ShowCustomFrame(); });
  connect(save_, &QPushButton::clicked, this, &PreferencesDialog::Save);
  connect(apply_, &QPushButton::clicked, this, &PreferencesDialog::Apply);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
}

void PreferencesDialog::ShowStored(const store::Preferences& p) {
  ChooseListText(ayanamsa_, store::kAyanamsaChoices, p.ayanamsa);
  ChooseListText(days_, store::kDayInYearChoices, Std(QString::number(p.dayInYear)));
  ChooseListText(bhava_, store::kBhavaChoices, p.bhava);
  ChooseListText(chart_, store::kChartStyleChoices, p.chartStyle);
  ChooseListText(language_, store::kLanguageChoices, p.language);
  zero_->setText(QString::number(p.customYear));
  progression_->setText(QString::number(p.customProgress));
  ShowCustomFrame();
}

void PreferencesDialog::ShowCustomFrame() {
  custom_->setVisible(StoredOf(ayanamsa_, store::kAyanamsaChoices) == "Custom");
  // The window grows to make room for the frame rather than squeezing it.
  layout()->activate();
  if (height() < sizeHint().height()) resize(width(), sizeHint().height());
}

store::PreferenceInput PreferencesDialog::Input() const {
  store::PreferenceInput in;
  in.ayanamsa = StoredOf(ayanamsa_, store::kAyanamsaChoices);
  in.bhava = StoredOf(bhava_, store::kBhavaChoices);
  in.dayInYear = days_->currentText().toDouble();
  in.chartStyle = StoredOf(chart_, store::kChartStyleChoices);
  in.language = StoredOf(language_, store::kLanguageChoices);
  in.zeroYear = Std(zero_->text());
  in.progression = Std(progression_->text());
  return in;
}

void PreferencesDialog::ShowFailure(const store::FieldMessage& failure) {
  ShowInformation(this, kPreferencesCaption, Qs(failure.message));
  if (auto* w = findChild<QWidget*>(Qs(failure.field))) w->setFocus(Qt::OtherFocusReason);
}

void PreferencesDialog::Save() {
  const store::PreferenceInput in = Input();
  try {
    const store::WriteResult result = store::SavePreferences(*services_.db, in);
    if (result.failure) {
      ShowFailure(*result.failure);
      return;
    }
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
    return;
  }
  accept();
  if (services_.apply) services_.apply(store::PreferencesFromInput(in).values, true);
}

void PreferencesDialog::Apply() {
  const store::PreferenceOutcome outcome = store::PreferencesFromInput(Input());
  if (outcome.failure) {
    ShowFailure(*outcome.failure);
    return;
  }
  accept();
  if (services_.apply) services_.apply(outcome.values, false);
}

}  // namespace kelvaro::shell
