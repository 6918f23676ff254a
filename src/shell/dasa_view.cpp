#include "shell/dasa_view.h"

#include <QSplitter>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "shell/messages.h"

namespace kelvaro::shell {

namespace {

constexpr const char* kDasaMark = " Dasa, ";
constexpr const char* kBhuktiMark = " Bhukthi";

}  // namespace

DasaView::DasaView(QWidget* parent)
    : ViewPage(parent),
      balance_(new QLabel(this)),
      dasas_(new GridView(this)),
      bhuktis_(new GridView(this)),
      antras_(new GridView(this)),
      dasaChoice_(new QComboBox(this)),
      bhuktiChoice_(new QComboBox(this)) {
  balance_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeHeading(tr("Dasa"), this));
  layout->addWidget(balance_);
  // Three panes side by side, each as wide as its columns at first; the
  // splitter lets the user give one more room.
  auto* panes = panes_ = new QSplitter(Qt::Horizontal, this);
  auto pane = [&](const QString& caption, QLayout* top, GridView* grid) {
    auto* box = new QWidget(panes);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    if (top) {
      column->addLayout(top);
    } else {
      column->addWidget(new QLabel(caption, box));
    }
    grid->setParent(box);
    column->addWidget(grid, 1);
    panes->addWidget(box);
  };
  auto* choice = new QHBoxLayout;
  auto* dasaLabel = new QLabel(tr("Antra of &Dasa"), this);
  dasaLabel->setBuddy(dasaChoice_);
  auto* bhuktiLabel = new QLabel(tr("&Bhukti"), this);
  bhuktiLabel->setBuddy(bhuktiChoice_);
  choice->addWidget(dasaLabel);
  choice->addWidget(dasaChoice_);
  choice->addWidget(bhuktiLabel);
  choice->addWidget(bhuktiChoice_);
  choice->addStretch(1);
  pane(tr("Dasa"), nullptr, dasas_);
  pane(tr("Bhukti"), nullptr, bhuktis_);
  pane({}, choice, antras_);
  panes->setChildrenCollapsible(false);
  layout->addWidget(panes, 1);
  connect(dasaChoice_, &QComboBox::currentIndexChanged, this, [this] { FillBhuktiChoice(); });
  connect(bhuktiChoice_, &QComboBox::currentIndexChanged, this, [this] { ShowSection(); });
}

void DasaView::Refresh(const ViewSource& source) {
  const DasaTables& dasa = source.ctx.dasa;
  balance_->setText(Qs(dasa.Lab_DasaBalanceV));
  dasas_->SetGrid(dasa.mshDasa);
  bhuktis_->SetGrid(dasa.mshBukti);
  antraGrid_ = dasa.mshAntra;
  // The sections are the bold rows, "Sun Dasa, Moon Bhukthi".
  sections_.clear();
  for (int row = antraGrid_.FixedRows; row < antraGrid_.Rows(); ++row) {
    if (!antraGrid_.Bold(row, 0)) continue;
    const QString text = Qs(antraGrid_.Text(row, 0));
    const qsizetype mark = text.indexOf(kDasaMark);
    if (mark < 0) continue;
    QString bhukti = text.mid(mark + static_cast<qsizetype>(qstrlen(kDasaMark)));
    if (bhukti.endsWith(kBhuktiMark)) bhukti.chop(static_cast<qsizetype>(qstrlen(kBhuktiMark)));
    sections_.push_back({row, text.left(mark), bhukti});
  }
  const QString dasaBefore = dasaChoice_->currentText();
  const QSignalBlocker block(dasaChoice_);
  dasaChoice_->clear();
  for (const Section& s : sections_) {
    if (dasaChoice_->findText(s.dasa) < 0) dasaChoice_->addItem(s.dasa);
  }
  const int keep = dasaChoice_->findText(dasaBefore);
  dasaChoice_->setCurrentIndex(keep >= 0 ? keep : 0);
  FillBhuktiChoice();
  // The first filled tables give the panes their widths; later the user's stand.
  if (!panesSized_) {
    panes_->setSizes({dasas_->sizeHint().width(), bhuktis_->sizeHint().width(), antras_->sizeHint().width()});
    panesSized_ = true;
  }
}

void DasaView::FillBhuktiChoice() {
  const QString before = bhuktiChoice_->currentText();
  {
    const QSignalBlocker block(bhuktiChoice_);
    bhuktiChoice_->clear();
    for (size_t i = 0; i < sections_.size(); ++i) {
      if (sections_[i].dasa == dasaChoice_->currentText()) {
        bhuktiChoice_->addItem(sections_[i].bhukti, static_cast<int>(i));
      }
    }
    const int keep = bhuktiChoice_->findText(before);
    bhuktiChoice_->setCurrentIndex(keep >= 0 ? keep : 0);
  }
  ShowSection();
}

void DasaView::ShowSection() {
  const QVariant data = bhuktiChoice_->currentData();
  if (!data.isValid()) {
    antras_->SetGrid(antraGrid_, antraGrid_.Rows(), antraGrid_.Rows() - 1);
    return;
  }
  const auto i = static_cast<size_t>(data.toInt());
  const int first = sections_[i].row;
  const int last = i + 1 < sections_.size() ? sections_[i + 1].row - 1 : antraGrid_.Rows() - 1;
  antras_->SetGrid(antraGrid_, first, last);
}

}  // namespace kelvaro::shell
