#pragma once

#include <QFontMetrics>
#include <QStringList>
#include <QVector>

/** One text of a breadcrumb as it will be drawn. */
struct BreadcrumbItem
{
    /** What stands before the text: nothing, one chevron between two steps, or two where steps are left out.
     */
    enum Separator { NoSeparator, Chevron, DoubleChevron };

    QString text; ///< elided already
    int x = 0; ///< left edge of the text, pixels
    int width = 0;
    Separator separator = NoSeparator;
    int chevronX = 0; ///< left end of the (first) chevron
    bool isCurrent = false; ///< the last step: where the user is
};

/** Geometry of the separators, in pixels. */
namespace breadcrumb {
constexpr int CHEVRON_DEPTH = 4;
constexpr int CHEVRON_HEIGHT = 8;
constexpr int CHEVRON_BEFORE = 8; ///< from the end of the text to the chevron
constexpr int CHEVRON_AFTER = 4; ///< from its tip to the next text
constexpr int CHEVRON_PITCH = 6; ///< from the first to the second mark of a double chevron
}

/** The steps of a navigation text "Home>Tools>...": what stands between ">" characters, empty steps left out.
 */
QStringList breadcrumbSteps(const QString& navigationText);

/**
 * Places steps one after the other between `left` and `right`.
 *
 * Steps that do not fit are left out from the start, an ellipsis and a double chevron standing for them; the
 * last step is always there, itself elided when even it is too long.
 * @param stepFont metrics of the steps before the last
 * @param currentFont metrics of the last step
 * @return empty when there is no step or no room for an ellipsis
 */
QVector<BreadcrumbItem> layoutBreadcrumb(const QStringList& steps, int left, int right,
    const QFontMetrics& stepFont, const QFontMetrics& currentFont);
