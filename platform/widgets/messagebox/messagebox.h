#pragma once

#include "widgets/dialog/dialog.h"

class CLabel;
class CPushButton;

/**
 * The message box: a title band, a message and one or more buttons. Sizes itself to its text within the working
 * area. The buttons carry the object names "ok", "cancel", "yes" and "no".
 */
class CMessageBox : public CDialog
{
    Q_OBJECT

public:
    enum Button { NoButton = 0x0, Ok = 0x1, Cancel = 0x2, Yes = 0x4, No = 0x8 };
    Q_DECLARE_FLAGS(Buttons, Button)

    CMessageBox(const QString &title, const QString &text, Buttons buttons, QWidget *parent = nullptr);

    void setTitleBackgroundColor(int colorCode);
    void setTitleTextColor(int colorCode);
    /** Pixel sizes. */
    void setTitleTextSize(int pixels);
    void setMessageTextSize(int pixels);
    void setMessageTextColor(int colorCode);
    void setMessageAlignment(Qt::Alignment alignment);

    QString title() const;
    QString text() const;

    /** Shows the box modally. @return the button pressed; NoButton when it was closed in another way */
    int exec() override;
    Button answer() const { return m_answer; }

    /** Title "Information" style box with the given buttons in one call. */
    static Button information(QWidget *parent, const QString &title, const QString &text, Buttons buttons);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void layoutParts();

    CLabel *m_pTitle;
    CLabel *m_pText;
    QList<CPushButton *> m_buttons;
    Button m_answer = NoButton;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CMessageBox::Buttons)
