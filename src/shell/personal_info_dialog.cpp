#include "shell/personal_info_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/form_keys.h"
#include "shell/messages.h"
#include "shell/remembered_size.h"

namespace kelvaro::shell {

namespace {

struct Box {
  const char* name;
  const char* label;
  std::string store::PersonalDetails::*member;
};

constexpr std::array<Box, 8> kBoxes{{
    {"txtName", "Name", &store::PersonalDetails::name},
    {"txtAdd", "Address", &store::PersonalDetails::address},
    {"txtAdd2", "", &store::PersonalDetails::address2},
    {"txtCity", "City", &store::PersonalDetails::city},
    {"txtCountry", "Country", &store::PersonalDetails::country},
    {"txtZip", "Pincode / Zipcode", &store::PersonalDetails::zipcode},
    {"txtPhone", "Phone", &store::PersonalDetails::phone},
    {"txtEmail", "E Mail", &store::PersonalDetails::email},
}};

}  // namespace

PersonalInfoDialog::PersonalInfoDialog(Services services, QWidget* parent)
    : QDialog(parent), services_(std::move(services)) {
  setWindowTitle(kPersonalInfoCaption);
  setObjectName("frm_Details");
  setModal(true);
  setAttribute(Qt::WA_DeleteOnClose);

  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  std::vector<QWidget*> order;
  for (std::size_t i = 0; i < kBoxes.size(); ++i) {
    boxes_[i] = new QLineEdit(this);
    boxes_[i]->setObjectName(kBoxes[i].name);
    boxes_[i]->setMinimumWidth(320);
    form->addRow(kBoxes[i].label, boxes_[i]);
    order.push_back(boxes_[i]);
  }
  auto* edit = new QPushButton(tr("&Edit"), this);
  edit->setObjectName("cmdEdit");
  auto* fresh = new QPushButton(tr("&New"), this);
  fresh->setObjectName("cmdNew");
  auto* save = new QPushButton(tr("&Save"), this);
  save->setObjectName("cmdSave");
  auto* close = new QPushButton(tr("&Close"), this);
  close->setObjectName("CMDCANCEl");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (QPushButton* b : {edit, fresh, save, close}) {
    b->setAutoDefault(false);
    buttons->addWidget(b);
  }
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addStretch(1);
  layout->addLayout(buttons);
  order.push_back(save);
  InstallEnterOrder(order);

  connect(edit, &QPushButton::clicked, this, &PersonalInfoDialog::Edit);
  connect(fresh, &QPushButton::clicked, this, &PersonalInfoDialog::New);
  connect(save, &QPushButton::clicked, this, &PersonalInfoDialog::Save);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);

  if (const auto stored = store::ReadPersonalDetails(*services_.db)) {
    Show(*stored);
  } else {
    boxes_[0]->setText(Qs(std::string(store::kDefaultOwnerName)));
  }
  RememberSize(this, services_.settings, "PersonalInfo/geometry");
  boxes_[0]->setFocus();
}

void PersonalInfoDialog::Show(const store::PersonalDetails& details) {
  for (std::size_t i = 0; i < kBoxes.size(); ++i) boxes_[i]->setText(Qs(details.*kBoxes[i].member));
}

store::PersonalDetails PersonalInfoDialog::Details() const {
  store::PersonalDetails details;
  for (std::size_t i = 0; i < kBoxes.size(); ++i) details.*kBoxes[i].member = Std(boxes_[i]->text());
  return details;
}

void PersonalInfoDialog::Edit() { boxes_[0]->setFocus(Qt::OtherFocusReason); }

void PersonalInfoDialog::New() {
  Show({});
  try {
    store::ClearPersonalDetails(*services_.db);
    if (services_.changed) services_.changed(store::LetterheadOf(*services_.db));
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
  boxes_[0]->setFocus(Qt::OtherFocusReason);
}

void PersonalInfoDialog::Save() {
  try {
    const store::PersonalDetails details = Details();
    const store::WriteResult result = store::SavePersonalDetails(*services_.db, details);
    if (services_.changed) services_.changed(details);
    ShowInformation(this, kPersonalInfoCaption, Qs(result.message));
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
}

}  // namespace kelvaro::shell
