#include "appfeatureheader.h"

#include "breadcrumb.h"
#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int HEADER_WIDTH = 500;
constexpr QRect PLATE(8, 10, 480, 40);
constexpr int PLATE_RADIUS = 8;
constexpr int TEXT_LEFT = 22;
constexpr int TEXT_RIGHT = 474; // as far from the plate's right edge as TEXT_LEFT from its left one
constexpr int TEXT_GAP = 20; // between the title and the path

} // namespace

CAppFeatureHeader::CAppFeatureHeader(QWidget* parent)
    : CWidget(parent)
{
    initialize();
}

void CAppFeatureHeader::initialize()
{
    setObjectName(QStringLiteral("featureHeader"));
    setFixedSize(HEADER_WIDTH, m_iconSize.height());
}

void CAppFeatureHeader::setText(QString& stored, const QString& text)
{
    if (stored == text)
        return;
    stored = text;
    update();
}

void CAppFeatureHeader::setTopText(const QString& text)
{
    setText(m_topText, text);
}

void CAppFeatureHeader::setNavigationText(const QString& text)
{
    setText(m_navText, text);
}

void CAppFeatureHeader::paintChevron(QPainter& painter, int x) const
{
    const qreal middle = height() / 2.0;
    QPainterPath chevron(QPointF(x, middle - breadcrumb::CHEVRON_HEIGHT / 2.0));
    chevron.lineTo(x + breadcrumb::CHEVRON_DEPTH, middle);
    chevron.lineTo(x, middle + breadcrumb::CHEVRON_HEIGHT / 2.0);
    painter.drawPath(chevron);
}

void CAppFeatureHeader::paintItem(QPainter& painter, const BreadcrumbItem& item) const
{
    if (item.separator != BreadcrumbItem::NoSeparator)
        paintChevron(painter, item.chevronX);
    if (item.separator == BreadcrumbItem::DoubleChevron)
        paintChevron(painter, item.chevronX + breadcrumb::CHEVRON_PITCH);
    painter.drawText(QRect(item.x, 0, item.width, height()),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, item.text);
}

void CAppFeatureHeader::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    const QStringList steps = breadcrumbSteps(m_navText);
    if (m_topText.isEmpty() && steps.isEmpty())
        return;

    QPainter painter(this);
    CStylePainter::paintPlate(painter, PLATE, PLATE_RADIUS, CWidgetStyle::getColor(CWidgetStyle::ColorPlate));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));

    int left = TEXT_LEFT;
    if (!m_topText.isEmpty()) {
        painter.setFont(CWidgetStyle::getFont(CWidgetStyle::FontTopText));
        // The path keeps at least half of the plate.
        const int right = steps.isEmpty() ? TEXT_RIGHT : (TEXT_LEFT + TEXT_RIGHT) / 2;
        BreadcrumbItem title;
        title.x = left;
        title.text = painter.fontMetrics().elidedText(m_topText, Qt::ElideRight, right - left);
        title.width = painter.fontMetrics().horizontalAdvance(title.text);
        paintItem(painter, title);
        left += title.width + TEXT_GAP;
    }

    const QFont stepFont = CWidgetStyle::getFont(CWidgetStyle::FontNavigation);
    QFont currentFont = stepFont;
    currentFont.setBold(true);
    const QVector<BreadcrumbItem> items
        = layoutBreadcrumb(steps, left, TEXT_RIGHT, QFontMetrics(stepFont), QFontMetrics(currentFont));
    for (const BreadcrumbItem& item : items) {
        painter.setFont(item.isCurrent ? currentFont : stepFont);
        paintItem(painter, item);
    }
}
