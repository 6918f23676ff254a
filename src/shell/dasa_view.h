#pragma once
// Dasa: the balance at birth, the dasas, the bhuktis, and the antras of the
// dasa and bhukti chosen in two lists.
#include <QComboBox>
#include <QLabel>
#include <QSplitter>

#include "shell/grid_view.h"
#include "shell/view_page.h"

namespace kelvaro::shell {

class DasaView : public ViewPage {
  Q_OBJECT

 public:
  explicit DasaView(QWidget* parent = nullptr);
  void Refresh(const ViewSource& source) override;

  QLabel& Balance() { return *balance_; }
  GridView& Dasas() { return *dasas_; }
  GridView& Bhuktis() { return *bhuktis_; }
  GridView& Antras() { return *antras_; }
  QComboBox& DasaChoice() { return *dasaChoice_; }
  QComboBox& BhuktiChoice() { return *bhuktiChoice_; }

 private:
  // One section of mshAntra: its bold row and the two lords it names.
  struct Section {
    int row;
    QString dasa, bhukti;
  };
  void FillBhuktiChoice();
  void ShowSection();

  QLabel* balance_;
  GridView* dasas_;
  GridView* bhuktis_;
  GridView* antras_;
  QComboBox* dasaChoice_;
  QComboBox* bhuktiChoice_;
  QSplitter* panes_ = nullptr;
  bool panesSized_ = false;
  Grid antraGrid_;
  std::vector<Section> sections_;
};

}  // namespace kelvaro::shell
