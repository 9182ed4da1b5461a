#pragma once

#include "widgets/widget/widget.h"

class CLabel;

/** Covers the working area while a plug-in starts, and names it. */
class CStartUtilWindow : public CWidget
{
    Q_OBJECT

public:
    explicit CStartUtilWindow(QWidget* parent);

    /** Shows the window with a text. */
    void showMessage(const QString& text);
    QString message() const { return m_message; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QString m_message;
    CLabel* m_pLabel;
};
