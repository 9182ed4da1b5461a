#include "switchappwindow.h"

#include "widgets/picture/picture.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QPainter>

CSwitchAppWindow::CSwitchAppWindow(QWidget* parent)
    : CWidget(parent)
{
    setBorderColor(CWidgetStyle::ColorAccent);
    setBorderWidth(1);
    resize(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionPageFrame).size());
}

void CSwitchAppWindow::start()
{
    // The picture fills the page frame: decoded with the first switch, not at start-up.
    if (!m_pictureLoaded) {
        m_pictureLoaded = true;
        setBackgroundImage(QPixmap::fromImage(readPicture(QStringLiteral(":/images/Zentra-app-switch.png"))));
    }
    bIsFinish = false;
    raise();
    show();
}

void CSwitchAppWindow::start(const QString& text)
{
    m_message = text;
    start();
}

void CSwitchAppWindow::finish()
{
    bIsFinish = true;
    m_message.clear();
    hide();
}

void CSwitchAppWindow::showMessage(const QString& text)
{
    m_message = text;
    update();
}

void CSwitchAppWindow::clearMessage()
{
    m_message.clear();
    update();
}

void CSwitchAppWindow::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);

    QPainter painter(this);
    QFont font = QApplication::font();
    font.setPixelSize(22);
    font.setBold(true);
    painter.setFont(font);
    const QRect area = rect();
    const int flags = Qt::AlignTop | Qt::AlignHCenter;
    painter.setPen(QColor(47, 44, 78, 200));
    painter.drawText(QRect(area.left(), area.bottom() - 112, area.width() - 4, 112), flags, m_message);
    painter.setPen(QColor(102, 175, 255, 255));
    painter.drawText(QRect(area.left(), area.bottom() - 114, area.width(), 114), flags, m_message);
}
