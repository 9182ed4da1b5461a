#include "breadcrumb.h"

using namespace breadcrumb;

namespace {

const QString ELLIPSIS(QChar(0x2026));

int separatorWidth(BreadcrumbItem::Separator separator)
{
    if (separator == BreadcrumbItem::NoSeparator)
        return 0;
    const int marks
        = separator == BreadcrumbItem::DoubleChevron ? CHEVRON_PITCH + CHEVRON_DEPTH : CHEVRON_DEPTH;
    return CHEVRON_BEFORE + marks + CHEVRON_AFTER;
}

/** All the texts in one row; a cut row starts with an ellipsis. The row may be longer than the room. */
QVector<BreadcrumbItem> placed(const QStringList& texts, bool isCut, int left, const QFontMetrics& stepFont,
    const QFontMetrics& currentFont)
{
    QVector<BreadcrumbItem> items;
    int x = left;
    for (int i = 0; i < texts.size(); ++i) {
        BreadcrumbItem item;
        item.text = texts.at(i);
        item.isCurrent = i == texts.size() - 1;
        if (i > 0)
            item.separator = isCut && i == 1 ? BreadcrumbItem::DoubleChevron : BreadcrumbItem::Chevron;
        item.chevronX = x + CHEVRON_BEFORE;
        item.x = x + separatorWidth(item.separator);
        item.width = (item.isCurrent ? currentFont : stepFont).horizontalAdvance(item.text);
        x = item.x + item.width;
        items.append(item);
    }
    return items;
}

bool fits(const QVector<BreadcrumbItem>& items, int right)
{
    return items.last().x + items.last().width <= right;
}

} // namespace

QStringList breadcrumbSteps(const QString& navigationText)
{
    return navigationText.split(QLatin1Char('>'), Qt::SkipEmptyParts);
}

QVector<BreadcrumbItem> layoutBreadcrumb(const QStringList& steps, int left, int right,
    const QFontMetrics& stepFont, const QFontMetrics& currentFont)
{
    if (steps.isEmpty())
        return {};
    QVector<BreadcrumbItem> items = placed(steps, false, left, stepFont, currentFont);
    for (int first = 1; first < steps.size() && !fits(items, right); ++first)
        items = placed(QStringList(ELLIPSIS) + steps.mid(first), true, left, stepFont, currentFont);
    if (fits(items, right))
        return items;

    BreadcrumbItem& current = items.last();
    current.text = currentFont.elidedText(current.text, Qt::ElideRight, right - current.x);
    current.width = currentFont.horizontalAdvance(current.text);
    return current.text.isEmpty() || !fits(items, right) ? QVector<BreadcrumbItem>() : items;
}
