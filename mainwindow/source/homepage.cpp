#include "homepage.h"

#include "widgets/widgetstyle/widgetstyle.h"

CHomePage::CHomePage(QWidget* parent)
    : CWidget(parent)
{
    setBackgroundColor(CWidgetStyle::ColorScreen);
    setBorderWidth(1);
    setBorderColor(QColor(Qt::white));
}
