#include "fakedesktop.h"

#include "screenarea.h"

CFakeDesktop::CFakeDesktop(QWidget* parent)
    : CWidget(parent)
{
    resize(areaAboveBottomBar().size());
    setBackgroundColor(CWidgetStyle::ColorScreen);
}
