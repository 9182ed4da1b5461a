#pragma once

#include "widgets/widget/widget.h"

/**
 * A text on a CWidget's background. Text that does not fit ends in an ellipsis, or is wrapped when asked;
 * line feeds in the text start a new line. Plain text only.
 */
class CLabel : public CWidget
{
    Q_OBJECT

public:
    explicit CLabel(QWidget* parent = nullptr);
    explicit CLabel(const QString& text, QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return m_text; }
    void setTextColor(const CThemeColor& color);
    /** Pixel size; 0 takes the theme's, or that of setFont(). */
    void setTextSize(int pixels);
    void setBold(bool bold);
    void setAlignment(Qt::Alignment alignment);
    void setWordWrap(bool wrap);

    QSize sizeHint() const override;
    /** Height of the text at a width, in pixels. */
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont textFont() const;

    QString m_text;
    CThemeColor m_color = CWidgetStyle::ColorTextLight;
    int m_textSize = 0;
    bool m_bold = false;
    bool m_wrap = false;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
};
