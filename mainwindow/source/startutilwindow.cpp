#include "startutilwindow.h"

#include "widgets/label/label.h"
#include "widgets/widgetstyle/widgetstyle.h"

CStartUtilWindow::CStartUtilWindow(QWidget* parent)
    : CWidget(parent)
    , m_pLabel(new CLabel(this))
{
    setBackgroundColor(CWidgetStyle::ColorScreen);
    setBorderColor(CWidgetStyle::ColorAccent);
    m_pLabel->setAlignment(Qt::AlignCenter);
    m_pLabel->setTextSize(22);
    m_pLabel->setBold(true);
    m_pLabel->setTextColor(CWidgetStyle::ColorAccent);
}

void CStartUtilWindow::showMessage(const QString& text)
{
    m_message = text;
    m_pLabel->setText(text);
    show();
}

void CStartUtilWindow::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    m_pLabel->setGeometry(innerRect().adjusted(20, 0, -20, 0));
}
