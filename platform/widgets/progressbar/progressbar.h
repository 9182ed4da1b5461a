#pragma once

#include "widgets/widgetstyle/themecolor.h"

#include <QProgressBar>

/**
 * A flat level bar with a one-pixel border, filled from the left; a QProgressBar in its range and value. The
 * level is not written into it. What is left empty is light or dark, whichever the bar stands out from.
 * Interface thread only. Owned by its Qt parent.
 */
class CProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit CProgressBar(QWidget* parent = nullptr);

    /** Border and bar; no colour takes the theme's frame and accent again. */
    void setBorderColor(const CThemeColor& color);
    void setBarColor(const CThemeColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CThemeColor m_border;
    CThemeColor m_bar;
};
