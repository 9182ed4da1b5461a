#include "aboutpage.h"

#include "systemfacts.h"
#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QIcon>
#include <QPainter>
#include <QTimerEvent>

#include <algorithm>
#include <initializer_list>

namespace {

constexpr int RefreshInterval = 1000; // ms
constexpr int RowHeight = 34;
constexpr int Margin = 13;
constexpr int NameLeft = 12; // in the row
constexpr int ValueLeft = 232;
constexpr int Gap = 12; // between columns
constexpr int PagerWidth = 56;
constexpr int PagerButtonHeight = 64;
constexpr int PositionHeight = 30;

QString uptimeText(qint64 seconds)
{
    if (seconds < 0)
        return {};
    const QString clock = QStringLiteral("%1:%2:%3")
                              .arg(seconds / 3600 % 24, 2, 10, QLatin1Char('0'))
                              .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
                              .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    const int days = int(seconds / 86400);
    return days == 0 ? clock
                     : CAboutPage::tr("%1 d %2", "days, then hours:minutes:seconds").arg(days).arg(clock);
}

QString addressName(const InterfaceAddress& entry)
{
    switch (entry.family) {
    case InterfaceAddress::IPv4:
        return CAboutPage::tr("IPv4 address of %1", "a network interface").arg(entry.interfaceName);
    case InterfaceAddress::IPv6:
        return CAboutPage::tr("IPv6 address of %1", "a network interface").arg(entry.interfaceName);
    default:
        return CAboutPage::tr("Address of %1", "a network interface").arg(entry.interfaceName);
    }
}

QString memoryText(qint64 kibibytes)
{
    return kibibytes < 0 ? QString() : CAboutPage::tr("%1 MiB").arg(kibibytes / 1024);
}

QIcon chevronIcon(bool up)
{
    QPixmap picture(28, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(
        CWidgetStyle::getColor(CWidgetStyle::ColorTextLight), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const qreal tip = up ? 3 : 13;
    const QPointF line[] = {{4, 16 - tip}, {14, tip}, {24, 16 - tip}};
    painter.drawPolyline(line, 3);
    return QIcon(picture);
}

} // namespace

CAboutPage::CAboutPage(const QString& pluginVersion, QWidget* parent)
    : CWidget(parent)
    , m_pluginVersion(pluginVersion)
    , m_up(new CPushButton(this))
    , m_down(new CPushButton(this))
    , m_position(new CLabel(this))
{
    m_position->setAlignment(Qt::AlignCenter);
    m_up->setObjectName(QStringLiteral("up"));
    m_down->setObjectName(QStringLiteral("down"));
    for (CPushButton* button : {m_up, m_down}) {
        button->setIconSize(QSize(28, 16));
        button->setIcon(chevronIcon(button == m_up));
        connect(button, &CPushButton::clicked, this, [this, button] { turnPage(button == m_up ? -1 : 1); });
    }
    refresh();
}

void CAboutPage::translate()
{
    CWidget::translate();
    refresh();
}

void CAboutPage::updateWidgetStyle()
{
    m_up->setIcon(chevronIcon(true));
    m_down->setIcon(chevronIcon(false));
    CWidget::updateWidgetStyle();
}

void CAboutPage::showEvent(QShowEvent* event)
{
    CWidget::showEvent(event);
    refresh();
    m_timer.start(RefreshInterval, this);
}

void CAboutPage::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    CWidget::hideEvent(event);
}

void CAboutPage::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer.timerId())
        refresh();
    else
        CWidget::timerEvent(event);
}

void CAboutPage::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    refresh();
}

QVector<CAboutPage::Row> CAboutPage::readRows() const
{
    const MemoryFacts memory = readMemory();
    QVector<Row> rows{
        {tr("Shell version"), QStringLiteral(SHELL_VERSION)},
        {tr("Qt version"), QString::fromLatin1(qVersion())},
        {tr("Kernel"), readKernel()},
        {tr("Version of this page"), m_pluginVersion},
        {tr("Running for"), uptimeText(readUptime())},
        {tr("Memory"), memoryText(memory.total)},
        {tr("Memory free"), memoryText(memory.free)},
        {tr("Memory available"), memoryText(memory.available)},
    };
    const QVector<InterfaceAddress> addresses = readAddresses();
    for (const InterfaceAddress& entry : addresses)
        rows << Row(addressName(entry), entry.address.isEmpty() ? tr("none", "address") : entry.address);
    if (addresses.isEmpty())
        rows << Row(tr("Network address"), tr("none", "address"));
    for (Row& row : rows) {
        if (row.second.isEmpty())
            row.second = tr("unknown", "value");
    }
    return rows;
}

void CAboutPage::refresh()
{
    const QVector<Row> rows = readRows();
    const int rowsPerPage = std::max(1, (height() - 2 * Margin) / RowHeight);
    m_pageCount = (rows.size() + rowsPerPage - 1) / rowsPerPage;
    m_page = qBound(0, m_page, m_pageCount - 1); // an interface may have gone down

    addLabels(rowsPerPage);
    for (int i = 0; i < m_labels.size(); ++i) {
        const int index = m_page * rowsPerPage + i;
        const bool isUsed = i < rowsPerPage && index < rows.size();
        m_labels[i].band->setVisible(isUsed);
        if (isUsed) {
            m_labels[i].name->setText(rows[index].first);
            m_labels[i].value->setText(rows[index].second);
        }
    }
    for (QWidget* widget : std::initializer_list<QWidget*>{m_up, m_down, m_position})
        widget->setVisible(m_pageCount > 1);
    m_up->setEnabled(m_page > 0);
    m_down->setEnabled(m_page < m_pageCount - 1);
    m_position->setText(QStringLiteral("%1/%2").arg(m_page + 1).arg(m_pageCount));
    placeControls(rowsPerPage);
}

void CAboutPage::addLabels(int count)
{
    while (m_labels.size() < count) {
        auto* band = new CWidget(this);
        const RowLabels labels{band, new CLabel(band), new CLabel(band)};
        if (m_labels.size() % 2 == 0)
            band->setBackgroundColor(CWidgetStyle::ColorToolBox);
        labels.name->setTextColor(CWidgetStyle::ColorTextMuted);
        labels.name->setObjectName(QStringLiteral("name"));
        labels.value->setObjectName(QStringLiteral("value"));
        m_labels << labels;
    }
}

void CAboutPage::placeControls(int rowsPerPage)
{
    const QRect area(Margin, Margin, width() - 2 * Margin, rowsPerPage * RowHeight);
    const int rowWidth = area.width() - (m_pageCount > 1 ? PagerWidth + Gap : 0);
    for (int i = 0; i < m_labels.size(); ++i) {
        m_labels[i].band->setGeometry(area.left(), area.top() + i * RowHeight, rowWidth, RowHeight);
        m_labels[i].name->setGeometry(NameLeft, 0, ValueLeft - NameLeft - Gap, RowHeight);
        m_labels[i].value->setGeometry(ValueLeft, 0, rowWidth - ValueLeft - Gap, RowHeight);
    }
    const QRect pager(area.right() + 1 - PagerWidth, area.top(), PagerWidth, area.height());
    const int buttonHeight = qBound(0, (pager.height() - PositionHeight) / 2, PagerButtonHeight);
    m_up->setGeometry(pager.adjusted(0, 0, 0, buttonHeight - pager.height()));
    m_down->setGeometry(pager.adjusted(0, pager.height() - buttonHeight, 0, 0));
    m_position->setGeometry(pager.adjusted(0, buttonHeight, 0, -buttonHeight));
}

void CAboutPage::turnPage(int by)
{
    m_page += by;
    refresh();
}
