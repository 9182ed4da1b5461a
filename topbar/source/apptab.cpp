#include "apptab.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int TAB_WIDTH = 70;
constexpr int TAB_HEIGHT = 60;
constexpr QRect LABEL_BOX(0, 0, 70, 30);
constexpr QRect SESSION_BOX(0, 0, 35, 30);
constexpr QRect REMOTE_PLATE(0, 2, 70, 56);
constexpr int PLATE_RADIUS = 4;
constexpr int NUMBER_PADDING = 6;
constexpr int CAPTION_PADDING = 3;
constexpr int CAPTION_MARGIN = 3; // to the tab's edges and to a session number

const QColor IDLE_PEN(200, 201, 201);
const QColor ACTIVE_PEN(233, 161, 26);

constexpr struct
{
    CResourceMan::AppStatus released;
    CResourceMan::AppStatus pushed;
} CHECK_LOOKS[] = {
    {CResourceMan::AppUnuseRelease, CResourceMan::AppUnusePush},
    {CResourceMan::AppOKRelease, CResourceMan::AppOKPush},
    {CResourceMan::AppErrRelease, CResourceMan::AppErrPush},
};

/** The look after a change of the checked state; every look without a counterpart gives AppUnuseRelease. */
CResourceMan::AppStatus checkLook(CResourceMan::AppStatus status, bool checked)
{
    for (const auto& look : CHECK_LOOKS) {
        if (status == (checked ? look.released : look.pushed))
            return checked ? look.pushed : look.released;
    }
    return CResourceMan::AppUnuseRelease;
}

} // namespace

CAppTab::CAppTab(QWidget* parent)
    : CWidget(parent)
{
    initialize();
}

void CAppTab::initialize()
{
    setTypeCode(TypeControl);
    setFixedSize(TAB_WIDTH, TAB_HEIGHT);
    setBackgroundImage(CResourceMan::getAppStatus(m_status));
}

void CAppTab::setIndex(unsigned int index)
{
    m_appIndex = index;
    update();
}

void CAppTab::setStatus(CResourceMan::AppStatus status)
{
    if (!bIsModuleExists)
        return;
    if (hasArrowKeyFocus() && m_status != CResourceMan::AppRemote && status != CResourceMan::AppRemote)
        return;
    m_status = status;
    setBackgroundImage(CResourceMan::getAppStatus(status));
    update(); // the number's colour depends on the status too
}

void CAppTab::setText(const QString& text)
{
    m_text = text;
    update();
}

void CAppTab::setChecked(bool checked)
{
    if (bIsChecked == checked)
        return;
    bIsChecked = checked;
    setStatus(checkLook(m_status, checked));
}

bool CAppTab::isActived() const
{
    return m_status != CResourceMan::AppUnuseRelease && m_status != CResourceMan::AppUnusePush;
}

void CAppTab::setModuleExists(bool exists)
{
    bIsModuleExists = exists;
    setBackgroundImage(
        CResourceMan::getAppStatus(exists ? CResourceMan::AppUnuseRelease : CResourceMan::AppNoModule));
    update();
}

void CAppTab::setSessionNum(unsigned int number)
{
    m_sessionNum = int(number);
    update();
}

void CAppTab::setArrowKeyFocus(bool on)
{
    // The status goes first: a tab that loses the focus still has it here, so that it keeps the AppFocus look
    // until its owner sets a status again. Owners count on this order.
    if (bIsModuleExists && isLocalApp())
        setStatus(on ? CResourceMan::AppFocus : CResourceMan::AppUnuseRelease);
    CWidget::setArrowKeyFocus(on);
}

void CAppTab::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintFrame(painter);
    const bool isRemote = bIsModuleExists && !isLocalApp();
    const QString number = QString::number(isRemote ? unsigned(m_sessionNum) : m_appIndex);
    painter.setFont(CWidgetStyle::getFont(CWidgetStyle::FontTabIndex));
    const int numberWidth = painter.fontMetrics().horizontalAdvance(number);
    // The pens' contrast is too low on the lighter pictures, and a remote application has no picture at all:
    // a dark plate carries the number.
    QRect plate = REMOTE_PLATE;
    if (!isRemote) {
        plate = QRect(0, 0, numberWidth + 2 * NUMBER_PADDING, painter.fontMetrics().height());
        plate.moveCenter(LABEL_BOX.center());
    }
    CStylePainter::paintPlate(painter, plate, PLATE_RADIUS, CWidgetStyle::getColor(CWidgetStyle::ColorPlate));

    painter.setPen(bIsModuleExists && isActived() ? ACTIVE_PEN : IDLE_PEN);
    if (isRemote)
        painter.drawText(SESSION_BOX, Qt::AlignLeft | Qt::AlignVCenter, number);
    else
        painter.drawText(LABEL_BOX, Qt::AlignCenter, number);
    if (!m_text.isEmpty())
        paintCaption(painter, isRemote ? QRect(0, 0, numberWidth, LABEL_BOX.height()) : QRect(), plate);
    if (m_status != CResourceMan::AppFocus) // whose picture is a marker itself
        paintFocusMarker(painter);
}

void CAppTab::paintCaption(QPainter& painter, const QRect& besides, const QRect& covered) const
{
    painter.setFont(CWidgetStyle::getFont(CWidgetStyle::FontTabCaption));
    const QFontMetrics metrics = painter.fontMetrics();
    QRect room = LABEL_BOX.adjusted(CAPTION_MARGIN, 0, -CAPTION_MARGIN, 0);
    room.setLeft(std::max(room.left(), besides.right() + 1 + CAPTION_MARGIN));
    const QString caption = metrics.elidedText(m_text, Qt::ElideRight, room.width() - 2 * CAPTION_PADDING);
    if (caption.isEmpty())
        return;
    // Black could not be read on the dark picture, let alone on the number: the caption brings a light plate,
    // which covers a local application's index, and moves aside for a session number.
    QRect plate(
        0, 0, metrics.horizontalAdvance(caption) + 2 * CAPTION_PADDING, metrics.height() + CAPTION_PADDING);
    if (besides.isNull())
        plate = plate.united(QRect(0, 0, covered.width(), covered.height()));
    plate.moveCenter(LABEL_BOX.center());
    if (plate.left() < room.left())
        plate.moveLeft(room.left());
    CStylePainter::paintPlate(
        painter, plate, PLATE_RADIUS, CWidgetStyle::getColor(CWidgetStyle::ColorDialog));
    painter.setPen(Qt::black);
    painter.drawText(plate, Qt::AlignCenter, caption);
}
