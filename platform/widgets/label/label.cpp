#include "widgets/label/label.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

#include <algorithm>
#include <limits>

CLabel::CLabel(QWidget* parent)
    : CLabel(QString(), parent)
{ }

CLabel::CLabel(const QString& text, QWidget* parent)
    : CWidget(parent)
    , m_text(text)
{
    setTypeCode(TypeLabel);
}

void CLabel::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    updateGeometry();
    update();
}

void CLabel::setTextColor(const CThemeColor& color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
}

void CLabel::setTextSize(int pixels)
{
    const int size = std::max(0, pixels);
    if (m_textSize == size)
        return;
    m_textSize = size;
    updateGeometry();
    update();
}

void CLabel::setBold(bool bold)
{
    if (m_bold == bold)
        return;
    m_bold = bold;
    updateGeometry();
    update();
}

void CLabel::setAlignment(Qt::Alignment alignment)
{
    if (m_alignment == alignment)
        return;
    m_alignment = alignment;
    update();
}

void CLabel::setWordWrap(bool wrap)
{
    if (m_wrap == wrap)
        return;
    m_wrap = wrap;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(wrap);
    setSizePolicy(policy);
    updateGeometry();
    update();
}

QSize CLabel::sizeHint() const
{
    const QMargins border = frameStyle().borderWidths();
    const QSize text = QFontMetrics(textFont()).size(0, m_text);
    return QSize(
        text.width() + border.left() + border.right(), text.height() + border.top() + border.bottom());
}

int CLabel::heightForWidth(int width) const
{
    const QMargins border = frameStyle().borderWidths();
    const QFont font = textFont();
    const QStringList lines = CStylePainter::textLines(
        m_text, font, width - border.left() - border.right(), std::numeric_limits<int>::max(), m_wrap);
    const QFontMetrics metrics(font);
    return lines.size() * metrics.lineSpacing() - metrics.leading() + border.top() + border.bottom();
}

void CLabel::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.setFont(textFont());
    CStylePainter::paintText(painter, innerRect(), m_alignment, m_text, m_color.color(), m_wrap);
}

QFont CLabel::textFont() const
{
    QFont result = testAttribute(Qt::WA_SetFont) ? font() : CWidgetStyle::getFont(CWidgetStyle::FontText);
    if (m_textSize > 0)
        result.setPixelSize(m_textSize);
    if (m_bold)
        result.setBold(true);
    return result;
}
