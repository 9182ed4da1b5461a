#pragma once

#include "widgets/widgetstyle/widgetstyle.h"

/** The whole screen, as the theme has it. */
inline QRect screenArea()
{
    return CWidgetStyle::getScreenRegion(CWidgetStyle::RegionScreen);
}

/** The screen above the bottom bar: what the shell shares with a test application, whose bar stays seen. */
inline QRect areaAboveBottomBar()
{
    QRect area = screenArea();
    area.setHeight(area.height() - CWidgetStyle::getScreenRegion(CWidgetStyle::RegionBottomBar).height());
    return area;
}
