#include "shell/about_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtGlobal>

namespace kelvaro::shell {

QString AboutDialog::Text(const QString& databasePath) {
  return tr("<h3>Kelvaro Basic</h3>"
            "<p>Version %1<br>A Vedic astrology program that computes the planets itself, from mean elements, "
            "without ephemeris files.</p>"
            "<p><b>Database:</b> %2</p>"
            "<p><b>Built with</b></p><table cellspacing=\"4\">"
            "<tr><td>Qt %3</td><td>GNU LGPL version 3</td></tr>"
            "<tr><td>SQLite</td><td>public domain</td></tr>"
            "<tr><td>SQLiteCpp</td><td>MIT licence</td></tr>"
            "<tr><td>CLI11</td><td>BSD 3-clause licence</td></tr>"
            "<tr><td>nlohmann-json</td><td>MIT licence</td></tr>"
            "<tr><td>fmt</td><td>MIT licence</td></tr>"
            "<tr><td>DejaVu fonts</td><td>Bitstream Vera licence</td></tr>"
            "<tr><td>Liberation fonts</td><td>SIL Open Font Licence 1.1</td></tr>"
            "</table>")
      .arg(kProgramVersion, databasePath.toHtmlEscaped(), qVersion());
}

AboutDialog::AboutDialog(const QString& databasePath, QWidget* parent) : QDialog(parent) {
  setObjectName("frm_AboutUs");
  setWindowTitle(tr("About us"));
  setModal(true);
  setAttribute(Qt::WA_DeleteOnClose);
  auto* text = new QLabel(Text(databasePath), this);
  text->setObjectName("AboutText");
  text->setTextFormat(Qt::RichText);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setWordWrap(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text);
  layout->addWidget(buttons);
  setMinimumWidth(460);
}

}  // namespace kelvaro::shell
