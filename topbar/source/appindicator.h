#pragma once

#include "widgets/widget/widget.h"

/** A small text on a dark plate, for a bar of the top bar's kind. Text that does not fit is elided. */
class CAppIndicator : public CWidget
{
    Q_OBJECT

public:
    explicit CAppIndicator(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return m_text; }

    /** The room of the whole text, as high as the bar. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};
