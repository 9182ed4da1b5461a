#include "widgets/keypad/keypadfactory.h"

#include "widgets/keypad/keypaddialog.h"

#include <QPointer>

bool CKeyPadFactory::accessKeyPad(
    QWidget* parent, const QString& title, QString& text, KeyPadType type, int maxLength)
{
    // The pad goes with its parent, also while it is up.
    const QPointer<CKeyPadDialog> pad = new CKeyPadDialog(title, text, type, parent);
    pad->setMaxLength(maxLength);
    const bool accepted = pad->exec() == QDialog::Accepted && pad;
    if (accepted)
        text = pad->text();
    delete pad;
    return accepted;
}
