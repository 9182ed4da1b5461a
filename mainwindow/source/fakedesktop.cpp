#include "fakedesktop.h"

#include "widgets/widgetstyle/widgetstyle.h"

CFakeDesktop::CFakeDesktop(QWidget* parent)
    : CWidget(parent)
{
    resize(800, 460);
    setBackgroundColor(CWidgetStyle::ColorScreen);
}
