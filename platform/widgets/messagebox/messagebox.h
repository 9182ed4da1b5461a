#pragma once

#include "widgets/dialog/dialog.h"

class CLabel;

/**
 * The message box: a title line, a message and one or more buttons. Sizes itself to its text within the
 * working area, again after every change of a text or size; what is longer ends in "...". The buttons carry
 * the object names "ok", "cancel", "yes" and "no"; all four arrow keys move the marker along them.
 */
class CMessageBox : public CDialog
{
    Q_OBJECT

public:
    enum Button { NoButton = 0x0, Ok = 0x1, Cancel = 0x2, Yes = 0x4, No = 0x8 };
    Q_DECLARE_FLAGS(Buttons, Button)

    CMessageBox(const QString& title, const QString& text, Buttons buttons, QWidget* parent = nullptr);

    void setTitleBackgroundColor(const CThemeColor& color);
    void setTitleTextColor(const CThemeColor& color);
    /** Pixel sizes. */
    void setTitleTextSize(int pixels);
    void setMessageTextSize(int pixels);
    void setMessageTextColor(const CThemeColor& color);
    void setMessageAlignment(Qt::Alignment alignment);

    /** As shown; of a text too long for any box its beginning. */
    QString title() const;
    QString text() const;

    /** Shows the box modally. @return the button pressed; NoButton when it was closed in another way */
    int exec() override;
    Button answer() const { return m_answer; }

    /** Box with the given buttons, in the middle of the working area, in one call. @return as exec() */
    static Button information(QWidget* parent, const QString& title, const QString& text, Buttons buttons);

public slots:
    void translate() override;
    void updateWidgetStyle() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveMarker(int arrowKey) override;

private:
    void adjustToText();
    void layoutParts();
    int buttonRowWidth() const;
    int textHeight(int boxWidth) const;
    int titleHeight() const;

    CLabel* m_pTitle;
    CLabel* m_pText;
    QList<CPushButton*> m_buttons;
    Button m_answer = NoButton;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CMessageBox::Buttons)
