#include "widgets/widgetstyle/stylepainter.h"

#include "files/plainfile.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QDebug>
#include <QFontMetrics>
#include <QPainter>
#include <QPixmapCache>
#include <QSet>
#include <QTextLayout>
#include <qdrawutil.h>

#include <algorithm>
#include <cmath>

namespace {

const QColor MarkerLine(12, 16, 34);
constexpr qint64 LargestPicture = qint64(1024) * 1024; // bytes

/** Saves the painter for one call. */
class CPainterState
{
public:
    explicit CPainterState(QPainter& painter)
        : m_painter(painter)
    {
        m_painter.save();
    }
    ~CPainterState() { m_painter.restore(); }
    Q_DISABLE_COPY(CPainterState)

private:
    QPainter& m_painter;
};

void strokeRounded(
    QPainter& painter, const QRect& rect, qreal inset, qreal width, qreal radius, const QColor& color)
{
    const qreal edge = inset + width / 2;
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    const qreal corner = std::max(0.0, radius - edge);
    painter.drawRoundedRect(QRectF(rect).adjusted(edge, edge, -edge, -edge), corner, corner);
}

double luminance(const QColor& color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QStringList wrapped(const QString& paragraph, const QFont& font, int width)
{
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(paragraph.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

// The widest piece that cannot be broken: a line, or a word where lines are wrapped. Not rounded, as the
// layout's line breaks are not.
qreal widestPiece(const QString& text, const QFontMetricsF& metrics, bool wrap)
{
    qreal widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QStringList pieces = wrap ? line.split(QLatin1Char(' ')) : QStringList(line);
        for (const QString& piece : pieces)
            widest = std::max(widest, metrics.horizontalAdvance(piece));
    }
    return widest;
}

} // namespace

void CStylePainter::paintButton(QPainter& painter, const QRect& rect, int status)
{
    const CWidgetStyle::ButtonLook look = CWidgetStyle::getButtonLook(status);
    const int radius = CWidgetStyle::getMetric(CWidgetStyle::MetricButtonRadius);
    if (!look.picture.isEmpty()) {
        static QSet<QString> unreadable; // each is tried and told once
        QPixmap picture;
        QFile file(look.picture);
        if (!unreadable.contains(look.picture) && !QPixmapCache::find(look.picture, &picture)
            && openPlainFile(file) && picture.loadFromData(file.read(LargestPicture)))
            QPixmapCache::insert(look.picture, picture);
        if (!picture.isNull()) {
            qDrawBorderPixmap(&painter, rect, QMargins(radius, radius, radius, radius), picture);
            return;
        }
        if (!unreadable.contains(look.picture))
            qWarning().noquote() << "Theme picture" << look.picture << "cannot be read";
        unreadable.insert(look.picture);
    }
    paintPlate(painter, rect, radius, look.fill, look.frame, look.frameWidth);
}

void CStylePainter::paintChosen(QPainter& painter, const QRect& rect, int radius)
{
    paintPlate(painter, rect, radius, CWidgetStyle::getColor(CWidgetStyle::ColorPressed),
        CWidgetStyle::getColor(CWidgetStyle::ColorAccent), 2);
}

void CStylePainter::paintPlate(
    QPainter& painter, const QRect& rect, int radius, const QColor& fill, const QColor& frame, int frameWidth)
{
    CPainterState state(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect, radius, radius);
    if (frame.isValid() && frameWidth > 0)
        strokeRounded(painter, rect, 0, frameWidth, radius, frame);
}

void CStylePainter::paintFocusMarker(QPainter& painter, const QRect& rect, int radius)
{
    const int width = CWidgetStyle::getMetric(CWidgetStyle::MetricFocusWidth);
    CPainterState state(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    strokeRounded(painter, rect, 0, 1, radius, MarkerLine);
    strokeRounded(painter, rect, 1, width, radius, CWidgetStyle::getColor(CWidgetStyle::ColorAccent));
    strokeRounded(painter, rect, 1 + width, 1, radius, MarkerLine);
}

void CStylePainter::paintChevron(
    QPainter& painter, const QPoint& center, Qt::ArrowType direction, const QColor& color)
{
    CPainterState state(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.translate(center.x() + 0.5, center.y() + 0.5);
    painter.rotate(direction == Qt::DownArrow ? 90
            : direction == Qt::LeftArrow      ? 180
            : direction == Qt::UpArrow        ? 270
                                              : 0);
    const QPointF points[] = {QPointF(-2.5, -5), QPointF(2.5, 0), QPointF(-2.5, 5)};
    painter.drawPolyline(points, 3);
}

void CStylePainter::paintPicture(QPainter& painter, const QRect& rect, const QPixmap& picture, qreal opacity)
{
    if (picture.isNull() || rect.isEmpty())
        return;
    QSize size = picture.size();
    if (size.width() > rect.width() || size.height() > rect.height())
        size.scale(rect.size(), Qt::KeepAspectRatio);
    QRect place(QPoint(0, 0), size);
    place.moveCenter(rect.center());
    CPainterState state(painter);
    painter.setOpacity(painter.opacity() * opacity);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, picture);
}

QStringList CStylePainter::textLines(
    const QString& text, const QFont& font, int width, int maxLines, bool wrap)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    const QFontMetrics metrics(font);
    if (wrap) {
        QStringList folded;
        for (const QString& paragraph : qAsConst(lines)) {
            if (paragraph.isEmpty() || metrics.horizontalAdvance(paragraph) <= width)
                folded.append(paragraph);
            else
                folded += wrapped(paragraph, font, width);
        }
        lines = folded;
    }
    const int shown = std::max(1, maxLines);
    if (lines.size() > shown) {
        const QString rest = QStringList(lines.mid(shown - 1)).join(QLatin1Char(' '));
        lines = lines.mid(0, shown - 1);
        // The rest is marked as cut even where its first words alone would fit.
        lines.append(metrics.elidedText(rest + QChar(0x2026), Qt::ElideRight, width));
    }
    for (QString& line : lines)
        line = metrics.elidedText(line, Qt::ElideRight, width);
    return lines;
}

void CStylePainter::paintText(QPainter& painter, const QRect& rect, Qt::Alignment alignment,
    const QString& text, const QColor& color, bool wrap, bool shrink)
{
    if (text.isEmpty() || rect.isEmpty())
        return;
    CPainterState state(painter);
    QFont font = painter.font();
    if (shrink && font.pixelSize() > 0) {
        const int smallest = font.pixelSize() * 4 / 5;
        while (font.pixelSize() > smallest && widestPiece(text, QFontMetricsF(font), wrap) > rect.width())
            font.setPixelSize(font.pixelSize() - 1);
    }
    painter.setFont(font);
    painter.setPen(color);
    const QFontMetrics metrics(font);
    const int maxLines
        = std::max(1, (rect.height() + metrics.leading()) / std::max(1, metrics.lineSpacing()));
    const QStringList lines = textLines(text, font, rect.width(), maxLines, wrap);
    painter.drawText(rect, int(alignment) | Qt::TextDontClip, lines.join(QLatin1Char('\n')));
}

double CStylePainter::contrast(const QColor& one, const QColor& other)
{
    const double first = luminance(one), second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}
