#pragma once

#include "widgets/widget/widget.h"

class QPainter;
struct BreadcrumbItem;

/**
 * Left part of the top bar, 500 x 60: the title of the current page, and the path that leads to it as a
 * breadcrumb.
 *
 * The bar is too light for white text, so that both stand on a dark plate. A path that is too long loses its
 * first steps: an ellipsis and a double chevron stand in their place, so that a double chevron always means
 * "steps left out here", and a single one "next step".
 */
class CAppFeatureHeader : public CWidget
{
    Q_OBJECT

public:
    /** The test application the header speaks for. */
    enum AppIndex { FirstApp = 0, SecondApp = 1, NoApp = 2 };

    explicit CAppFeatureHeader(QWidget* parent = nullptr);

    void setAppIndex(AppIndex index) { m_appIndex = index; }
    AppIndex appIndex() const { return m_appIndex; }

    /** The title; empty shows none. */
    void setTopText(const QString& text);

    /** The path, its steps separated by ">"; empty steps are left out. */
    void setNavigationText(const QString& text);
    QString navigationText() const { return m_navText; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void initialize();
    void setText(QString& stored, const QString& text);
    void paintChevron(QPainter& painter, int x) const;
    void paintItem(QPainter& painter, const BreadcrumbItem& item) const;

    QSize m_iconSize{60, 60};
    AppIndex m_appIndex = NoApp;
    QString m_topText;
    QString m_navText;
};
