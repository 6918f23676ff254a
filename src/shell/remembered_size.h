#pragma once
// A window that comes back at the size the user left it: the geometry is
// read from the settings when the window is made and written whenever it is
// hidden (closed, accepted or rejected).
#include <QString>

class QSettings;
class QWidget;

namespace kelvaro::shell {

// Nothing is remembered without settings.
void RememberSize(QWidget* window, QSettings* settings, const QString& key);

}  // namespace kelvaro::shell
