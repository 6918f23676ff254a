#pragma once
// The keyboard rules of the forms:
//  - type-ahead on an editable combo: the text left of the caret plus the key
//    typed picks the first item that begins with it, without regard to case;
//    the item becomes current without its choice handler firing, the box
//    shows it, the rest of it is selected, and the key is swallowed;
//  - digits only in a numeric field (editing keys still work);
//  - Enter moves the focus to the next field of the form's order; on a combo
//    whose text names one of its items Enter first chooses that item, as a
//    click on it would.
#include <QObject>
#include <vector>

class QComboBox;
class QWidget;

namespace kelvaro::shell {

void InstallTypeAhead(QComboBox* combo);
void AcceptDigitsOnly(QWidget* field);
// Every widget but the last gets the rule; Enter on the last goes through.
void InstallEnterOrder(const std::vector<QWidget*>& order);

// The item of an editable combo whose text equals the box's text, without
// regard to case; -1 when none does.
int ItemMatchingText(const QComboBox* combo);

}  // namespace kelvaro::shell
